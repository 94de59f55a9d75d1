#include "shell/control_view.h"

#include "base/numbers.h"
#include "base/text.h"
#include "controls/form.h"
#include "controls/platform.h"
#include "shell/event_gate.h"
#include "shell/key_events.h"
#include "shell/look.h"
#include "shell/qt_text.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace coinlet {

namespace {

/// Left is 1, right 2, middle 4, as the toolkit counts them too; what further buttons there are goes on so.
int ButtonNumber(Qt::MouseButton button) {
    return static_cast<int>(button);
}

/// Of several buttons the first one in that order.
int HeldButton(Qt::MouseButtons buttons) {
    const auto bits = static_cast<unsigned>(buttons.toInt());
    return static_cast<int>(bits & (0U - bits));
}

}  // namespace

ControlView::ControlView(Control& control, QWidget& widget, EventGate& gate, Handling pointer, Handling keys)
    : QObject(&widget),
      control_(&control),
      widget_(&widget),
      gate_(gate),
      pointer_(pointer),
      keys_(keys),
      kind_(control.Kind()),
      name_(control.Name()),
      index_(control.Index()) {
    widget.hide();
    widget.setObjectName(ToQString(control.Name()));
    // The form says where the focus goes, by a press or by the tab key; a widget follows.
    widget.setFocusPolicy(Qt::TabFocus);
    Watch(widget);
}

void ControlView::Watch(QWidget& part) {
    // What the user does to a disabled control isn't meant for what lies behind it.
    part.setAttribute(Qt::WA_NoMousePropagation);
    part.setMouseTracking(true);
    part.installEventFilter(this);
}

void ControlView::Mirror() {
    MirrorContent();
    MirrorPlace();
    if (Differs(enabled_, control_->Enabled())) widget_->setEnabled(enabled_);
    if (Differs(toolTip_, control_->ToolTipText)) {
        widget_->setToolTip(ToQString(toolTip_));
        UpdateAccessibleName();
    }
    if (Differs(mousePointer_, control_->MousePointer)) {
        if (const auto shape = PointerShape(mousePointer_)) {
            widget_->setCursor(*shape);
        } else {
            widget_->unsetCursor();
        }
    }
    if (Differs(visible_, control_->Visible)) widget_->setVisible(visible_);
}

void ControlView::MirrorPlace() {
    const bool stale = SizeIsStale();
    const Place place{control_->Left(), control_->Top(), stale ? control_->Width() : place_.width,
                      stale ? control_->Height() : place_.height, control_->Parent().ChildUnitsPerPixel()};
    if (!Differs(place_, place)) return;
    const int frames = 2 * FrameWidth();
    widget_->setGeometry(RoundHalfEven(place.left / place.unit), RoundHalfEven(place.top / place.unit),
                         std::max(0, control_->PixelWidth()) + frames,
                         std::max(0, control_->PixelHeight()) + frames);
}

void ControlView::Detach() {
    Abandon();
}

void ControlView::Abandon() {
    control_ = nullptr;
    widget_->hide();
    gate_.Retire(*widget_);
}

bool ControlView::IsOf(const Control& control) const {
    return control_ == &control && kind_ == control.Kind() && name_ == control.Name() &&
           index_ == control.Index();
}

/// What names a control to who doesn't see it: its caption, else the tooltip, else a name of its own. A
/// control that has neither has no name: that of the code says nothing to anybody.
void ControlView::UpdateAccessibleName() {
    const std::string_view caption = TrimBlanks(CaptionText());
    const std::string_view toolTip = TrimBlanks(toolTip_);
    const QString name = ToQString(!caption.empty()   ? caption
                                   : !toolTip.empty() ? toolTip
                                                      : std::string_view(ownName_));
    widget_->setAccessibleName(name);
    // The part of a combo box that is typed in has the keys, and with them the reader's ear.
    for (auto* part : widget_->findChildren<QLineEdit*>())
        part->setAccessibleName(name);
}

