#pragma once

namespace coinlet {

class MainForm;

/// Draws both rulers along the canvas: a grey tick every 5 pixels, and a red one of the whole depth at each
/// quarter.
void DrawRulers(MainForm& main);

}  // namespace coinlet
