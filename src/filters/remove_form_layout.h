#pragma once

namespace coinlet {

class RemoveForm;

/// Places the dialog's controls on a grid of 4 pixels and gives them their looks and fixed captions.
void LayOutRemoveForm(RemoveForm& form);

}  // namespace coinlet