void ControlView::SetOwnName(const std::string& name) {
    if (Differs(ownName_, name)) UpdateAccessibleName();
}

bool ControlView::IsWithinReach() const {
    return control_ && control_->Shown() && control_->Reachable() &&
           control_->OwnerForm().GetPlatform().FrontForm() == &control_->OwnerForm();
}

void ControlView::ClickByTool() {
    if (IsWithinReach()) gate_.Enter([this] { control_->PointerClicked(); });
}

void ControlView::FocusByTool() {
    if (IsWithinReach()) gate_.Enter([this] { control_->SetFocus(); });
}

void ControlView::Press(int button, int shift, float x, float y, bool) {
    Gate().Enter([&] { control_->PointerPressed(button, shift, x, y); });
}

bool ControlView::eventFilter(QObject*, QEvent* event) {
    if (!control_) return false;
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseMove:
            return HandlePointer(static_cast<const QMouseEvent&>(*event));
        case QEvent::KeyPress:
            return HandleKey(static_cast<const QKeyEvent&>(*event));
        case QEvent::KeyRelease:
            ReleaseKey(control_->OwnerForm(), gate_, static_cast<const QKeyEvent&>(*event));
            return keys_ == Handling::Program || !control_;
        case QEvent::ShortcutOverride:
            if (KeepsKey(static_cast<const QKeyEvent&>(*event))) event->accept();
            return event->isAccepted() && keys_ == Handling::Program;
        case QEvent::FocusIn:
            TakeToolkitFocus();
            return false;
        default:
            return false;
    }
}

bool ControlView::HandlePointer(const QMouseEvent& event) {
    if (!control_->Reachable()) return true;
    const bool move = event.type() == QEvent::MouseMove;
    const int button = move ? HeldButton(event.buttons()) : ButtonNumber(event.button());
    if (!move && button == 0) return true;
    const int shift = ShiftState(event.modifiers());

    // The toolkit rounds places in a widget, which would move the right half of an enlarged pixel to the next
    // one; places in the window it leaves as they are.
    const QPoint corner = widget_->mapTo(widget_->window(), QPoint(FrameWidth(), FrameWidth()));
    const QPointF place = event.scenePosition() - corner;
    const float unit = control_->PointerUnitsPerPixel();
    const float x = static_cast<float>(std::floor(place.x())) * unit;
    const float y = static_cast<float>(std::floor(place.y())) * unit;

    if (move) {
        gate_.Enter([&] { control_->PointerMoved(button, shift, x, y); });
    } else if (event.type() == QEvent::MouseButtonRelease) {
        gate_.Enter([&] { control_->PointerReleased(button, shift, x, y); });
    } else {
        Press(button, shift, x, y, event.type() == QEvent::MouseButtonDblClick);
    }
    return pointer_ == Handling::Program || !control_ || !control_->Reachable();
}

bool ControlView::HandleKey(const QKeyEvent& event) {
    const bool usedUp = PressKey(control_->OwnerForm(), gate_, event);
    const bool returnIsSpent = KeyCode(event.key()) == keyReturn && !EditsReturn();
    return usedUp || returnIsSpent || keys_ == Handling::Program || !control_;
}

/// Keys that the control wants for itself are no shortcuts of a menu. A field tells that itself.
bool ControlView::KeepsKey(const QKeyEvent& event) const {
    const bool plain = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    const int code = KeyCode(event.key());
    const bool steps = IsStepKey(code) || code == keySpace || code == keyReturn;
    return keys_ == Handling::Program && plain && steps;
}

/// The toolkit moved the focus by itself: the window came to the front, or an assistive tool asked.
void ControlView::TakeToolkitFocus() {
    if (gate_.Mirroring() || control_->HasFocus()) return;
    gate_.Enter([this] { control_->OwnerForm().MoveFocus(control_); });
}

}  // namespace coinlet
