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

/// Fills `Main.List2` from the info text of a design, without its blank rows. The design is told by its
/// picture: a name alone may stand for two, in capitals and not, and the one that the program begins with may
/// lie outside the store. Without an info text there are no rows. After an error in the middle those that
/// were read so far stay, and so do those at the beginning of a text that is longer than largestRowText.
void ReadDesignInfoText(const Context& context, const fs::path& picture, const ReadCall& read = ReadBySystem);

}  // namespace coinlet
