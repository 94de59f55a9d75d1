// The dialog over a full store: how long the user waits for it, for a preview, and for a design.

#include "store/open_file.h"
#include "support/world.h"

#include <benchmark/benchmark.h>
#include <functional>
#include <stdexcept>
#include <string>

namespace coinlet {
namespace {

/// A store of so many designs, all of them links to one picture.
class FullStore : public test::World {
public:
    explicit FullStore(std::int64_t designs) {
        const fs::path picture = folder / "picture.bmp";
        if (SavePicture(Image(Bitmap(700, 500, ToPixel(RGB(200, 30, 40)))), picture))
            throw std::runtime_error("can't write a picture");
        for (std::int64_t i = 0; i < designs; ++i)
            fs::create_hard_link(picture,
                                 folder / "app/Ontwerpen" / ("My design " + std::to_string(i) + ".pat"));
    }

    void Open(const std::function<void(OpenFile&)>& doing) {
        OpenFile dialog(context);
        platform.doings.emplace_back([&] {
            doing(dialog);
            dialog.Unload();
        });
        platform.ShowModal(dialog);
    }
};

void OpenTheDialog(benchmark::State& state) {
    FullStore store(state.range(0));
    for (auto _ : state)
        store.Open([](const OpenFile& dialog) { benchmark::DoNotOptimize(dialog.List1.ListCount()); });
}
BENCHMARK(OpenTheDialog)->ArgName("designs")->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);

void PreviewADesign(benchmark::State& state) {
    FullStore store(10);
    store.Open([&](OpenFile& dialog) {
        for (auto _ : state)
            dialog.List1.UserPicks(0);
    });
}
BENCHMARK(PreviewADesign)->Unit(benchmark::kMillisecond);

void OpenADesign(benchmark::State& state) {
    FullStore store(10);
    for (auto _ : state) {
        store.Open([](OpenFile& dialog) {
            dialog.List1.UserPicks(0);
            dialog.OkKnop.Click();
        });
    }
}
BENCHMARK(OpenADesign)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace coinlet
