#pragma once

#include "controls/control.h"
#include "surface/colour.h"
#include "surface/font_properties.h"

#include <string>

namespace coinlet {

/// A box with a tick. Set to another value, by the user or in code, it raises `Click`.
class CheckBox : public Control, public FontProperties {
public:
    CheckBox(Container& container, std::string_view name, int index = noIndex);

    std::string Caption;
    Colour ForeColor = black;
    Colour BackColor = RGB(220, 220, 190);

    bool Value() const { return value_; }
    void SetValue(bool value);

    /// The space bar ticks it.
    void KeyReleased(int code, int shift) override;
    /// The user's click, however he makes it.
    void Toggle() { SetValue(!value_); }
    void VisitProperties(PropertyVisitor& visitor) override;

protected:
    void Clicked() override { Toggle(); }

private:
    bool value_ = false;
};

/// One of several choices: of the option buttons that lie in one container at most one is chosen. Becoming
/// chosen, by the user or in code, raises its `Click`; becoming unchosen raises nothing.
class OptionButton : public Control, public FontProperties {
public:
    OptionButton(Container& container, std::string_view name, int index = noIndex);

    std::string Caption;
    Colour ForeColor = black;
    Colour BackColor = RGB(220, 220, 190);

    bool Value() const { return value_; }
    void SetValue(bool value);

    /// The space bar chooses it.
    void KeyReleased(int code, int shift) override;
    void VisitProperties(PropertyVisitor& visitor) override;

protected:
    void Clicked() override { SetValue(true); }

private:
    bool value_ = false;
};

}  // namespace coinlet
