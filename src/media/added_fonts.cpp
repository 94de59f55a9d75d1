#include "media/added_fonts.h"

#include "base/files.h"
#include "base/text.h"
#include "media/font_family.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QFontDatabase>
#include <QRawFont>

namespace coinlet {

namespace {

QByteArray ToQByteArray(std::span<const std::uint8_t> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

std::string Fingerprint(std::span<const std::uint8_t> bytes) {
    return QCryptographicHash::hash(ToQByteArray(bytes), QCryptographicHash::Sha1).toHex().toStdString();
}

/// Families whose names begin with a point are in no list of fonts.
std::string HiddenName(const std::string& fingerprint) {
    return ".file-" + fingerprint;
}

}  // namespace

AddedFonts::Font AddedFonts::Load(std::span<const std::uint8_t> content, const std::string& fingerprint) {
    constexpr double anySize = 16;
    const QString name = QRawFont(ToQByteArray(content), anySize).familyName();
    if (name.isEmpty()) return {};
    const auto hidden = InFamily(content, HiddenName(fingerprint));
    // Packed fonts and collections keep the name that they have.
    const int id = QFontDatabase::addApplicationFontFromData(
        ToQByteArray(hidden ? std::span<const std::uint8_t>(*hidden) : content));
    const QStringList known = QFontDatabase::applicationFontFamilies(id);
    return known.isEmpty() ? Font() : Font{name.toStdString(), known.front().toStdString()};
}

std::string AddedFonts::Add(const std::filesystem::path& file) {
    // Read here and not by the toolkit, which would wait for the other end of a pipe.
    constexpr std::size_t largestFont = std::size_t{128} << 20;
    const auto content = ReadFile(file, largestFont);
    if (!content) return {};
    const std::string fingerprint = Fingerprint(*content);
    if (!fonts_.contains(fingerprint)) {
        const Font loaded = Load(*content, fingerprint);
        if (loaded.known.empty()) return {};
        fonts_[fingerprint] = loaded;
    }
    const Font& font = fonts_[fingerprint];
    Font& current = current_[LowerCase(font.name)];
    if (current != font) {
        current = font;
        ++revision_;
    }
    return font.name;
}

FontFamily AddedFonts::Find(std::string_view name) const {
    const auto found = current_.find(LowerCase(name));
    if (found != current_.end()) return {found->second.known, true};
    return {std::string(name), false};
}

std::vector<std::string> AddedFonts::Names() const {
    std::vector<std::string> names;
    for (const auto& [key, font] : current_)
        names.push_back(font.name);
    return names;
}

}  // namespace coinlet
