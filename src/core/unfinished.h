#pragma once

namespace coinlet {

class Control;
class MainForm;

/// The entries and buttons whose work isn't in the program yet. They stand in their places and stay disabled,
/// so that nothing pretends to work; each goes off the list with the work behind it.
bool IsUnfinished(const MainForm& main, const Control& control);
void DisableUnfinished(MainForm& main);

}  // namespace coinlet
