#pragma once

namespace coinlet {

class MainForm;

/// The entries whose work isn't in the program yet. They stand in their places and stay disabled, so that
/// nothing pretends to work; each goes off the list with the work behind it.
void DisableUnfinished(MainForm& main);

}  // namespace coinlet
