#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace coinlet {

/// What the user asked for when he started the program.
struct CommandLine {
    std::optional<std::filesystem::path> folder;    ///< Another application folder.
    std::optional<std::filesystem::path> document;  ///< A picture or a design to begin with.
};

/// A text to print instead of starting, and the exit status that goes with it: 0 for help and version, on
/// standard output; 2 for a command line that makes no sense, on standard error.
struct Notice {
    std::string text;
    int status;
};

/// Exit status of a start that couldn't read the file that it was given.
inline constexpr int documentUnreadable = 1;

/// Reads the arguments behind the program's name. `--help` and `--version` rule wherever they stand before
/// `--`; behind that every argument is a file.
std::variant<CommandLine, Notice> ReadCommandLine(std::span<const std::string_view> arguments);

}  // namespace coinlet
