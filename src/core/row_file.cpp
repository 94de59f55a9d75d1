#include "core/row_file.h"

#include "base/text.h"
#include "controls/list_box.h"

namespace coinlet {

void AddRows(ListBox& list, std::string_view text) {
    for (const std::string& line : Lines(FromCodePage(text)))
        if (!TrimBlanks(line).empty()) list.AddItem(line);
}

void AddRowsOfFile(ListBox& list, const fs::path& path) {
    if (const auto bytes = ReadFile(path, largestRowText)) AddRows(list, AsText(*bytes));
}

}  // namespace coinlet
