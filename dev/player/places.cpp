#include "player/places.h"

#include "base/files.h"

#include <algorithm>
#include <optional>

namespace coinlet::player {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view outMark = "@out";

bool IsSeparator(char letter) {
    return letter == '/' || letter == '\\';
}

/// What stands behind `folder` in `text`, separators in front left out; nothing if it doesn't begin with it.
std::optional<std::string> Behind(std::string_view folder, std::string_view text) {
    if (!text.starts_with(folder)) return std::nullopt;
    text.remove_prefix(folder.size());
    if (!text.empty() && !IsSeparator(text.front())) return std::nullopt;
    const auto first = std::ranges::find_if_not(text, IsSeparator);
    std::string rest(first, text.end());
    std::ranges::replace(rest, '\\', '/');
    return rest;
}

/// An existing folder's own path: absolute, without links and without a separator at its end.
fs::path OwnPath(const fs::path& folder) {
    std::error_code error;
    const fs::path canonical = fs::canonical(folder, error);
    return error ? fs::absolute(folder).lexically_normal() : canonical;
}

}  // namespace

Places::Places(const fs::path& application, const fs::path& out, const fs::path& script)
    : application_(OwnPath(application)), out_(OwnPath(out)), script_(OwnPath(script)) {}

fs::path Places::Beneath(const fs::path& folder, const std::string& text) const {
    const auto inOut = Behind(outMark, text);
    const fs::path path = (inOut ? out_ / *inOut : folder / text).lexically_normal();
    return path.has_filename() ? path : path.parent_path();
}

fs::path Places::Found(const std::string& text) const {
    const fs::path inFolder = Resolve(text), beside = BesideScript(text);
    return !FileExists(inFolder) && FileExists(beside) ? beside : inFolder;
}

std::string Places::Shown(const std::string& text) const {
    if (auto rest = Behind(application_.string(), text)) return *std::move(rest);
    if (const auto rest = Behind(out_.string(), text))
        return rest->empty() ? std::string(outMark) : std::string(outMark) + "/" + *rest;
    return text;
}

std::string Places::ShownExpected(const std::string& text) const {
    const auto inOut = Behind(outMark, text);
    return Shown(inOut ? (out_ / *inOut).string() : text);
}

}  // namespace coinlet::player
