#pragma once

#include "controls/control.h"

#include <QObject>
#include <QWidget>

#include <string_view>

class QKeyEvent;
class QMouseEvent;

namespace coinlet {

class EventGate;

/// Who acts on the pointer and the keys that come to a control: the program alone, or the widget too, which
/// then reports what became of it (texts edit themselves).
enum class Handling { Program, WidgetToo };

/// Shows one control: keeps a widget equal to it and hands it what the user does there. It remembers what the
/// widget shows and touches it only where the control has become different.
///
/// A view belongs to its widget. When its control goes, the view lets go of it and waits, silent and hidden,
/// until no event is on its way to the widget any more.
class ControlView : public QObject {
public:
    ControlView(Control& control, QWidget& widget, EventGate& gate, Handling pointer, Handling keys);

    /// Makes the widget equal to the control.
    void Mirror();
    /// The form is unloaded: the view lets go of the control, which still lives, and hides the widget for
    /// good.
    virtual void Detach();
    /// The same after the control has ended; it isn't touched any more.
    void Abandon();
    /// The focus has come to the control, by a key or because its form says so.
    virtual void FocusComes() {}
    /// What assistive tools call the control where neither its caption nor its tooltip does.
    void SetOwnName(const std::string& name);
    /// An assistive tool does for the user what he can do himself: a click, moving the focus, a value of a
    /// slider. Nothing happens on what he couldn't reach.
    void ClickByTool();
    void FocusByTool();
    virtual void SetByTool(int /*value*/) {}
    /// Shapes and lines that lie in the control, for views of containers.
    virtual void GatherOutlines() {}

    /// The control, or nullptr once detached.
    Control* Shown() const { return control_; }
    /// True if the view was made for just this control, and not for one that lay at the same address before.
    bool IsOf(const Control& control) const;
    QWidget& Widget() const { return *widget_; }
    /// The widget that has the keyboard while the control has the focus.
    virtual QWidget& KeyboardWidget() const { return *widget_; }

protected:
    virtual void MirrorContent() = 0;
    /// What an assistive tool reads out, if there is such a text on the control.
    virtual std::string_view CaptionText() const { return {}; }
    /// False if the control has the size that it had when it was last asked; for sizes that take long to
    /// tell.
    virtual bool SizeIsStale() { return true; }
    /// The width of a frame that the widget has around what the control tells its size and pointer places of,
    /// in pixels.
    virtual int FrameWidth() const { return 0; }
    /// True for a field in which the Enter key starts a new line.
    virtual bool EditsReturn() const { return false; }

    /// A press of a button that the program alone handles.
    virtual void Press(int button, int shift, float x, float y, bool again);

    /// Watches the widget, or a part of it that gets the pointer in its place.
    void Watch(QWidget& part);
    EventGate& Gate() const { return gate_; }
    bool eventFilter(QObject* watched, QEvent* event) override;

    void UpdateAccessibleName();
    /// True if the user can do something to the control now: it is there, and its form is in front.
    bool IsWithinReach() const;

private:
    void MirrorPlace();
    bool HandlePointer(const QMouseEvent& event);
    bool HandleKey(const QKeyEvent& event);
    bool KeepsKey(const QKeyEvent& event) const;
    void TakeToolkitFocus();

    struct Place {
        double left = 0, top = 0, width = 0, height = 0, unit = 0;
        friend bool operator==(const Place&, const Place&) = default;
    };

    Control* control_;
    QWidget* widget_;
    EventGate& gate_;
    Handling pointer_, keys_;
    ControlKind kind_;
    std::string_view name_;
    int index_;

    Place place_;
    bool visible_ = false;
    bool enabled_ = true;
    int mousePointer_ = defaultPointer;
    std::string toolTip_;
    std::string ownName_;
};

/// A view that knows the type of its control.
template <class Model>
class ViewOf : public ControlView {
public:
    ViewOf(Model& model, QWidget& widget, EventGate& gate, Handling pointer = Handling::Program,
           Handling keys = Handling::Program)
        : ControlView(model, widget, gate, pointer, keys), model_(model) {}

protected:
    /// To be called only while the view is attached.
    Model& model() const { return model_; }

private:
    Model& model_;
};

/// Sets `shown` to `value`; true if it was different.
template <class T, class Value>
bool Differs(T& shown, const Value& value) {
    if (shown == value) return false;
    shown = value;
    return true;
}

}  // namespace coinlet
