// Fonts: what is printed with one stays within its room, straight or turned, and a renamed copy is as long as
// the file was, a few bytes of names aside.
#include "fuzz/targets/targets.h"
#include "fuzz/toolkit.h"
#include "media/font_family.h"
#include "media/qt_font_engine.h"
#include "support/symbol_font.h"
#include "support/temporary_folder.h"

#include <QFontDatabase>

#include <algorithm>
#include <memory>
#include <utility>

namespace coinlet::test {
namespace {

using File = std::span<const std::uint8_t>;

std::string FaultOfRenamed(File file) {
    constexpr std::string_view name = "Another Name";
    constexpr std::size_t namesAndPadding = 256;
    const auto renamed = InFamily(file, name);
    if (!renamed) return "";
    if (renamed->size() < file.size()) return "renamed, it is shorter than it was";
    if (renamed->size() > file.size() + namesAndPadding) return "renamed, it is much longer than it was";
    const auto twice = InFamily(*renamed, name);
    return twice && twice->size() <= renamed->size() + namesAndPadding ? "" : "it can't be renamed twice";
}

std::string FaultOfMask(const TextMask& mask) {
    if (mask.width < 0 || mask.height < 0) return "a mask of negative size";
    const auto pixels = static_cast<std::size_t>(mask.width) * static_cast<std::size_t>(mask.height);
    return mask.coverage.size() == pixels ? "" : "a mask of another size than it says";
}

/// Adds the fonts to an engine, as "Show" does, and prints with each.
class Printer {
public:
    Printer() { StartToolkit(); }

    Outcome Print(File file) {
        Forget();
        if (std::string wrong = FaultOfRenamed(file); !wrong.empty()) return {true, std::move(wrong)};
        const auto* const text = reinterpret_cast<const char*>(file.data());
        const auto path = folder_.Write("font.ttf", std::string_view(text, file.size()));
        const std::string family = fonts_->AddFontFile(path);
        if (family.empty()) return {};
        if (fonts_->AddFontFile(path) != family) return {true, "added again, it has another name"};
        if (fonts_->KnownAs("Another Name") != "Another Name") return {true, "it has another name, too"};
        if (!Lists(family)) return {true, "the list of fonts hasn't got it"};
        return {true, FaultOfPrints(family)};
    }

private:
    /// The list is long, and every font adds to it: only some fonts are looked for.
    bool Lists(const std::string& family) const {
        constexpr std::size_t often = 16;
        if (files_ % often != 1) return true;
        const auto families = fonts_->Families();
        return std::ranges::find(families, family) != families.end();
    }

    std::string FaultOfPrints(const std::string& family) const {
        struct Way {
            double size;
            Edges edges;
            double angle;
        };
        constexpr Way ways[] = {{10, Edges::Crisp, 0}, {150, Edges::Crisp, 0}, {24, Edges::Smooth, 33}};
        constexpr std::string_view text = "!Aq~";
        constexpr TextWindow surface{-200, -200, 800, 600};
        for (const Way& way : ways) {
            const FontSpec font{.name = family, .size = way.size};
            const TextExtent extent = fonts_->Measure(font, text);
            if (extent.height < 0 || extent.width < 0) return "a line of negative size";
            std::string wrong = FaultOfMask(fonts_->RenderSeen(font, text, way.edges, way.angle, surface));
            if (!wrong.empty()) return wrong;
        }
        return "";
    }

    /// The toolkit keeps what it was once given: now and then it starts anew, or a long run would fill the
    /// memory.
    void Forget() {
        constexpr std::size_t mostFonts = 1000;
        if (++files_ % mostFonts != 0) return;
        fonts_ = std::make_unique<QtFontEngine>();
        QFontDatabase::removeAllApplicationFonts();
    }

    TemporaryFolder folder_;
    std::unique_ptr<QtFontEngine> fonts_ = std::make_unique<QtFontEngine>();
    std::size_t files_ = 0;
};

}  // namespace

Reader FontReader() {
    // The toolkit takes its time with each.
    constexpr std::size_t slow = 10;
    return {"font",
            {SymbolFont("Coinlet Fuzz"), SymbolFont("X"), SymbolFont(std::string(60, 'y'))},
            [printer = std::make_shared<Printer>()](File file) { return printer->Print(file); },
            slow};
}

}  // namespace coinlet::test
