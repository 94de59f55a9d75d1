#pragma once

namespace coinlet {

class MainForm;

/// Places every control of the main form and gives it its looks. Places that other rules speak of are twips;
/// the rest stands on a grid of 4 pixels.
void LayOutMain(MainForm& main);

/// The corner between the rulers as blank as it is without a floating image.
void NarrowCorner(MainForm& main);
/// The corner with room for the whole caption of the button that it holds, over the beginning of the ruler.
void WidenCorner(MainForm& main);

}  // namespace coinlet
