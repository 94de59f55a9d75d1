#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

/// A family of fonts as the toolkit knows it.
struct FontFamily {
    std::string known;
    bool ofFile = false;  ///< It was added, and has no letters but its own.
};

/// Fonts that the program adds to those of the desktop. The toolkit gets each under a name that no other font
/// has, so that the name that the file gives it can stand for any of them, and for an installed one before.
class AddedFonts {
public:
    /// Adds the font of a file. Returns the name of its family, which from now on stands for this font; an
    /// empty text if the file is no font. A file of the same content isn't added again.
    std::string Add(const std::filesystem::path& file);

    /// What the toolkit is to be asked for under a name, without regard to case.
    FontFamily Find(std::string_view name) const;
    /// The names that were added.
    std::vector<std::string> Names() const;
    /// Grows whenever a name stands for another font than before.
    std::uint64_t Revision() const { return revision_; }

private:
    struct Font {
        std::string name;   ///< As its file has it.
        std::string known;  ///< As the toolkit knows it.
        friend bool operator==(const Font&, const Font&) = default;
    };

    /// The font of a file with this content and fingerprint; its names are empty if it is none.
    static Font Load(std::span<const std::uint8_t> content, const std::string& fingerprint);

    std::map<std::string, Font> fonts_;    ///< By the fingerprints of their files.
    std::map<std::string, Font> current_;  ///< By their names in lower case.
    std::uint64_t revision_ = 0;
};

}  // namespace coinlet
