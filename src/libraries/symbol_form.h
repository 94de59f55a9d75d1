#pragma once

#include "controls/combo_box.h"
#include "controls/file_boxes.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/pointed_picture.h"
#include "controls/scroll_bar.h"
#include "controls/shapes.h"
#include "controls/vista_button.h"

#include <optional>
#include <string>

namespace coinlet {

struct Context;

/// The fonts of pictograms that come with the program: the user shows one as a strip of all its symbols,
/// scrolls along it, drags a box around a symbol and lets it float over the canvas. A font that was shown can
/// be used by the name of its family for as long as the program runs.
class SymbolForm : public Form {
public:
    explicit SymbolForm(Context& context);

    FileListBox File1{*this, "File1"};     ///< Reads the library; hidden.
    Label BackLabel{*this, "BackLabel"};   ///< The text of the strip, which is as wide as this; hidden.
    PictureBox BackPic{*this, "BackPic"};  ///< The strip; hidden.
    Label Label3{*this, "Label3"};         ///< The panel behind the choice of the font.
    ComboBox Combo1{*this, "Combo1"};      ///< The fonts, by the names of their files.
    VistaButton InstalKnop{*this, "InstalKnop"};  ///< Shows the chosen font.
    Label Label1{*this, "Label1"};                ///< What Combo2 is for.
    ComboBox Combo2{*this, "Combo2"};             ///< Size of the symbols in points.
    Label Label4{*this, "Label4"};                ///< The panel behind the strip.
    Shape Shape1{*this, "Shape1"};                ///< Edge of the picture.
    PointedPicture Pic{*this, "Pic"};             ///< The part of the strip that the slider is at.
    Shape Layer{Pic, "Layer"};                    ///< The box around what will be handed over.
    ScrollBar HScroll1{*this, "HScroll1", Orientation::Horizontal};  ///< The strip's first column on show.
    VistaButton ExportKnop{*this, "ExportKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};

    void Form_Load() override;

private:
    void InstalKnop_Click();
    void Combo2_Change();
    void HScroll1_Change();
    void Pic_MouseDown(int button, float x, float y);
    void Pic_MouseMove(int button, float x, float y);
    void ExportKnop_Click();

    /// The family of the chosen file, usable from now on; empty if the file is no font.
    std::string AddChosenFont();
    /// The number that stands in the list of sizes.
    float ChosenSize() const;
    void DrawSymbolStrip();
    /// Prints the strip, unless it stands there already.
    void PrintStrip();
    /// Shows the strip from a column on.
    void ShowStrip(int column);

    /// What the strip's pixels come from.
    struct Strip {
        std::string family, text;
        float size = 0;    ///< Points.
        double width = 0;  ///< Twips.

        friend bool operator==(const Strip&, const Strip&) = default;
    };

    Context& context_;
    std::optional<Strip> printed_;  ///< Nothing once the letters of a font may have become others.
};

}  // namespace coinlet
