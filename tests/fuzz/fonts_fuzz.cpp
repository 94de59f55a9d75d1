// Fonts that are damaged or hostile: none crashes the program, and what is printed with one stays within its
// room.
#include "fuzz/harness.h"
#include "media/font_family.h"
#include "media/qt_font_engine.h"
#include "support/symbol_font.h"
#include "support/temporary_folder.h"

#include <QGuiApplication>

namespace coinlet::test {
namespace {

void BeSilent(QtMsgType, const QMessageLogContext&, const QString&) {}

/// Renamed, a font is as long as it was, a few bytes of names aside.
Outcome Renamed(std::span<const std::uint8_t> file) {
    constexpr std::string_view name = "Another Name";
    const auto renamed = InFamily(file, name);
    if (!renamed) return {};
    if (renamed->size() < file.size()) return {true, "shorter than it was"};
    if (renamed->size() > file.size() + 256) return {true, "much longer than it was"};
    return {true, ""};
}

/// Adds the fonts to an engine, as "Show" does, and prints with each.
class Printer {
public:
    Outcome Print(std::span<const std::uint8_t> file) {
        const auto* const text = reinterpret_cast<const char*>(file.data());
        const auto path = folder_.Write("font.ttf", std::string_view(text, file.size()));
        const std::string family = fonts_.AddFontFile(path);
        if (family.empty()) return {};
        for (const double size : {10.0, 150.0}) {
            const FontSpec font{.name = family, .size = size};
            const TextMask mask = fonts_.Render(font, "!Aq~", Edges::Crisp);
            const auto pixels = static_cast<std::size_t>(mask.width) * static_cast<std::size_t>(mask.height);
            if (mask.coverage.size() != pixels) return {true, "a mask of another size than it says"};
            if (fonts_.Measure(font, "!Aq~").height < 0) return {true, "a line of negative height"};
        }
        return {true, ""};
    }

private:
    TemporaryFolder folder_;
    QtFontEngine fonts_;
};

}  // namespace
}  // namespace coinlet::test

int main(int argc, char** argv) {
    using namespace coinlet;
    qInstallMessageHandler(test::BeSilent);  // The toolkit tells of each letter that it can't load.
    const QGuiApplication toolkit(argc, argv);
    const std::vector<Bytes> fonts{test::SymbolFont("Coinlet Fuzz"), test::SymbolFont("X"),
                                   test::SymbolFont(std::string(60, 'y'))};
    test::Printer printer;
    using File = std::span<const std::uint8_t>;
    // The toolkit keeps what it was once given, so a long run takes a few kilobytes a font.
    constexpr std::size_t slow = 10;
    const std::vector<test::Reader> readers{
        {"font's name", fonts, [](File file) { return test::Renamed(file); }},
        {"font", fonts, [&](File file) { return printer.Print(file); }, slow}};
    constexpr std::size_t usualRounds = 15000;
    return test::Fuzz(readers, usualRounds, argc, argv);
}
