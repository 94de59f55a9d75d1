#pragma once

namespace coinlet {

class GlitterForm;

/// Places the dialog's controls on a grid of 4 pixels and gives them their looks and fixed captions.
void LayOutGlitterForm(GlitterForm& form);

}  // namespace coinlet
