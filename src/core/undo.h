#pragma once

namespace coinlet {

class MainForm;

/// Keeps the canvas as it is now for undo, in place of what was kept before: there is one step, and whatever
/// is about to change the canvas takes it. Costs nothing until the canvas is drawn on.
void KeepForUndo(MainForm& main);

/// Brings the canvas back that was kept last. What was kept stays, so that a second time changes nothing.
void Undo(MainForm& main);

}  // namespace coinlet
