#include "shell/accessible_controls.h"

#include "controls/check_box.h"
#include "controls/form.h"
#include "controls/scroll_bar.h"
#include "shell/control_view.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

namespace coinlet {

namespace {

ControlView* ViewIn(const QWidget& widget) {
    for (QObject* child : widget.children()) {
        if (auto* view = dynamic_cast<ControlView*>(child)) return view;
    }
    return nullptr;
}

/// What a press does something on: a label that has a handler is a button.
bool TakesPresses(const Control& control) {
    return control.Click || control.MouseDown;
}

QAccessible::Role RoleOf(const Control& control) {
    switch (control.Kind()) {
        case ControlKind::Button:
            return QAccessible::PushButton;
        case ControlKind::CheckBox:
            return QAccessible::CheckBox;
        case ControlKind::OptionButton:
            return QAccessible::RadioButton;
        case ControlKind::ScrollBar:
            return QAccessible::Slider;
        case ControlKind::Frame:
            return QAccessible::Grouping;
        case ControlKind::Label:
            return TakesPresses(control) ? QAccessible::PushButton : QAccessible::StaticText;
        default:
            return QAccessible::Graphic;
    }
}

bool IsToggle(const Control& control) {
    return control.Kind() == ControlKind::CheckBox || control.Kind() == ControlKind::OptionButton;
}

bool IsTicked(const Control& control) {
    if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return box->Value();
    if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return option->Value();
    return false;
}

/// A control as assistive tools see it. It may be asked after its control has gone; then it is nothing.
class AccessibleControl : public QAccessibleWidget {
public:
    AccessibleControl(QWidget& widget, ControlView& view) : QAccessibleWidget(&widget), view_(&view) {}

    QAccessible::Role role() const override {
        const Control* control = Model();
        return control ? RoleOf(*control) : QAccessible::NoRole;
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        const Control* control = Model();
        if (!control) {
            state.invalid = true;
            return state;
        }
        state.focusable = control->CanFocus();
        state.checkable = IsToggle(*control);
        state.checked = IsTicked(*control);
        return state;
    }
    QStringList actionNames() const override {
        QStringList names;
        const Control* control = Model();
        if (!control || !control->Reachable()) return names;
        if (IsToggle(*control)) {
            names << toggleAction();
        } else if (role() == QAccessible::PushButton) {
            names << pressAction();
        }
        if (control->CanFocus()) names << setFocusAction();
        return names;
    }
    void doAction(const QString& name) override {
        if (!view_ || !actionNames().contains(name)) return;
        if (name == setFocusAction()) {
            view_->FocusByTool();
        } else {
            view_->ClickByTool();
        }
    }

protected:
    Control* Model() const { return view_ ? view_->Shown() : nullptr; }
    QPointer<ControlView> view_;
};

/// A scroll bar of the program sets a value, so that it is a slider; its value is that of the program.
class AccessibleSlider : public AccessibleControl, public QAccessibleValueInterface {
public:
    using AccessibleControl::AccessibleControl;

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
        return AccessibleControl::interface_cast(type);
    }
    QVariant currentValue() const override {
        return Of([](const ScrollBar& bar) { return bar.Value(); });
    }
    QVariant minimumValue() const override {
        return Of([](const ScrollBar& bar) { return bar.Lowest(); });
    }
    QVariant maximumValue() const override {
        return Of([](const ScrollBar& bar) { return bar.Highest(); });
    }
    QVariant minimumStepSize() const override {
        return Of([](const ScrollBar& bar) { return bar.SmallChange; });
    }
    void setCurrentValue(const QVariant& value) override {
        if (view_) view_->SetByTool(value.toInt());
    }

private:
    template <class Get>
    QVariant Of(Get get) const {
        const auto* bar = dynamic_cast<const ScrollBar*>(Model());
        return bar ? QVariant(get(*bar)) : QVariant();
    }
};

Announcer announcer = QAccessible::updateAccessibility;

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    ControlView* view = widget ? ViewIn(*widget) : nullptr;
    if (!view || !view->Shown()) return nullptr;
    switch (view->Shown()->Kind()) {
        case ControlKind::TextBox:
        case ControlKind::ListBox:
        case ControlKind::ComboBox:
            return nullptr;
        case ControlKind::ScrollBar:
            return new AccessibleSlider(*widget, *view);
        default:
            return new AccessibleControl(*widget, *view);
    }
}

}  // namespace

void AnnounceTick(QWidget& widget, int entry) {
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(&widget, changed);
    event.setChild(entry);
    announcer(&event);
}

void AnnounceBy(Announcer other) {
    announcer = other ? other : QAccessible::updateAccessibility;
}

void DescribeControls() {
    static const bool once = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    static_cast<void>(once);
}

}  // namespace coinlet
