#include "core/main_menus.h"

#include "core/language.h"
#include "core/main_form.h"
#include "core/tool_codes.h"

#include <array>
#include <string_view>

namespace coinlet {

namespace {

// In the order of their indexes, from the first of the array on.
constexpr std::array<std::string_view, 2> screenCaptions{"Resolution", "Change Resolution"};
constexpr std::array<std::string_view, shapeCount> shapeCaptions{"Rectangle",      "Rounded Rectangle",
                                                                 "Ellipse",        "Triangle",
                                                                 "Square",         "Pentagon",
                                                                 "Hexagon",        "Heart",
                                                                 "Diamond",        "Quatro",
                                                                 "Raster",         "Open Star",
                                                                 "Star",           "Rectangle / Square",
                                                                 "Double Trangle", "Tree"};
constexpr std::array<std::string_view, 6> flipCaptions{
    "Flip Leftside to Right", "Flip Upperside to Bottom", "Mirror", "Upside Down",
    "Rotate 90° to Left",     "Rotate 45° to Right"};
constexpr std::array<std::string_view, 5> pasteCaptions{"Paste Normal", "Paste Transparant",
                                                        "Paste Without Background", "-", "Cancel"};

template <std::size_t N>
void Caption(ControlArray<MenuItem>& entries, const std::array<std::string_view, N>& captions) {
    for (std::size_t i = 0; i < N; ++i)
        entries[entries.First() + static_cast<int>(i)].Caption = captions[i];
}

}  // namespace

void CaptionMainMenus(MainForm& main) {
    for (std::size_t i = 0; i < languages.size(); ++i)
        main.HelpTaal[main.HelpTaal.First() + static_cast<int>(i)].Caption = languages[i].caption;
    Caption(main.HelpScreen, screenCaptions);
    Caption(main.Vormen, shapeCaptions);
    Caption(main.FlipPic, flipCaptions);
    Caption(main.Paste, pasteCaptions);

    main.Shapes.Visible = false;
    main.FlipImage.Visible = false;
    main.PasteImage.Visible = false;

    main.FileNew.Shortcut = "Ctrl+N";
    main.FileOpen.Shortcut = "Ctrl+O";
    main.FileSave.Shortcut = "Ctrl+S";
    main.FilePrint.Shortcut = "Ctrl+P";
    main.FileExit.Shortcut = "Ctrl+Q";
    main.BewerkenUndo.Shortcut = "Ctrl+Z";
    main.BewerkenCopy.Shortcut = "Ctrl+C";
    main.HelpHelp.Shortcut = "F1";
}

}  // namespace coinlet
