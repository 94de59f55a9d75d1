#include "core/settings.h"

#include "base/text.h"

#include <vector>

namespace coinlet {

namespace {

constexpr std::string_view settingsFile = "Coinlet.ini";
constexpr std::string_view banner = "Ivo Kestrell Software ® 2014";
constexpr std::string_view rule = "----------------------------";
constexpr std::size_t languageLine = 2;
constexpr std::size_t largestSettings = std::size_t{1} << 20;

}  // namespace

std::optional<std::string> ReadLanguageSetting(const fs::path& applicationFolder) {
    const auto bytes = ReadFile(applicationFolder / settingsFile, largestSettings);
    if (!bytes) return {};
    const std::vector<std::string> lines = Lines(FromCodePage(AsText(*bytes)));
    if (lines.size() <= languageLine) return {};
    const std::string& line = lines[languageLine];
    return line.substr(0, line.find(','));
}

std::error_code WriteLanguageSetting(const fs::path& applicationFolder, const std::string& languageName,
                                     FileCalls& calls) {
    std::string text;
    for (const std::string_view line : {banner, rule, std::string_view(languageName)})
        text.append(line).append("\r\n");
    return ReplaceFile(applicationFolder / settingsFile, AsBytes(ToCodePage(text)), calls);
}

}  // namespace coinlet
