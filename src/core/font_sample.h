#pragma once

#include <string>

namespace coinlet {

class Label;

/// Shows a few letters of a font on a label.
void ShowFontSample(Label& label, const std::string& fontName);

}  // namespace coinlet
