#pragma once

namespace coinlet {

class BorderForm;

/// Places the dialog's controls on a grid of 4 pixels and gives them their looks and fixed captions.
void LayOutBorderForm(BorderForm& form);

}  // namespace coinlet
