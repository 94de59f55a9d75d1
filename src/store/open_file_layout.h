#pragma once

namespace coinlet {

class OpenFile;

/// Places the dialog's controls and gives them their looks and fixed captions.
void LayOutOpenFile(OpenFile& form);

}  // namespace coinlet
