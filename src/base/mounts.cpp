#include "base/mounts.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace coinlet {

namespace {

/// A field of the table of mounts: a backslash and three octal digits stand for a blank and its like.
std::string UnescapeMount(std::string_view field) {
    const auto isOctal = [](char c) { return c >= '0' && c <= '7'; };
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + 3 < field.size() &&
            std::ranges::all_of(field.substr(i + 1, 3), isOctal)) {
            text += static_cast<char>((field[i + 1] - '0') * 64 + (field[i + 2] - '0') * 8 +
                                      (field[i + 3] - '0'));
            i += 3;
        } else {
            text += field[i];
        }
    }
    return text;
}

}  // namespace

std::vector<std::string> RemovablePlaces(std::string_view mountTable) {
    std::vector<std::string> places;
    std::istringstream lines{std::string(mountTable)};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string device, point;
        fields >> device >> point;
        point = UnescapeMount(point);
        if (point.starts_with("/media/") || point.starts_with("/run/media/")) places.push_back(point);
    }
    std::ranges::sort(places);
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

std::vector<std::string> RemovablePlaces() {
    std::ostringstream table;
    table << std::ifstream("/proc/self/mounts").rdbuf();
    return RemovablePlaces(table.str());
}

}  // namespace coinlet
