#pragma once

namespace coinlet {

struct Context;

/// Prints the About text on the board behind the canvas: the lines of "Data/About.inf", if it can be read,
/// and the credits.
void PrintAboutText(Context& context);

}  // namespace coinlet
