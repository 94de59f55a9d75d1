#pragma once

#include "base/files.h"

#include <optional>
#include <string>
#include <string_view>

namespace coinlet {

// A design is two files of one name in the folder of designs: its picture, and if it has one its info text.
constexpr std::string_view designPicture = ".pat";
constexpr std::string_view designInfoText = ".txt";

/// Where a file of the design `name` stands or would stand, as a text: the folder is put before the name as
/// the user typed it.
std::string DesignFile(const fs::path& applicationFolder, std::string_view name, std::string_view extension);

/// The same as a path; nothing for a name that leads to no file in the folder of designs.
std::optional<fs::path> DesignPath(const fs::path& applicationFolder, std::string_view name,
                                   std::string_view extension);

/// The file that holds this part of a stored design: `DesignFile`, or, where that isn't there, one with the
/// extension in other letters. Stores that come from a system without regard to case hold ".PAT" and ".TXT".
std::string StoredDesignFile(const fs::path& applicationFolder, std::string_view name,
                             std::string_view extension);

/// The name of a stored thing from that of its file, such as "coin" from "coin.pat": all but the last four
/// characters, which are the extension. A shorter name leaves an empty one.
std::string WithoutExtension(std::string_view fileName);

}  // namespace coinlet
