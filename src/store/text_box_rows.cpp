#include "store/text_box_rows.h"

#include "controls/text_box.h"
#include "controls/text_lines.h"

#include <string_view>

namespace coinlet {

int GetTextBoxLines(const TextBox& textBox, std::vector<std::string>& rows) {
    constexpr std::string_view lineEnd = "\r\n";
    rows = DisplayedLines(textBox);
    for (std::string& row : rows) {
        if (row.ends_with(lineEnd)) row.resize(row.size() - lineEnd.size());
    }
    rows.emplace_back();
    return static_cast<int>(rows.size()) - 1;
}

}  // namespace coinlet
