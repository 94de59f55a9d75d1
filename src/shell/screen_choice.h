#pragma once

namespace coinlet {

/// False if the toolkit, started with these arguments, would find no screen and end the program on the spot:
/// nobody chose a platform for it, by option or environment, there is no Wayland session, and no X server
/// answers. What was chosen is the toolkit's to try.
bool FindsScreen(int argc, char** argv);

}  // namespace coinlet
