#include "launch/user_folders.h"

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

}  // namespace

std::filesystem::path UserDataFolder(const Environment& environment) {
    return BaseFolder(environment, "XDG_DATA_HOME", ".local/share");
}

std::filesystem::path UserStateFolder(const Environment& environment) {
    return BaseFolder(environment, "XDG_STATE_HOME", ".local/state");
}

}  // namespace coinlet
