// The dialogs of cliparts and symbols with what comes with the program: how long the user waits for them.

#include "libraries/clipart_form.h"
#include "libraries/symbol_form.h"
#include "media/media_codecs.h"
#include "media/qt_font_engine.h"
#include "support/world.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>
#include <functional>
#include <string>

namespace coinlet {
namespace {

const fs::path data = COINLET_DATA;

/// The dialogs' world with real letters and pictures.
class Libraries : public test::World {
public:
    template <class Dialog>
    void Open(const std::function<void(Dialog&)>& doing) {
        Dialog dialog(real_);
        platform.doings.emplace_back([&] {
            doing(dialog);
            dialog.Unload();
        });
        platform.ShowModal(dialog);
    }

private:
    QtFontEngine letters_;
    MediaCodecs pictures_;
    Services services_{folder / "app", platform,  letters_, pictures_, clock,
                       desktop,        clipboard, printer,  screenGrab};
    Context real_{services_, session, main, plaatjes};
};

void OpenCliparts(benchmark::State& state) {
    Libraries world;
    fs::create_directory(world.folder / "app/Cliparts");
    const fs::path sheet = data / "Cliparts" / ListFiles(data / "Cliparts", "*.art").front();
    fs::copy_file(sheet, world.folder / "sheet");
    for (std::int64_t i = 0; i < state.range(0); ++i)
        fs::create_hard_link(world.folder / "sheet",
                             world.folder / "app/Cliparts" / ("Sheet " + std::to_string(i) + ".art"));
    for (auto _ : state)
        world.Open<ClipartForm>(
            [](const ClipartForm& form) { benchmark::DoNotOptimize(form.Combo1.ListCount()); });
}
BENCHMARK(OpenCliparts)->ArgName("sheets")->Arg(500)->Unit(benchmark::kMillisecond);

/// The size that makes the longest strip.
constexpr const char* largestSize = "150";

void LinkFonts(const Libraries& world) {
    fs::create_directory_symlink(data / "Fonts", world.folder / "app/Fonts");
}

/// Every font in turns, so that each is another one than the one before.
void ShowSymbols(benchmark::State& state) {
    Libraries world;
    LinkFonts(world);
    world.Open<SymbolForm>([&](SymbolForm& form) {
        form.Combo2.SetText(largestSize);
        int row = 0;
        for (auto _ : state) {
            form.Combo1.SetListIndex(row);
            form.InstalKnop.Click();
            row = (row + 1) % form.Combo1.ListCount();
        }
    });
}
BENCHMARK(ShowSymbols)->Unit(benchmark::kMillisecond);

void ScrollSymbols(benchmark::State& state) {
    Libraries world;
    LinkFonts(world);
    world.Open<SymbolForm>([&](SymbolForm& form) {
        form.Combo2.SetText(largestSize);
        form.InstalKnop.Click();
        int column = 0;
        for (auto _ : state) {
            form.HScroll1.SetValue(column);
            column = column < form.HScroll1.Max() ? column + 1 : 0;
        }
    });
}
BENCHMARK(ScrollSymbols)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace coinlet

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication toolkit(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
