// The arc designer under the pointer: what one move costs while a curve is dragged, an arc is stretched, or a
// circle follows. With the letters of the real program.

#include "designers/arc_form.h"
#include "media/qt_font_engine.h"
#include "start_toolkit.h"
#include "support/world.h"

#include <benchmark/benchmark.h>

namespace coinlet {
namespace {

constexpr int arcMode = 0, triangleMode = 1, curveMode = 3, polygonMode = 4;

class OpenDesigner : public test::World {
public:
    explicit OpenDesigner(int mode) {
        bench::StartToolkit();
        form.Form_Load();
        form.Option1[mode].SetValue(true);
    }
    void Move(int button, int x, int y) {
        form.Pic.MouseMove(button, 0, static_cast<float>(x), static_cast<float>(y));
    }
    void Press(int x, int y) {
        Move(0, x, y);
        form.Pic.MouseDown(leftButton, 0, static_cast<float>(x), static_cast<float>(y));
    }
    void Release(int x, int y) {
        form.Pic.MouseUp(leftButton, 0, static_cast<float>(x), static_cast<float>(y));
    }

    QtFontEngine letters;
    Services letterServices{folder / "app", platform,  letters, codecs,    clock,
                            desktop,        clipboard, printer, screenGrab};
    Context letterContext{letterServices, session, main, plaatjes};
    ArcForm form{letterContext};
};

/// Moves around a circle of so many places.
void MoveAbout(benchmark::State& state, OpenDesigner& designer, int button) {
    int step = 0;
    for ([[maybe_unused]] auto run : state) {
        designer.Move(button, 150 + step % 200, 120 + step * 7 % 200);
        ++step;
    }
}

/// Points, pen width, whether they are joined.
void DragPointOfCurve(benchmark::State& state) {
    OpenDesigner designer(curveMode);
    designer.form.HScroll1.SetValue(static_cast<int>(state.range(1)));
    for (int i = 0; i < state.range(0); ++i) {
        designer.Press(20 + 23 * (i % 20), 30 + 70 * (i / 20) + 29 * i % 60);
        designer.Release(0, 0);
    }
    designer.form.Curves.Check4.SetValue(state.range(2) == 0);
    designer.Press(20, 30);
    MoveAbout(state, designer, leftButton);
}
BENCHMARK(DragPointOfCurve)
    ->ArgNames({"points", "pen", "joined"})
    ->Args({3, 2, 1})
    ->Args({20, 1, 1})
    ->Args({20, 2, 1})
    ->Args({20, 10, 0})
    ->Args({101, 1, 1})
    ->Args({101, 2, 1})
    ->Args({101, 2, 0})
    ->Args({101, 10, 1})
    ->Unit(benchmark::kMicrosecond);

/// The rest of adding a point, over a drag, is the weights of the new degree.
void AddPointToCurve(benchmark::State& state) {
    OpenDesigner designer(curveMode);
    for ([[maybe_unused]] auto run : state) {
        state.PauseTiming();
        designer.form.Curves.DrawKnop.Click();
        designer.form.ResetKnop.Click();
        for (int i = 0; i < state.range(0) - 1; ++i)
            designer.form.Pic.MouseDown(rightButton, 0, static_cast<float>(20 + 4 * i), 250);
        state.ResumeTiming();
        designer.form.Pic.MouseDown(rightButton, 0, 490, 300);
    }
}
BENCHMARK(AddPointToCurve)
    ->ArgName("points")
    ->Arg(20)
    ->Arg(101)
    ->Iterations(50)
    ->Unit(benchmark::kMicrosecond);

void StretchArc(benchmark::State& state) {
    OpenDesigner designer(arcMode);
    designer.form.HScroll1.SetValue(static_cast<int>(state.range(0)));
    designer.Press(250, 250);
    designer.Press(450, 250);
    MoveAbout(state, designer, 0);
}
BENCHMARK(StretchArc)->ArgName("pen")->Arg(2)->Arg(10)->Unit(benchmark::kMicrosecond);

void DragTriangle(benchmark::State& state) {
    OpenDesigner designer(triangleMode);
    designer.Press(20, 20);
    MoveAbout(state, designer, leftButton);
}
BENCHMARK(DragTriangle)->Unit(benchmark::kMicrosecond);

void CircleFollowsPointer(benchmark::State& state) {
    OpenDesigner designer(polygonMode);
    MoveAbout(state, designer, 0);
}
BENCHMARK(CircleFollowsPointer)->Unit(benchmark::kMicrosecond);

void PutDownFilledPolygon(benchmark::State& state) {
    OpenDesigner designer(polygonMode);
    designer.form.Polygons.Combo1.SetText("20");
    designer.form.Polygons.Combo2.SetText("200");
    for ([[maybe_unused]] auto run : state) {
        designer.form.Pic.MouseDown(rightButton, 0, 250, 250);
        state.PauseTiming();
        designer.form.ResetKnop.Click();
        state.ResumeTiming();
    }
}
BENCHMARK(PutDownFilledPolygon)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace coinlet
