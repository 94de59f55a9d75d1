#pragma once

#include "controls/combo_box.h"
#include "controls/file_boxes.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/shapes.h"
#include "controls/vista_button.h"

namespace coinlet {

struct Context;

/// The library of cliparts, in sheets of five: the user clicks one, sizes it, reduces it to black, mirrors
/// it, and lets it float over the canvas. Each change of the size starts from the sheet's clipart anew.
class ClipartForm : public Form {
public:
    explicit ClipartForm(Context& context);

    FileListBox File1{*this, "File1"};                  ///< Reads the library; hidden.
    PictureBox BackPic{*this, "BackPic"};               ///< The picture of the chosen file; hidden.
    PictureBox ExportPic{*this, "ExportPic"};           ///< The chosen clipart, at full size; hidden.
    Label Label6{*this, "Label6"};                      ///< What to do here.
    Label Label4{*this, "Label4"};                      ///< What Combo1 is for.
    ComboBox Combo1{*this, "Combo1"};                   ///< The sheets, by the names of their files.
    Label Label5{*this, "Label5"};                      ///< How many cliparts there are.
    ControlArray<Shape> Shape1{*this, "Shape1", 0, 2};  ///< Edges of the pictures.
    PictureBox Pic{*this, "Pic"};                       ///< The sheet at a third of its size.
    PictureBox BigPic{*this, "BigPic"};                 ///< What will be handed over.
    ScrollBar VScroll2{*this, "VScroll2", Orientation::Vertical};  ///< Its width in pixels.
    Label Label9{*this, "Label9"};                                 ///< Its size.
    VistaButton BWKnop{*this, "BWKnop"};                           ///< Wipes all but black.
    Label Label2{*this, "Label2"};                                 ///< What BWKnop does.
    VistaButton HorKnop{*this, "HorKnop"};                         ///< Left for right.
    Label Label7{*this, "Label7"};                                 ///< What HorKnop does.
    VistaButton ExportKnop{*this, "ExportKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};

    void Form_Load() override;

private:
    void Combo1_Change();
    void Pic_MouseDown(float x, float y);
    void VScroll2_Change();
    void BWKnop_Click();
    void HorKnop_Click();

    /// Loads the file that the list shows. One that is no picture leaves the former picture.
    void LoadSheet();
    /// True if the loaded picture has the size of a sheet.
    bool HasSheet() const;
    void ShowChosen();

    Context& context_;
};

}  // namespace coinlet
