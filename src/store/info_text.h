#pragma once

#include "base/file_reading.h"

#include <string_view>

namespace coinlet {

class ListBox;
struct Context;

/// The bytes of the info text's file for these rows.
Bytes InfoTextFile(const ListBox& rows);

/// Writes the info text of the design `name` from the rows of `Main.List2`, over an older one. If that can't
/// be done, or the name leads to no file, everything stays as it was.
std::error_code WriteDesignInfoText(const Context& context, std::string_view name,
                                    FileCalls& calls = SystemFileCalls());

/// Fills `Main.List2` from the info text of the design `name`, without its blank rows. A design without one
/// has no rows. After an error in the middle those that were read so far stay, and so do those at the
/// beginning of a text that is longer than largestRowText.
void ReadDesignInfoText(const Context& context, std::string_view name, const ReadCall& read = ReadBySystem);

/// The same for the design with this picture.
void ReadInfoTextOf(const Context& context, const fs::path& picture, const ReadCall& read = ReadBySystem);

}  // namespace coinlet
