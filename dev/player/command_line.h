#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace coinlet::player {

/// What the caller asks for.
struct Options {
    std::filesystem::path folder;              ///< The application folder to run in.
    std::optional<std::filesystem::path> out;  ///< Takes what scripts make; else it is thrown away.
    std::vector<std::filesystem::path> scripts;
    std::filesystem::path state = {};  ///< Where unsaved work is kept; empty: nowhere.
};

constexpr std::string_view usage =
    "coinlet-play --folder APPFOLDER [--out OUTFOLDER] [--state STATEFOLDER] SCRIPT...\n"
    "  APPFOLDER  the application folder to run in; scripts change it, so hand in a copy\n"
    "  OUTFOLDER  takes what the scripts save; without it that is thrown away\n"
    "  STATEFOLDER  keeps unsaved work for the next start; without it that is lost\n";

/// The options that the words behind the program's name mean; nothing if they make no sense.
std::optional<Options> ReadCommandLine(const std::vector<std::string>& words);

}  // namespace coinlet::player
