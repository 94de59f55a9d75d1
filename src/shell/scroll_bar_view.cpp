#include "controls/scroll_bar.h"
#include "shell/control_view.h"
#include "shell/event_gate.h"
#include "shell/look.h"
#include "shell/views.h"

#include <QApplication>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace coinlet {

namespace {

/// The bar that the arrow keys move is tinted like a button that the Enter key presses: the style itself
/// shows no focus on scroll bars.
QPalette BarPalette(bool focused) {
    QPalette palette = QApplication::palette();
    if (focused) palette.setColor(QPalette::Button, ToQColor(focusTint));
    return palette;
}

class ScrollBarView : public ViewOf<ScrollBar> {
public:
    ScrollBarView(ScrollBar& bar, QScrollBar& widget, EventGate& gate)
        : ViewOf(bar, widget, gate, Handling::WidgetToo, Handling::Program), bar_(widget) {
        widget.setContextMenuPolicy(Qt::NoContextMenu);
        connect(&widget, &QScrollBar::sliderMoved, this, [this](int value) { Drag(value); });
        connect(&widget, &QScrollBar::sliderReleased, this, [this] { Release(); });
        connect(&widget, &QScrollBar::valueChanged, this, [this](int value) { Step(value); });
    }

    void SetByTool(int value) override {
        if (IsWithinReach()) Gate().Enter([&] { model().SetValue(value); });
    }

protected:
    void MirrorContent() override {
        const ScrollBar& bar = model();
        if (Differs(focused_, bar.HasFocus())) bar_.setPalette(BarPalette(focused_));
        const State state{
            bar.Min(),     bar.Max(), bar.Value(), std::max(1, bar.SmallChange), std::max(1, bar.LargeChange),
            bar.Reversed()};
        const QSignalBlocker silent(bar_);
        if (Differs(state_, state)) {
            // An inert bar has nowhere to go.
            bar_.setRange(bar.Lowest(), bar.Inert() ? bar.Lowest() : bar.Highest());
            bar_.setSingleStep(state.small);
            bar_.setPageStep(state.large);
        }
        // A handler may have given the bar another value than the one that the user chose, also the one that
        // it had before. The thumb then goes there when the user lets it go.
        if (!bar_.isSliderDown()) bar_.setValue(Mapped(bar.Value()));
    }

private:
    struct State {
        int min = 0, max = 0, value = 0, small = 0, large = 0;
        bool reversed = false;
        friend bool operator==(const State&, const State&) = default;
    };

    /// Between the bar's values and the widget's, which always grow to the right or down.
    int Mapped(int value) const { return state_.reversed ? state_.min + state_.max - value : value; }

    void Drag(int value) {
        if (!Shown()) return;
        Gate().Enter([&] { model().UserDrags(Mapped(value)); });
    }
    void Release() {
        if (!Shown()) return;
        Gate().Enter([&] { model().UserReleases(); });
    }
    void Step(int value) {
        if (!Shown() || bar_.isSliderDown()) return;
        Gate().Enter([&] { model().SetValue(Mapped(value)); });
    }

    QScrollBar& bar_;
    State state_;
    bool focused_ = false;
};

}  // namespace

ControlView* MakeScrollBarView(Control& control, QWidget& parent, EventGate& gate) {
    auto& bar = static_cast<ScrollBar&>(control);
    const auto orientation = bar.Orientation() == Orientation::Horizontal ? Qt::Horizontal : Qt::Vertical;
    return new ScrollBarView(bar, *new QScrollBar(orientation, &parent), gate);
}

}  // namespace coinlet
