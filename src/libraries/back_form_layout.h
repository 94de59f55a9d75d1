#pragma once

namespace coinlet {

class BackForm;

/// Places the dialog's controls on a grid of 4 pixels and gives them their looks and fixed captions.
void LayOutBackForm(BackForm& form);

}  // namespace coinlet
