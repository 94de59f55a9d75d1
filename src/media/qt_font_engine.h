#pragma once

#include "base/font.h"
#include "media/added_fonts.h"
#include "media/recent.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace coinlet {

class IntricateLetters;

/// Fonts of the desktop, drawn by Qt. Needs a QGuiApplication, and is used by its thread alone.
/// Buttons and labels print the same captions again and again, so the latest masks and measures are kept; of
/// large texts only the last mask, since outlines and shadows print one text many times.
class QtFontEngine final : public FontEngine {
public:
    QtFontEngine();
    ~QtFontEngine() override;
    QtFontEngine(const QtFontEngine&) = delete;
    QtFontEngine& operator=(const QtFontEngine&) = delete;

    TextExtent Measure(const FontSpec& font, std::string_view text) const override;
    TextMask Render(const FontSpec& font, std::string_view text, Edges edges,
                    double angle = 0) const override;
    TextMask RenderSeen(const FontSpec& font, std::string_view text, Edges edges, double angle,
                        const TextWindow& window) const override;
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

    /// A mask that is too large to be kept among the many, and where it may have ink.
    struct LargeMask {
        Printed key;
        TextWindow part;
        TextMask mask;
    };

    static constexpr std::size_t kept = 256;
    mutable Recent<Printed, TextExtent, PrintedHash> extents_{kept};
    mutable Recent<Printed, TextMask, PrintedHash> masks_{kept};
    mutable std::optional<LargeMask> large_;
    std::unique_ptr<IntricateLetters> intricate_;
    AddedFonts added_;
    mutable std::unique_ptr<QtFontEngine> installed_;
};

}  // namespace coinlet
