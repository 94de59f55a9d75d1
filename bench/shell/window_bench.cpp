// What happens in the main window, and what it costs: the ways of a pointer event from the toolkit to the
// handler, and to all widgets being equal to their controls again; filters with their progress before the
// user's eyes, painting included; and the opening of every dialog.

#include "app/application.h"
#include "core/context.h"
#include "core/main_form.h"
#include "desktop/desktop_program.h"
#include "dialogs_bench.h"
#include "shell/qt_platform.h"
#include "shell/shell.h"
#include "support/temporary_folder.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTimer>
#include <QWidget>

#include <benchmark/benchmark.h>
#include <filesystem>
#include <string>

namespace coinlet {
namespace {

/// The started program and the widget of its canvas.
struct Program {
    QtPlatform& platform;
    MainForm& main;
    QWidget& canvas;

    void Send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held, const QPointF& place) const {
        const QPointF inWindow = canvas.mapTo(canvas.window(), place);
        QMouseEvent event(type, place, inWindow, canvas.mapToGlobal(place), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&canvas, &event);
    }
    void Press(const QPointF& place) const {
        Send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, place);
    }
    void Drag(const QPointF& place) const { Send(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, place); }
    void Release(const QPointF& place) const {
        Send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton, place);
    }
};

/// A zigzag over the canvas in steps of a quick hand.
QPointF Place(int step) {
    constexpr int pitch = 7, room = 480;
    return {static_cast<double>(step * pitch % room) + 10, static_cast<double>(step * pitch / 3 % room) + 10};
}

void FreeHandMove(benchmark::State& state, const Program& program) {
    int step = 0;
    program.Press(Place(step));
    for ([[maybe_unused]] auto _ : state)
        program.Drag(Place(++step));
    program.Release(Place(step));
}

void PointerMoveWithoutPress(benchmark::State& state, const Program& program) {
    int step = 0;
    for ([[maybe_unused]] auto _ : state)
        program.Send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton, Place(++step));
}

/// The canvas is kept for Undo by the press, and copied when something is first drawn after it.
void PressWithFirstStroke(benchmark::State& state, const Program& program) {
    int step = 0;
    for ([[maybe_unused]] auto _ : state) {
        program.Press(Place(step));
        program.Drag(Place(++step));
        state.PauseTiming();
        program.Release(Place(step));
        state.ResumeTiming();
    }
}

void IdlePass(benchmark::State& state, const Program& program) {
    for ([[maybe_unused]] auto _ : state) {
        program.platform.Mirror();
        QCoreApplication::processEvents();
    }
}

/// An entry of the menu, chosen again and again. Events are served after each of 500 rows.
void FilterOnScreen(benchmark::State& state, const Program& program, int index) {
    for ([[maybe_unused]] auto _ : state)
        program.main.Filter[index].Click();
}

void Measure(const Program& program) {
    struct Case {
        const char* name;
        void (*measure)(benchmark::State& state, const Program& program);
    };
    for (const Case& each :
         {Case{"FreeHandMove", FreeHandMove}, Case{"PointerMoveWithoutPress", PointerMoveWithoutPress},
          Case{"PressWithFirstStroke", PressWithFirstStroke}, Case{"IdlePass", IdlePass}}) {
        benchmark::RegisterBenchmark(each.name, each.measure, program)->Unit(benchmark::kMicrosecond);
    }
    for (const int index : {4, 5, 8, 13, 15, 17, 26}) {
        const std::string name = "FilterOnScreen/" + program.main.Filter[index].Caption;
        benchmark::RegisterBenchmark(name.c_str(), FilterOnScreen, program, index)
            ->Unit(benchmark::kMicrosecond);
    }
    bench::RegisterDialogs(program.platform, program.main);
    benchmark::RunSpecifiedBenchmarks();
}

}  // namespace
}  // namespace coinlet

int main(int argc, char** argv) {
    using namespace coinlet;

    // No display is needed, but whoever names one gets real windows there.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    // The program writes into its folder, so it gets one that nobody uses.
    const test::TemporaryFolder folder;
    std::filesystem::copy(COINLET_DATA, folder.Path(), std::filesystem::copy_options::recursive);

    Shell shell(argc, argv);
    DesktopProgram program(shell, folder.Path());
    Application& application = program.GetApplication();
    auto& platform = dynamic_cast<QtPlatform&>(shell.GetPlatform());
    // The form is shown first; measuring begins when the program waits for its user.
    QTimer::singleShot(0, [&] {
        constexpr int freeHand = 0;
        MainForm& main = application.GetContext().main;
        main.Knop[freeHand].Click();
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* canvas = window->findChild<QWidget*>(QStringLiteral("Pic")))
                Measure({platform, main, *canvas});
        }
        QCoreApplication::exit();
    });
    return shell.Run([&] { application.Start(); }, {.isNear = [] {}, .isHere = [] {}});
}
