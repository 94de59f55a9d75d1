#pragma once

#include "base/font.h"
#include "media/added_fonts.h"
#include "media/recent.h"

#include <cstddef>
#include <memory>

namespace coinlet {

/// Fonts of the desktop, drawn by Qt. Needs a QGuiApplication, and is used by its thread alone.
/// Buttons and labels print the same captions again and again, so the latest masks and measures are kept.
class QtFontEngine final : public FontEngine {
public:
    TextExtent Measure(const FontSpec& font, std::string_view text) const override;
    TextMask Render(const FontSpec& font, std::string_view text, Edges edges,
                    double angle = 0) const override;
    std::vector<std::string> Families() const override;
    std::string AddFontFile(const std::filesystem::path& file) override;
    const FontEngine& Installed() const override;
    std::string KnownAs(std::string_view name) const override { return added_.Find(name).known; }

private:
    struct Printed {
        FontSpec font;
        std::string text;
        Edges edges = Edges::Crisp;
        double angle = 0;

        friend bool operator==(const Printed&, const Printed&) = default;
    };
    struct PrintedHash {
        std::size_t operator()(const Printed& key) const;
    };

    static constexpr std::size_t kept = 256;
    mutable Recent<Printed, TextExtent, PrintedHash> extents_{kept};
    mutable Recent<Printed, TextMask, PrintedHash> masks_{kept};
    AddedFonts added_;
    mutable std::unique_ptr<QtFontEngine> installed_;
};

}  // namespace coinlet
