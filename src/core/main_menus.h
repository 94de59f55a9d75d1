#pragma once

namespace coinlet {

class MainForm;

/// Gives the entries of the main form's menus their captions and standard keys.
void CaptionMainMenus(MainForm& main);

}  // namespace coinlet
