#pragma once

namespace coinlet {

class SaveForm;

/// Places the dialog's controls and gives them their looks and fixed captions.
void LayOutSaveForm(SaveForm& form);

}  // namespace coinlet
