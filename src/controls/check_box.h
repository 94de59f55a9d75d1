#pragma once

#include "controls/control.h"
#include "controls/house_colours.h"
#include "surface/colour.h"
#include "surface/font_properties.h"

#include <string>
#include <vector>

namespace coinlet {

/// What a check box and an option button share: a caption beside a mark that is set or not.
class ToggleControl : public Control, public FontProperties {
public:
    std::string Caption;
    Colour ForeColor = black;
    Colour BackColor = formColour;

    bool Value() const { return value_; }
    virtual void SetValue(bool value) = 0;

    /// The space bar acts as a click.
    void KeyReleased(int code, int shift) override;
    void VisitProperties(PropertyVisitor& visitor) override;

protected:
    ToggleControl(Container& container, std::string_view name, int index, ControlKind kind);
    /// Sets the mark without an event. True if that changes it.
    bool Mark(bool value);

private:
    bool value_ = false;
};

/// A box with a tick. Set to another value, by the user or in code, it raises `Click`.
class CheckBox : public ToggleControl {
public:
    CheckBox(Container& container, std::string_view name, int index = noIndex);

    void SetValue(bool value) override;
    /// The user's click, however he makes it.
    void Toggle() { SetValue(!Value()); }

protected:
    void Clicked() override { Toggle(); }
};

/// One of several choices: of the option buttons that lie in one container at most one is chosen. Becoming
/// chosen, by the user or in code, raises its `Click`; becoming unchosen raises nothing. The tab key stops at
/// the chosen one of them, or at the first while none is; the arrows lead to the next one, round about, and
/// choose it.
class OptionButton : public ToggleControl {
public:
    OptionButton(Container& container, std::string_view name, int index = noIndex);

    void SetValue(bool value) override;
    bool StopsTab() const override;
    void KeyPressed(int code, int shift) override;
    bool WantsKey(int code, int shift) const override;

protected:
    void Clicked() override { SetValue(true); }

private:
    /// Those of the choice that can have the focus, in tab order.
    std::vector<OptionButton*> Choices() const;
};

}  // namespace coinlet
