#pragma once

#include "base/files.h"

#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

/// The numbers in the text of a catalogue, in its order. A number is what a quoted text holds, up to its
/// closing quote or the end of its line; without quotes, what stands before a comma or the end of the line.
/// Blank ones are left out.
std::vector<std::string> ParseCollection(std::string_view text);

/// The text of a catalogue: each number without blanks at its ends, in quotes, on a line that ends in CR LF.
std::string FormatCollection(const std::vector<std::string>& numbers);

/// A catalogue as it was read. One that is there but can't be read, or is larger than 64 million bytes, is
/// empty and not `readable`.
struct Collection {
    std::vector<std::string> numbers;
    bool readable = true;
};
Collection ReadCollection(const fs::path& file);

/// Replaces the catalogue whole or not at all; nobody is told of a failure.
void WriteCollection(const fs::path& file, const std::vector<std::string>& numbers,
                     FileCalls& calls = SystemFileCalls());

}  // namespace coinlet
