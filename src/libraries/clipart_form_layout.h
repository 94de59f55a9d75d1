#pragma once

namespace coinlet {

class ClipartForm;

/// Places the dialog's controls on a grid of 4 pixels and gives them their looks and fixed captions.
void LayOutClipartForm(ClipartForm& form);

}  // namespace coinlet
