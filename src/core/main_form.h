#pragma once

#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/element.h"
#include "controls/file_boxes.h"
#include "controls/form.h"
#include "controls/frame.h"
#include "controls/label.h"
#include "controls/list_box.h"
#include "controls/menu.h"
#include "controls/picture_box.h"
#include "controls/pointed_picture.h"
#include "controls/scroll_bar.h"
#include "controls/shapes.h"
#include "controls/text_box.h"
#include "controls/timer.h"
#include "controls/vista_button.h"
#include "core/tool_codes.h"

#include <functional>

namespace coinlet {

constexpr int canvasSide = 500;

/// The main window: the canvas, what belongs to it, and the menus. It owns the controls and lays them out;
/// what they do is bound to them by the subsystems.
class MainForm : public Form {
public:
    explicit MainForm(FormServices services);

    // --- Top strip -------------------------------------------------------------------------------------
    Frame MenuPic{*this, "MenuPic"};
    Label Label2{MenuPic, "Label2"};        ///< Name of the design; where it is, as its tooltip.
    Label Label19{MenuPic, "Label19"};      ///< Blinks when a design with an info text was opened.
    Label KlokLabel{MenuPic, "KlokLabel"};  ///< Date and time.

    // --- Image browser ---------------------------------------------------------------------------------
    Frame Frame1{*this, "Frame1"};
    FileListBox File1{Frame1, "File1"};      ///< Reads the folder; hidden.
    VistaButton ImgKnop{Frame1, "ImgKnop"};  ///< Lists the pictures of the program.
    VistaButton MapKnop{Frame1, "MapKnop"};  ///< Lists those of the user's folder.
    PictureBox Bar{Frame1, "Bar"};           ///< Progress of flips and filters, in the place of ImgKnop.
    ListBox List1{Frame1, "List1"};          ///< The pictures of the folder.
    Label Label8{Frame1, "Label8"};          ///< How many there are, or how large the chosen one is.
    PictureBox Pic2{Frame1, "Pic2"};         ///< The chosen one, small.
    Frame Frame3{*this, "Frame3"};           ///< Turns and pastes it.
    VistaButton HorKnop{Frame3, "HorKnop"};
    VistaButton VerKnop{Frame3, "VerKnop"};
    VistaButton RotatieKnop{Frame3, "RotatieKnop"};
    VistaButton OkKnop{Frame3, "OkKnop"};  ///< Has it float over the canvas.

    // --- Canvas, rulers, side panel --------------------------------------------------------------------
    Frame Frame2{*this, "Frame2"};
    PictureBox LabelPic{Frame2, "LabelPic"};  ///< The board behind the canvas.
    Shape KeysShape{LabelPic, "KeysShape"};   ///< Around canvas and rulers while the keys are theirs.
    PictureBox LeftPic{Frame2, "LeftPic"};    ///< The rulers, and the marks of the pointer on them.
    LineShape Line1{LeftPic, "Line1"};
    PictureBox TopPic{Frame2, "TopPic"};
    LineShape Line2{TopPic, "Line2"};
    PictureBox HoekPic{Frame2, "HoekPic"};      ///< The corner between the rulers.
    VistaButton HoekKnop{HoekPic, "HoekKnop"};  ///< Ways of pasting what floats.
    PointedPicture Pic{Frame2, "Pic"};          ///< The canvas: the design.
    LineShape Line3{Pic, "Line3"};              ///< The cross lines.
    LineShape Line4{Pic, "Line4"};
    Shape Gom{Pic, "Gom"};                        ///< The eraser under the pointer.
    Shape Layer{Pic, "Layer"};                    ///< The rubber band of the gesture.
    Shape HoleShape{Pic, "HoleShape"};            ///< The hole under the pointer.
    PictureBox ClipPic{Pic, "ClipPic"};           ///< The image that floats over the canvas.
    Label XYcor{Pic, "XYcor"};                    ///< Size or place while drawing.
    Label TextLabel{Pic, "TextLabel"};            ///< The text that hangs on the pointer.
    PictureBox TopInfoPic{Frame2, "TopInfoPic"};  ///< The head of InfoPic.
    PictureBox InfoPic{Frame2, "InfoPic"};        ///< Metal, colours and back of the design.
    Label Label16{Frame2, "Label16"};             ///< The longer help on picking colours.

    // --- Hidden pictures and lists ---------------------------------------------------------------------
    PictureBox UndoPic{Frame2, "UndoPic"};  ///< The canvas before the last step.
    PictureBox IconPic{Frame2, "IconPic"};  ///< The picture to be pasted, in its own size.
    PictureBox VertPic{Frame2, "VertPic"};  ///< The text to be placed, before it is turned.
    PictureBox BackPic{Frame2, "BackPic"};  ///< Empty: the libraries keep their own pictures.
    PictureBox BorderPic{Frame2, "BorderPic"};
    ListBox InfoList{Frame2, "InfoList"};  ///< The language table.
    ListBox PMSlist{Frame2, "PMSlist"};    ///< The PMS colour table.
    ListBox List2{Frame2, "List2"};        ///< The rows of the design's info text.

