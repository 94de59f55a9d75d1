#pragma once

#include <span>
#include <string_view>
#include <variant>

namespace coinlet {

class MainForm;
class MenuItem;
class ToolStrip;
struct Context;

/// The tool button of that number.
struct ToolButton {
    int number;
};
/// The field that shows the fill colour.
struct FillColourField {};
/// What the user presses for a dialog.
using DialogOpener = std::variant<MenuItem MainForm::*, ToolButton, FillColourField>;

/// A dialog of the program, and how the user gets it.
struct DialogRow {
    std::string_view form;  ///< The name of the form.
    DialogOpener opener;
    /// The hint that comes before the dialog; empty: none, or that of the tool strip.
    std::string_view hintKey;
    /// Shows it, and returns when it has closed.
    void (*open)(Context&);
};

/// All dialogs of the program. A dialog that has a row here can be opened, and the tests look at it.
std::span<const DialogRow> Dialogs();

/// Binds what opens a dialog to the opening of it.
void BindDialogs(Context& context, ToolStrip& strip);

}  // namespace coinlet
