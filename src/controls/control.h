#pragma once

#include "controls/container.h"
#include "controls/element.h"

#include <string>
#include <string_view>

namespace coinlet {

/// The kinds of control that a shell must know how to show.
enum class ControlKind {
    Label,
    TextBox,
    CheckBox,
    OptionButton,
    ScrollBar,
    ListBox,
    ComboBox,
    PictureBox,
    Shape,
    Line,
    Frame,
    Button
};

/// Buttons of the pointer, as its events tell them.
constexpr int noButton = 0, leftButton = 1, rightButton = 2, middleButton = 4;

/// Pointer shapes.
constexpr int defaultPointer = 0;
constexpr int crossPointer = 2;
constexpr int hourglassPointer = 11;
constexpr int toolPointer = 99;

/// A control: a place in a container, what the user can do to it, and the events that raises.
///
/// Plain data members are properties whose assignment does nothing by itself; where one has consequences it
/// is a pair of functions. Places and sizes are in the container's unit: twips on forms and frames, the
/// scale's own on pictures.
///
/// The functions `Pointer...`, `Key...`, `Focus...` are the user's doings. Shell and scenario player call
/// these and nothing else, so that both lead to the same events. On a control that is disabled, or whose form
/// isn't loaded, they do nothing.
class Control : public Element {
public:
    Control(Container& container, std::string_view name, int index, ControlKind kind);
    ~Control() override;

    ControlKind Kind() const { return kind_; }
    Container& Parent() const { return *container_; }

    double Left() const { return left_; }
    double Top() const { return top_; }
    virtual double Width() const { return width_; }
    virtual double Height() const { return height_; }
    void SetLeft(double left) { left_ = left; }
    void SetTop(double top) { top_ = top; }
    virtual void SetWidth(double width) { width_ = width; }
    virtual void SetHeight(double height) { height_ = height; }
    void Move(double left, double top) { SetLeft(left), SetTop(top); }
    void Move(double left, double top, double width, double height);

    bool Visible = true;
    bool Enabled() const { return enabled_; }
    virtual void SetEnabled(bool enabled) { enabled_ = enabled; }
    /// Visible, with all that it lies in.
    bool Shown() const { return Visible && container_->ContainerShown(); }
    /// Enabled, with all that it lies in.
    bool Reachable() const { return enabled_ && container_->ContainerEnabled(); }

    std::string ToolTipText;
    int MousePointer = defaultPointer;
    /// Place in the order in which the tab key visits the form's controls; at first the order they were made
    /// in.
    int TabIndex;
    /// Whether the tab key stops here. Controls that take no focus have it false.
    bool TabStop = false;
    /// Whether the tab key stops here now. Of several controls that are one choice, one does.
    virtual bool StopsTab() const { return TabStop && CanFocus(); }
    /// True for controls that can have the focus at all.
    bool CanFocus() const { return takesFocus_ && Shown() && Reachable(); }
    /// Gives it the focus, if it can have it.
    void SetFocus();
    bool HasFocus() const;

    /// For what is pressed by the pointer and is no button: lets it have the focus, by the tab key or by
    /// code, and then lets keys press it. Enter acts as a press and a release of the left button at its
    /// KeyPressPlace, and so does Space when it comes up where it went down; Shift and F10 act as those of
    /// the right button.
    void LetKeysPress();
    bool KeysPress() const { return keysPress_; }
    /// Where keys press it, in the units of a pointer event: in the middle.
    struct PressPlace {
        float x, y;
    };
    virtual PressPlace KeyPressPlace() const;

    Event<> Click;
    PointerEvent MouseDown, MouseMove, MouseUp;
    KeyEvent KeyDown, KeyUp;
    Event<int> KeyPress;
    Event<> GotFocus, LostFocus;

    /// How many units of a pointer event lie in a pixel of the screen: 1, but for pictures measured in
    /// twips 15.
    virtual float PointerUnitsPerPixel() const { return 1; }
    /// Size in whole pixels on the screen.
    int PixelWidth() const;
    int PixelHeight() const;

    /// A button of the pointer goes down over the control. A left press gives it the focus if it takes one.
    virtual void PointerPressed(int button, int shift, float x, float y);
    virtual void PointerMoved(int button, int shift, float x, float y);
    /// The button goes up again, wherever the pointer is by then: after a left press here and a release
    /// inside, a click follows.
    virtual void PointerReleased(int button, int shift, float x, float y);
    /// A whole click in the middle of the control: what `click` of a script does.
    virtual void PointerClicked();
    virtual void KeyPressed(int code, int shift);
    /// A character that the key gives, as its code.
    virtual void CharacterTyped(int character);
    virtual void KeyReleased(int code, int shift);
    /// Called by the form when the focus comes or goes.
    virtual void FocusGained();
    virtual void FocusLost();

    void VisitProperties(PropertyVisitor& visitor) override;
    void VisitEvents(EventVisitor& visitor) override;

    /// True for keys that mean something to the control itself, such as the arrows to a list; others may mean
    /// something to its form. A field that is typed in wants them all.
    virtual bool WantsKey(int code, int shift) const;
    /// True if the Enter key, while this has the focus, is the form's default button's.
    virtual bool PassesEnterOn() const { return false; }

protected:
    /// True if a press of the left button gives it the focus, if it can have it.
    virtual bool TakesFocusByPress() const { return !keysPress_; }
    void MakeFocusable() { takesFocus_ = TabStop = true; }
    /// What a finished click does.
    virtual void Clicked() { Click(); }
    /// True if the user can do something to it now: its form is loaded, and it is reachable. Asked again
    /// after every event that was raised, since the handler may have disabled it or closed the form.
    bool Answers() const;
    /// Ends a press; true if it was one of the left button that began here.
    bool EndPress(int button);
    /// True if (x, y), in the units of a pointer event, lies within the control.
    bool ContainsPoint(float x, float y) const;

private:
    PressPlace Middle() const;
    void PressByKey(int button);

    Container* container_;
    ControlKind kind_;
    double left_ = 0, top_ = 0, width_ = 0, height_ = 0;
    bool enabled_ = true;
    bool takesFocus_ = false;
    bool leftPressed_ = false;
    bool keysPress_ = false;
    bool spaceIsDown_ = false;
};

}  // namespace coinlet
