#pragma once

#include "base/files.h"

#include <string>
#include <string_view>

namespace coinlet {

// A design is two files of one name in the folder of designs, which lies in the application folder: its
// picture, and if it has one its info text.
constexpr std::string_view designFolder = "\\Ontwerpen";
constexpr std::string_view designPicture = ".pat";
constexpr std::string_view designInfoText = ".txt";

/// A name that a design can be stored under: it leads to files in the folder of designs. What the user types
/// may be none.
bool IsDesignName(std::string_view name);

/// Where a file of the design `name` is written: the folder is put before the name as the user typed it, so
/// that only an `IsDesignName` leads to a file.
std::string DesignFile(const fs::path& applicationFolder, std::string_view name, std::string_view extension);

/// The file that holds this part of a stored design: `DesignFile`, or, where that isn't there, one with the
/// extension in other letters. Stores that come from a system without regard to case hold ".PAT" and ".TXT".
std::string StoredDesignFile(const fs::path& applicationFolder, std::string_view name,
                             std::string_view extension);

/// The name of a stored thing from that of its file, such as "coin" from "coin.pat": all but the last four
/// characters, which are the extension. A shorter name leaves an empty one.
std::string WithoutExtension(std::string_view fileName);

}  // namespace coinlet
