#pragma once

#include <initializer_list>
#include <string_view>

namespace coinlet {

class Control;
class Form;
class Label;
class VistaButton;

// What the dialogs have in common in their looks. All in pixels.

/// The distance of what a dialog holds from its border, and of a button from the next one.
constexpr int dialogMargin = 12, dialogGap = 8;
/// The heights of a label of one line and of a field; a field lies so far below the top of its name.
constexpr int dialogTextHeight = 16, dialogFieldHeight = 24, dialogFieldOffset = 18;

/// Gives a dialog its title and the size of what it holds.
void SetTitleAndSize(Form& dialog, std::string_view title, int width, int height);

/// A label of one line.
void PlaceText(Label& label, std::string_view text, int left, int top, int width);

/// A field with its name over it.
void PlaceNamedField(Label& label, std::string_view name, Control& field, int left, int top, int width);

struct NamedField {
    Label& label;
    std::string_view name;
    Control& field;
};
/// Fields of one width beside each other, each with its name over it; `between` two of them is a gap.
void PlaceNamedFields(std::initializer_list<NamedField> fields, int left, int top, int width, int between);

/// A button, and beside it the words for what it does.
struct ButtonRow {
    int left, top, width;
    int buttonWidth, buttonHeight;
};
/// Places the two on a row: the words in the middle of the button's height, in that many lines.
void PlaceButtonRow(VistaButton& button, Label& label, std::string_view words, const ButtonRow& row,
                    int lines = 1);

/// Gives the pair of buttons that end a dialog their captions, and the two halves of a place.
void PlaceWaysOut(VistaButton& exportKnop, VistaButton& cancelKnop, int left, int top, int width, int height);

}  // namespace coinlet
