#pragma once

namespace coinlet {

struct Context;

// What entries of the menus lead to that open a dialog of the store in more than one way, or with something
// around it. Each returns when the dialog has closed.

/// Saves the design in the store.
void SaveDesign(Context& context);
/// Saves the design as a picture for others.
void ExportDesign(Context& context);
/// Prints the design, or all that there is. A job goes on when the user closes its dialog; until it has ended
/// the entry can't be chosen.
void PrintDesigns(Context& context);

}  // namespace coinlet
