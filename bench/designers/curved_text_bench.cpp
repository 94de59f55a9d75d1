// Curved text: a press of the button that draws it, in the letters of the real program.

#include "designers/circel_text.h"
#include "media/qt_font_engine.h"
#include "start_toolkit.h"
#include "support/world.h"

#include <benchmark/benchmark.h>
#include <string>

namespace coinlet {
namespace {

/// Size of the letters in points, and whether only their outlines are drawn.
void DrawCurvedText(benchmark::State& state) {
    bench::StartToolkit();
    test::World world;
    QtFontEngine letters;
    const Services services{world.folder / "app", world.platform, letters,
                            world.codecs,         world.clock,    world.desktop,
                            world.clipboard,      world.printer,  world.screenGrab};
    Context context{services, world.session, world.main, world.plaatjes};
    CircelText form(context);
    form.Form_Load();
    form.Text1.SetText("The quick brown fox jumps over 12345 dogs");
    form.Combo1.SetText("0");
    form.Combo3.SetText(std::to_string(state.range(0)));
    form.Check5.SetValue(state.range(1) != 0);
    for ([[maybe_unused]] auto run : state)
        form.DrawKnop.Click();
}
BENCHMARK(DrawCurvedText)
    ->ArgNames({"points", "open"})
    ->ArgsProduct({{30, 120, 9999}, {0, 1}})
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace coinlet
