#pragma once

namespace coinlet {

class SymbolForm;

/// Places the dialog's controls on a grid of 4 pixels and gives them their looks and fixed captions.
void LayOutSymbolForm(SymbolForm& form);

}  // namespace coinlet
