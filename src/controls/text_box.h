#pragma once

#include "controls/control.h"
#include "controls/house_colours.h"
#include "surface/colour.h"
#include "surface/font_properties.h"

#include <string>

namespace coinlet {

/// A text that the user edits. Dark blue with light letters, like all fields.
class TextBox : public Control, public FontProperties {
public:
    TextBox(Container& container, std::string_view name, int index = noIndex);

    const std::string& Text() const { return text_; }
    /// A changed text raises `Change`. A box of one line takes the first line.
    void SetText(const std::string& text);

    Colour ForeColor = fieldTextColour;
    Colour BackColor = fieldColour;
    bool MultiLine = false;       ///< Lines end in CR LF; long ones wrap. To be set before the text.
    bool VerticalScroll = false;  ///< A scroll bar at the right, for multi-line boxes.
    bool Locked = false;          ///< The user can read and copy, but not change.

    /// Has a screen select the text, so that what the user types next replaces it.
    void SelectText() { ++selections_; }
    /// How often that was done.
    int Selections() const { return selections_; }

    Event<> Change;

    /// The user types one character behind the text; `Change` comes once a character. A control character
    /// other than a line end in a multi-line box types nothing; nor does anything in a locked box.
    void UserTypes(std::string_view character);
    /// The user's editing made the text what it now is. Of what it put into a box of one line, the first line
    /// is taken.
    void UserEdits(const std::string& text);

    bool WantsKey(int, int) const override { return true; }
    bool PassesEnterOn() const override { return !MultiLine; }
    void VisitProperties(PropertyVisitor& visitor) override;
    void VisitEvents(EventVisitor& visitor) override;

private:
    std::string text_;
    int selections_ = 0;
};

/// What a typed character adds to a field: itself without control characters; a line end adds CR LF to a
/// field of several lines.
std::string TypedText(std::string_view character, bool multiLine);

/// What a field of one line holds after an edit that turned `before`, which is one line, into `edited`: of
/// what was put in the first line, and all that stood around it.
std::string EditedLine(std::string_view before, std::string_view edited);

}  // namespace coinlet