    // --- Pointer coordinates ---------------------------------------------------------------------------
    Frame Frame5{*this, "Frame5"};
    Label CoorLabel{Frame5, "CoorLabel"};  ///< Where the pointer is on the canvas.

    // --- Tools -----------------------------------------------------------------------------------------
    Frame Frame4{*this, "Frame4"};
    Shape ToolShape{Frame4, "ToolShape"};  ///< Behind the button of the tool in use.
    ControlArray<VistaButton> Knop{Frame4, "Knop", 0, toolButtonCount};  ///< The tools, by their codes.
    Label Label6{Frame4, "Label6"};                                      ///< What ColorLabel is.
    Label ColorLabel{Frame4, "ColorLabel"};                              ///< The fill colour.
    Label Label7{Frame4, "Label7"};                                      ///< The width of the pen.
    ScrollBar HScroll1{Frame4, "HScroll1", Orientation::Horizontal};
    // The panels behind the sliders of single tools; three of them share one place.
    Label Label9{Frame4, "Label9"};  ///< Of rounded corners.
    Label Label10{Frame4, "Label10"};
    ScrollBar HScroll2{Frame4, "HScroll2", Orientation::Horizontal};
    Label Label11{Frame4, "Label11"};  ///< Of the eraser.
    Label Label12{Frame4, "Label12"};
    ScrollBar HScroll3{Frame4, "HScroll3", Orientation::Horizontal};
    CheckBox Check1{Frame4, "Check1"};  ///< It erases in the fill colour.
    Label Label20{Frame4, "Label20"};   ///< Of the raster.
    Label Label21{Frame4, "Label21"};
    ScrollBar HScroll4{Frame4, "HScroll4", Orientation::Horizontal};
    Label Label5{Frame4, "Label5"};  ///< Of the board: slides the canvas aside.
    Label Label22{Frame4, "Label22"};
    ScrollBar HScroll5{Frame4, "HScroll5", Orientation::Horizontal};

    // --- Text panel, in the place of the tools ---------------------------------------------------------
    Frame Frame6{*this, "Frame6"};
    Label Label13{Frame6, "Label13"};  ///< What Text1 is for.
    TextBox Text1{Frame6, "Text1"};
    Label Label14{Frame6, "Label14"};      ///< What Combo2 is for.
    ComboBox Combo2{Frame6, "Combo2"};     ///< The fonts.
    Label FontLabel{Frame6, "FontLabel"};  ///< A sample of the font.
    Label Label15{Frame6, "Label15"};      ///< What Combo3 is for.
    ComboBox Combo3{Frame6, "Combo3"};     ///< Sizes in points.
    CheckBox BoldCheck{Frame6, "BoldCheck"};
    CheckBox ItalicCheck{Frame6, "ItalicCheck"};
    CheckBox UnderlineCheck{Frame6, "UnderlineCheck"};
    CheckBox OpenCheck{Frame6, "OpenCheck"};        ///< Letters are outlines.
    CheckBox SchaduwCheck{Frame6, "SchaduwCheck"};  ///< Letters have a shadow.
    CheckBox VertCheck{Frame6, "VertCheck"};        ///< The text runs upwards.
    Label Label17{Frame6, "Label17"};               ///< What PlaatsKnop does.
    VistaButton PlaatsKnop{Frame6, "PlaatsKnop"};   ///< Hangs the text on the pointer.
    VistaButton ExitKnop{Frame6, "ExitKnop"};       ///< Back to the tools.

    // --- Foot ------------------------------------------------------------------------------------------
    Frame Frame7{*this, "Frame7"};
    Label InfoLabel{Frame7, "InfoLabel"};      ///< What to do next.
    Label NummerLabel{Frame7, "NummerLabel"};  ///< Number of the text on InfoLabel.

    Timer Timer1{*this, "Timer1"};                ///< The clock.
    Timer RecoveryTimer{*this, "RecoveryTimer"};  ///< Work that isn't stored; at rest where none is kept.

