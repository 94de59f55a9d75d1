#pragma once

#include "controls/container.h"
#include "controls/element.h"
#include "controls/house_colours.h"
#include "surface/colour.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

class FontEngine;
class MenuItem;
class Platform;
class Timer;
struct Offer;

/// What every form is handed: the platform that shows it, and the fonts that its surfaces print with.
struct FormServices {
    Platform& platform;
    const FontEngine& fonts;
};

/// A window as plain data: its controls are public members of the form's own type, which list themselves
/// here; its handlers are member functions named control, underscore, event. No handler knows whether a
/// window shows it.
class Form : public Container {
public:
    Form(FormServices services, std::string_view name);
    ~Form() override;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    std::string_view Name() const { return name_; }
    Platform& GetPlatform() const { return services_.platform; }
    const FontEngine& Fonts() const { return services_.fonts; }

    std::string Caption;
    /// Inner size in twips, the menu bar not counted.
    double Width = 0, Height = 0;
    Colour BackColor = formColour;
    int MousePointer = 0;

    /// The user may have the form before him: from its loading to its unloading.
    bool Loaded() const { return loaded_; }
    /// Unloads the form: `Form_Unload` may refuse. A modal dialog's call of `ShowModal` then returns. The
    /// form itself lives on until its handlers have returned. Does nothing on a form that isn't loaded.
    void Unload();

    /// The control that the user's last key went to, or nullptr if he has pressed a button of the pointer
    /// since, or none had the focus.
    Control* KeyedControl() const { return keyed_; }
    /// What pops up until the user's next key or press stands at this control, as if the last key had gone to
    /// it: a key that the form took did what the control does.
    void StandPopupsAt(Control& control) { keyed_ = &control; }
    /// True while the user holds a button of the pointer that went down over a control of the form, or a key
    /// in its place.
    bool PointerHeld() const { return heldButtons_ != 0 || ButtonsHeldByKeys != 0; }
    /// The buttons of the pointer that keys hold down in its place; their numbers added up.
    int ButtonsHeldByKeys = 0;

    /// A key that the control with the focus doesn't want. True if the form has used it up; else Escape and
    /// Enter press their buttons.
    virtual bool Form_SpareKey(int /*code*/, int /*shift*/) { return false; }
    /// A key has come up, whatever has the focus.
    virtual void Form_KeyReleased(int /*code*/, int /*shift*/) {}
    /// True if the form takes what is dropped on it; Form_Drop then gets it.
    virtual bool TakesDrops() const { return false; }
    virtual void Form_Drop(const Offer& /*offer*/) {}

    /// What the three moments of a form's life do; a form overrides those it has something to do at.
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Unload(bool& cancel);

    /// The control that has the focus, or nullptr. One that was hidden or disabled since has it no more.
    Control* Focus() const;
    /// Moves the focus and tells both controls; nullptr takes it away. A control that can't have it changes
    /// nothing.
    void MoveFocus(Control* control);
    /// Takes the focus away from a control that was hidden or disabled with it, and tells that. The tab key
    /// goes on from its place. To be called after whatever the user does.
    void SettleFocus();
    /// Gives the focus to the next (or previous) control in tab order, round about.
    void MoveFocusByTab(bool backward);
    /// The controls in tab order.
    std::vector<Control*> TabOrder() const;

    /// The button that the Enter key presses while a text box of one line, a list, or nothing has the focus.
    Control* DefaultButton = nullptr;

    /// A key goes to `target` (or to the control with the focus; or to nobody): down, typed, up. Typing is
    /// the event alone: a field's text changes by what its own `UserTypes` or `UserEdits` is told. Escape
    /// then presses `CancelKnop`, or else `ExitKnop`; Enter the default button.
    void KeyDown(Control* target, int code, int shift);
    void KeyUp(Control* target, int code, int shift);
    void KeyTyped(Control* target, int character);

    /// All that can be addressed on the form, in the order it was made.
    const std::vector<Element*>& Elements() const { return elements_; }
    Element* Find(std::string_view name, int index = noIndex) const;
    /// Grows whenever an element comes or goes.
    std::uint64_t ElementRevision() const { return elementRevision_; }
    /// The menus that are not part of another menu.
    const std::vector<MenuItem*>& Menus() const { return menus_; }
    const std::vector<Timer*>& Timers() const { return timers_; }

    virtual void VisitProperties(PropertyVisitor& visitor);
    void VisitEvents(EventVisitor& visitor);

    Form& HostForm() override { return *this; }
    bool ContainerShown() const override { return loaded_; }
    bool ContainerEnabled() const override { return true; }
    double ChildUnitsPerPixel() const override { return 15; }

private:
    friend class Element;
    friend class Control;
    friend class MenuItem;
    friend class Platform;
    friend class Timer;

    /// Escape presses the form's `CancelKnop`, or its `ExitKnop`, if that can be pressed.
    void PressCancel();
    void PressDefault(const Control* focused);
    std::string FocusName() const;

    FormServices services_;
    std::string_view name_;
    std::vector<Element*> elements_;
    std::vector<MenuItem*> menus_;
    std::vector<Timer*> timers_;
    std::uint64_t elementRevision_ = 0;
    Control* focus_ = nullptr;
    Control* lastFocus_ = nullptr;  ///< Who had it before it was taken away.
    Control* keyed_ = nullptr;
    int controlsMade_ = 0;
    int heldButtons_ = 0;  ///< Their numbers added up.
    bool loaded_ = false;
    bool unloading_ = false;
    bool announced_ = false;  ///< The platform shows it.
};

}  // namespace coinlet
