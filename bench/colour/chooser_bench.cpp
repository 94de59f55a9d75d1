// The chooser over a table as long as the one that the program comes with: how quickly it follows its slider
// and a typed code.

#include "colour/pms_form.h"
#include "colour/pms_table.h"
#include "support/world.h"

#include <benchmark/benchmark.h>
#include <functional>
#include <string>

namespace coinlet {
namespace {

constexpr int tableLength = 1772;

std::string CodeOf(int line) {
    return std::to_string(100 + line);
}

class ChooserWorld : public test::World {
public:
    ChooserWorld() {
        std::string table;
        for (int i = 0; i < tableLength; ++i)
            table += CodeOf(i) + ",12,34,56,78," + std::to_string(i % 256) + "," + std::to_string(i / 256) +
                     ",97,000061\r\n";
        fs::create_directories(folder / "app/Data");
        folder.Write("app/Data/PMS-Colors.txt", table);
        LoadPmsColors(context);
    }

    void Open(const std::function<void(PMSForm&)>& doing) {
        PMSForm chooser(context);
        platform.doings.emplace_back([&] {
            doing(chooser);
            chooser.Unload();
        });
        platform.ShowModal(chooser);
    }
};

void OpenTheChooser(benchmark::State& state) {
    ChooserWorld world;
    for ([[maybe_unused]] auto run : state)
        world.Open([](const PMSForm& chooser) { benchmark::DoNotOptimize(chooser.Combo1.ListCount()); });
}
BENCHMARK(OpenTheChooser)->Unit(benchmark::kMicrosecond);

void StepThroughTheTable(benchmark::State& state) {
    ChooserWorld world;
    world.Open([&](PMSForm& chooser) {
        int line = 0;
        for ([[maybe_unused]] auto run : state)
            chooser.HScroll1.SetValue(line = (line + 1) % tableLength);
    });
}
BENCHMARK(StepThroughTheTable)->Unit(benchmark::kMicrosecond);

/// The last code of the table, and in turn the one before: each is searched for from the top.
void TypeACode(benchmark::State& state) {
    ChooserWorld world;
    world.Open([&](PMSForm& chooser) {
        int back = 1;
        for ([[maybe_unused]] auto run : state) {
            chooser.Combo1.UserEdits(CodeOf(tableLength - back));
            back = 3 - back;
        }
        if (chooser.HScroll1.Value() < tableLength - 2) state.SkipWithError("the code wasn't found");
    });
}
BENCHMARK(TypeACode)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace coinlet