    // --- Menus -----------------------------------------------------------------------------------------
    MenuItem File{*this, "File", "File"};
    MenuItem FileNew{File, "FileNew", "New"};
    MenuItem FileOpen{File, "FileOpen", "Open Coinlet"};
    MenuItem FileSave{File, "FileSave", "Save Coinlet"};
    MenuItem fileStreep1{File, "fileStreep1", "-"};
    MenuItem FileImport{File, "FileImport", "Import Images"};
    MenuItem FileExport{File, "FileExport", "Export to JPG Image"};
    MenuItem FileStreep2{File, "FileStreep2", "-"};
    MenuItem FilePrint{File, "FilePrint", "Print Coinlet"};
    MenuItem FileStreep3{File, "FileStreep3", "-"};
    MenuItem FileExit{File, "FileExit", "Exit"};

    MenuItem Bewerken{*this, "Bewerken", "Edit"};
    MenuItem BewerkenUndo{Bewerken, "BewerkenUndo", "Undo"};
    MenuItem BewerkenCopy{Bewerken, "BewerkenCopy", "Copy to Clipboard"};
    MenuItem BewerkenInformation{Bewerken, "BewerkenInformation", "Coinlet Info Text"};

    MenuItem View{*this, "View", "View"};
    MenuItem ViewKruis{View, "ViewKruis", "Cross Lines"};
    MenuItem ViewStreep1{View, "ViewStreep1", "-"};
    MenuItem ViewMyCollection{View, "ViewMyCollection", "My Collection"};

    MenuItem Bib{*this, "Bib", "Library"};
    MenuItem LibraryBorders{Bib, "LibraryBorders", "Tag Borders"};
    MenuItem LibraryBackside{Bib, "LibraryBackside", "Tag Backs"};
    MenuItem LibraryGlitter{Bib, "LibraryGlitter", "Glitter Color Chart"};
    MenuItem LibraryStreep1{Bib, "LibraryStreep1", "-"};
    MenuItem ClipartGroot{Bib, "ClipartGroot", "Cliparts"};
    MenuItem Symbolen{Bib, "Symbolen", "True Type Symbols"};

    MenuItem Filters{*this, "Filters", "Filters"};
    ControlArray<MenuItem> Filter{Filters, "Filter", 3, 25};
    ControlArray<MenuItem> EditContrastConvert{Filter[9], "EditContrastConvert", 1, 2};
    ControlArray<MenuItem> EditSwap{Filter[12], "EditSwap", 1, 5};

    MenuItem Help{*this, "Help", "Help"};
    MenuItem HelpHelp{Help, "HelpHelp", "Help"};
    MenuItem HelpInfo{Help, "HelpInfo", "Coinlet Website"};
    MenuItem HelpColorCodes{Help, "HelpColorCodes", "PMS Color Codes"};
    MenuItem HelpStreep1{Help, "HelpStreep1", "-"};
    MenuItem HelpLanguage{Help, "HelpLanguage", "Language"};
    ControlArray<MenuItem> HelpTaal{HelpLanguage, "HelpTaal", 1, 2};
    MenuItem HelpStreep2{Help, "HelpStreep2", "-"};
    MenuItem HelpMeerSoftware{Help, "HelpMeerSoftware", "More Software"};
    MenuItem HelpDownloads{Help, "HelpDownloads", "More Cliparts"};
    MenuItem HelpStreep3{Help, "HelpStreep3", "-"};
    MenuItem HelpScherm{Help, "HelpScherm", "Screen Info"};
    ControlArray<MenuItem> HelpScreen{HelpScherm, "HelpScreen", 1, 2};

    // Popped up by buttons; not in the menu bar.
    MenuItem Shapes{*this, "Shapes", "Shapes"};
    ControlArray<MenuItem> Vormen{Shapes, "Vormen", 1, shapeCount};  ///< The shapes.
    MenuItem FlipImage{*this, "FlipImage", "FlipImage"};
    ControlArray<MenuItem> FlipPic{FlipImage, "FlipPic", 1, 6};
    MenuItem PasteImage{*this, "PasteImage", "PasteImage"};
    ControlArray<MenuItem> Paste{PasteImage, "Paste", 1, 5};  ///< The ways of pasting.

    // --- Life ------------------------------------------------------------------------------------------
    // The three moments of the form's life; the application fills them.
    Event<> Load, Activate;
    Event<bool&> Unloading;

    /// A key that the control with the focus doesn't want; true if it is used up.
    std::function<bool(int code, int shift)> SpareKey;
    /// A key has come up.
    KeyEvent KeyReleased;
    /// Something was dropped on the window.
    Event<const Offer&> Dropped;

    bool Form_SpareKey(int code, int shift) override { return SpareKey && SpareKey(code, shift); }
    void Form_KeyReleased(int code, int shift) override { KeyReleased(code, shift); }
    bool TakesDrops() const override { return true; }
    void Form_Drop(const Offer& offer) override { Dropped(offer); }
    void Form_Load() override { Load(); }
    void Form_Activate() override { Activate(); }
    void Form_Unload(bool& cancel) override { Unloading(cancel); }
};

}  // namespace coinlet
