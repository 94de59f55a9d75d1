#include "player/command_line.h"

namespace coinlet::player {

std::optional<Options> ReadCommandLine(const std::vector<std::string>& words) {
    Options options;
    for (auto word = words.begin(); word != words.end(); ++word) {
        const bool isFolder = *word == "--folder", isOut = *word == "--out";
        if (isFolder || isOut || *word == "--state") {
            if (++word == words.end()) return std::nullopt;
            if (isFolder) {
                options.folder = *word;
            } else if (isOut) {
                options.out = *word;
            } else {
                options.state = *word;
            }
        } else if (word->starts_with("--")) {
            return std::nullopt;
        } else {
            options.scripts.emplace_back(*word);
        }
    }
    if (options.folder.empty() || options.scripts.empty()) return std::nullopt;
    return options;
}

}  // namespace coinlet::player
