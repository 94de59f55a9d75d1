#pragma once

#include "base/file_name.h"
#include "base/files.h"

#include <string>
#include <string_view>

namespace coinlet {

// A design is two files of one name in the folder of designs, which lies in the application folder: its
// picture, and if it has one its info text.
constexpr std::string_view designPicture = ".pat";
constexpr std::string_view designInfoText = ".txt";

/// A name that a design can be stored under: it leads to files in the folder of designs. What the user types
/// may be none.
bool IsDesignName(std::string_view name);

/// Where a file of the design `name` is written at first: the folder is put before the name as the user typed
/// it, so that only an `IsDesignName` leads to a file.
std::string DesignFile(const fs::path& applicationFolder, std::string_view name, std::string_view extension);

/// The picture of the design `name`: the file that opening finds and saving replaces, in whatever case its
/// name is written, or the one that saving makes anew. Nothing for a name that leads to no file in the folder
/// of designs.
std::optional<fs::path> DesignPicture(const fs::path& applicationFolder, std::string_view name);

/// The info text that belongs to the design with this picture, likewise. Nothing where there is none, and
/// where it is another design's whose name is nearer to its own.
std::optional<fs::path> FindInfoText(const fs::path& picture);

/// Where the info text of that design stands or would be made.
fs::path InfoTextPath(const fs::path& picture);

}  // namespace coinlet
