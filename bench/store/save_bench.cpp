// Saving a design over itself, 700 by 500 pixels with an info text, from the dialog's opening to its end. The
// pauses in which the user watches the bar take no time here.

#include "store/save_form.h"
#include "support/world.h"

#include <benchmark/benchmark.h>

namespace coinlet {
namespace {

void SaveADesignOverItself(benchmark::State& state) {
    test::World world;
    world.main.Pic.surface.Line(100, 100, 400, 400, RGB(200, 30, 40), Box::Filled);
    world.SetRows({"Club tag, 25 mm", "brass"});
    world.session.SaveMode = "BMP";
    for ([[maybe_unused]] auto run : state) {
        SaveForm dialog(world.context);
        world.platform.answers.assign(1, Answer::Yes);
        world.platform.doings.emplace_back([&] {
            dialog.Text1.SetText("coin");
            dialog.SaveKnop.PointerClicked();
        });
        world.platform.ShowModal(dialog);
    }
    if (!FileExists(world.folder / "app/Ontwerpen/coin.txt")) state.SkipWithError("nothing was saved");
}
BENCHMARK(SaveADesignOverItself)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace coinlet
