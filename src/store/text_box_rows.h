#pragma once

#include <string>
#include <vector>

namespace coinlet {

class TextBox;

/// Cuts the text of a wrapping box of several lines into `rows`, one for each line that it displays, without
/// the line ends, and an empty one behind them. Returns the highest index, which is the number of displayed
/// lines.
int GetTextBoxLines(const TextBox& textBox, std::vector<std::string>& rows);

}  // namespace coinlet
