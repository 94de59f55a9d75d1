#include "launch/command_line.h"

#include "base/program.h"

#include <algorithm>

namespace coinlet {

namespace {

constexpr std::string_view help =
    "Usage: coinlet-designer [--folder DIR] [FILE]\n"
    "Designs small metal collectors' tags in colour.\n"
    "\n"
    "FILE is a picture (BMP, GIF, JPEG, PNG), which is laid over the canvas, or a\n"
    "design (.pat), which is opened from where it is.\n"
    "\n"
    "  --folder DIR  keep designs, settings and libraries in DIR; it is made and\n"
    "                filled if it isn't there\n"
    "  --help        print this and end\n"
    "  --version     print the version and end\n";

constexpr int badUse = 2;

Notice Complaint(const std::string& fault) {
    return {"coinlet-designer: " + fault + "\nTry 'coinlet-designer --help'.\n", badUse};
}

}  // namespace

std::variant<CommandLine, Notice> ReadCommandLine(std::span<const std::string_view> arguments) {
    constexpr std::string_view folder = "--folder", folderIs = "--folder=", endOfOptions = "--";
    const auto options = arguments.first(
        static_cast<std::size_t>(std::ranges::find(arguments, endOfOptions) - arguments.begin()));
    const auto asks = [&](std::string_view option) {
        return std::ranges::find(options, option) != options.end();
    };
    if (asks("--help")) return Notice{std::string(help), 0};
    if (asks("--version")) return Notice{std::string(programTitle) + " " COINLET_VERSION "\n", 0};

    CommandLine line;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (i < options.size() && (argument == folder || argument.starts_with(folderIs))) {
            const bool joined = argument != folder;
            if (!joined && i + 1 >= options.size()) return Complaint("--folder needs a folder");
            const std::string_view name = joined ? argument.substr(folderIs.size()) : arguments[++i];
            if (name.empty()) return Complaint("--folder needs a folder");
            line.folder = name;
        } else if (i < options.size() && argument.starts_with('-')) {
            return Complaint("unknown option '" + std::string(argument) + "'");
        } else if (i != options.size()) {
            if (line.document) return Complaint("more than one file");
            line.document = argument;
        }
    }
    return line;
}

}  // namespace coinlet
