#pragma once

namespace coinlet {

// What the two colour dialogs share: the picture on the left, a column of controls on the right.

constexpr int dialogWidth = 792, dialogHeight = 524;  // pixels, as all here
constexpr int dialogColumnWidth = 256;

}  // namespace coinlet
