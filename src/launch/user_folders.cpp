#include "launch/user_folders.h"

#include "base/files.h"
#include "base/text.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <system_error>

namespace coinlet {

namespace {

std::filesystem::path AbsolutePath(const char* value) {
    if (value == nullptr) return {};
    std::filesystem::path path(value);
    return path.is_absolute() ? path : std::filesystem::path();
}

std::filesystem::path BaseFolder(const Environment& environment, const char* variable,
                                 const char* beneathHome) {
    if (auto path = AbsolutePath(environment(variable)); !path.empty()) return path;
    const auto home = AbsolutePath(environment("HOME"));
    return home.empty() ? home : home / beneathHome;
}

/// True if a text of lines `NAME="VALUE"` names a picture folder.
bool NamesPictureFolder(std::string_view userDirs) {
    constexpr std::string_view name = "XDG_PICTURES_DIR=";
    return std::ranges::any_of(Lines(userDirs), [name](std::string_view line) {
        line = TrimBlanks(line);
        if (!line.starts_with(name)) return false;
        return line.substr(name.size()).find_first_not_of("\" ") != std::string_view::npos;
    });
}

}  // namespace

std::filesystem::path UserDataFolder(const Environment& environment) {
    return BaseFolder(environment, "XDG_DATA_HOME", ".local/share");
}

std::filesystem::path UserStateFolder(const Environment& environment) {
    return BaseFolder(environment, "XDG_STATE_HOME", ".local/state");
}

void MakePictureFolder(const Environment& environment) {
    const auto home = AbsolutePath(environment("HOME"));
    if (home.empty()) return;
    constexpr std::size_t largestUserDirs = 1 << 20;
    const auto settings = BaseFolder(environment, "XDG_CONFIG_HOME", ".config");
    const auto userDirs = ReadFile(settings / "user-dirs.dirs", largestUserDirs);
    if (userDirs && NamesPictureFolder(AsText(*userDirs))) return;
    std::error_code failed;
    std::filesystem::create_directory(home / "Pictures", failed);
}

std::filesystem::path RecoveryFolder(const std::filesystem::path& userStateFolder) {
    return userStateFolder.empty() ? userStateFolder : userStateFolder / "coinlet-designer";
}

}  // namespace coinlet
