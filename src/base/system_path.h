#pragma once

#include <filesystem>

namespace coinlet {

/// The operating system reads a path up to its first zero byte: one that holds such a byte would lead to
/// another file than its name says. False for those and for the empty path.
inline bool IsSystemPath(const std::filesystem::path& path) {
    return !path.empty() && path.native().find('\0') == std::string::npos;
}

}  // namespace coinlet
