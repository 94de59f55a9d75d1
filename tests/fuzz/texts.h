#pragma once

#include "fuzz/reader.h"

#include <algorithm>
#include <string_view>

namespace coinlet::test {

// Texts from outside, and slow rules of what is in them.

using File = std::span<const std::uint8_t>;

inline std::string_view AsText(File file) {
    return {reinterpret_cast<const char*>(file.data()), file.size()};
}

inline Bytes TextFile(std::string_view text) {
    return {text.begin(), text.end()};
}

/// The lines of a text, byte by byte: CR LF, LF and CR end one; behind the last end starts none.
inline std::vector<std::string> SlowLines(std::string_view text) {
    std::vector<std::string> lines;
    std::string line;
    bool isOpen = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' && i > 0 && text[i - 1] == '\r') continue;
        isOpen = text[i] != '\r' && text[i] != '\n';
        if (isOpen) {
            line += text[i];
        } else {
            lines.push_back(line);
            line.clear();
        }
    }
    if (isOpen) lines.push_back(line);
    return lines;
}

/// The rows that a list takes of a text: its lines, but for those of blanks.
inline std::vector<std::string> SlowRows(std::string_view text) {
    std::vector<std::string> rows = SlowLines(text);
    std::erase_if(rows, [](const std::string& row) {
        return std::ranges::all_of(row, [](char c) { return c == ' '; });
    });
    return rows;
}

}  // namespace coinlet::test
