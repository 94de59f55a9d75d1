#include "dialogs_bench.h"

#include "app/dialogs.h"
#include "core/main_form.h"
#include "shell/form_window.h"
#include "shell/qt_platform.h"
#include "shell/qt_text.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QMouseEvent>
#include <QTimer>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <limits>
#include <string>
#include <string_view>
#include <variant>

namespace coinlet::bench {

namespace {

/// Does what the user does for a dialog, and returns when it has closed.
class Opener {
public:
    Opener(const QtPlatform& platform, MainForm& main) : window_(*platform.WindowOf(main)), main_(main) {}

    void operator()(MenuItem MainForm::*entry) const {
        const MenuItem& item = main_.*entry;
        MenuItem& menu = *item.Parent();
        const auto place = std::ranges::find(menu.Entries(), &item) - menu.Entries().begin();
        window_.PopupOf(menu)->actions().at(place)->trigger();
    }
    void operator()(ToolButton button) const { Click(main_.Knop[button.number]); }
    void operator()(FillColourField) const { Click(main_.ColorLabel); }

private:
    void Click(const Control& control) const {
        QWidget& widget = window_.ViewOf(control)->Widget();
        const QPointF place = QRectF(widget.rect()).center();
        const auto send = [&](QEvent::Type type, Qt::MouseButtons held) {
            QMouseEvent event(type, place, widget.mapTo(&window_, place), widget.mapToGlobal(place),
                              Qt::LeftButton, held, Qt::NoModifier);
            QCoreApplication::sendEvent(&widget, &event);
        };
        send(QEvent::MouseButtonPress, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, Qt::NoButton);
    }

    FormWindow& window_;
    MainForm& main_;
};

/// Looks at the window of a dialog from the click on, and closes it when it stands still.
class DialogWatch : public QObject {
public:
    explicit DialogWatch(std::string_view form) : form_(ToQString(form)) {
        qApp->installEventFilter(this);
        QObject::connect(&idle_, &QTimer::timeout, this, [this] { Look(); });
        idle_.start(1);
        clock_.start();
    }

    /// From the click until the last change, or 0 if the dialog didn't come or never stood still.
    double Seconds() const { return static_cast<double>(complete_) * 1e-9; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->isWidgetType() &&
            static_cast<QWidget*>(watched)->window()->objectName() == form_)
            painted_ = true;
        return false;
    }

private:
    /// Comes every millisecond, but only when all else is done.
    void Look() {
        constexpr qint64 stillFor = 150'000'000, longest = 3'000'000'000;  // nanoseconds
        const qint64 now = clock_.nsecsElapsed();
        if (painted_) last_ = now;
        painted_ = false;
        const bool still = last_ != 0 && now - last_ >= stillFor;
        if (!still && now < longest) return;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (!window->isVisible() || window->objectName() != form_) continue;
            if (still) complete_ = last_;
            window->close();
            return;
        }
        // Something else came in its place.
        if (QWidget* other = QApplication::activeModalWidget()) other->close();
    }

    QString form_;
    QTimer idle_;
    QElapsedTimer clock_;
    bool painted_ = false;
    qint64 last_ = 0, complete_ = 0;
};

void OpenDialog(benchmark::State& state, const QtPlatform& platform, MainForm& main, const DialogRow& row) {
    const Opener open(platform, main);
    double first = 0, shortest = std::numeric_limits<double>::max(), longest = 0;
    for ([[maybe_unused]] auto _ : state) {
        const DialogWatch watch(row.form);
        std::visit(open, row.opener);
        if (watch.Seconds() == 0) return state.SkipWithError("it doesn't come, or never stands still");
        state.SetIterationTime(watch.Seconds());
        if (first == 0) first = watch.Seconds();
        shortest = std::min(shortest, watch.Seconds());
        longest = std::max(longest, watch.Seconds());
    }
    state.counters["first_ms"] = first * 1e3;
    state.counters["shortest_ms"] = shortest * 1e3;
    state.counters["longest_ms"] = longest * 1e3;
}

}  // namespace

void RegisterDialogs(QtPlatform& platform, MainForm& main) {
    QApplication::setCursorFlashTime(0);
    for (const DialogRow& row : Dialogs()) {
        std::string name = "OpenDialog/" + std::string(row.form);
        if (const auto* entry = std::get_if<MenuItem MainForm::*>(&row.opener))
            name += "/" + std::string((main.**entry).Name());
        benchmark::RegisterBenchmark(
            name.c_str(),
            [&platform, &main, &row](benchmark::State& state) { OpenDialog(state, platform, main, row); })
            ->Iterations(8)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
}

}  // namespace coinlet::bench
