#pragma once

namespace coinlet {

class MainForm;

/// Places every control of the main form and gives it its looks. Places that other rules speak of are twips;
/// the rest stands on a grid of 4 pixels.
void LayOutMain(MainForm& main);

}  // namespace coinlet
