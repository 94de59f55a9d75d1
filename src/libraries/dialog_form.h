#pragma once

#include "controls/file_boxes.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/list_box.h"
#include "controls/menu.h"
#include "controls/picture_box.h"
#include "controls/pointed_picture.h"
#include "controls/scaled_picture.h"
#include "controls/scroll_bar.h"
#include "controls/shapes.h"
#include "controls/vista_button.h"

#include <filesystem>
#include <string>

namespace coinlet {

struct Context;

/// Pictures from anywhere: the user goes to a folder, picks a picture, gives it a size, scrolls through it,
/// cuts a box out of it, and lets what he sees float over the canvas. All measures are twips.
class DialogForm : public Form {
public:
    explicit DialogForm(Context& context);

    Label Label1{*this, "Label1"};  ///< Over the places.
    DriveListBox Drive1{*this, "Drive1"};
    Label Label2{*this, "Label2"};  ///< Over the folders.
    DirListBox Dir1{*this, "Dir1"};
    FileListBox File1{*this, "File1"};        ///< Reads the folder; hidden.
    Label Label3{*this, "Label3"};            ///< Over the pictures.
    ListBox List1{*this, "List1"};            ///< The pictures of the folder.
    Shape Shape1{*this, "Shape1"};            ///< The edge of the largest viewport.
    PictureBox Orgineel{*this, "Orgineel"};   ///< The picture as it was loaded; hidden.
    ScaledPicture BackPic{*this, "BackPic"};  ///< The same at the size that was chosen; hidden.
    PictureBox ClipPic{*this, "ClipPic"};     ///< What was cut out; hidden.
    PointedPicture Pic{*this, "Pic"};         ///< The viewport: what is seen of it, and exported.
    Shape Layer{Pic, "Layer"};                ///< The box to be cut out.
    // Where the viewport is on the picture.
    ScrollBar HScroll1{*this, "HScroll1", Orientation::Horizontal};
    ScrollBar VScroll1{*this, "VScroll1", Orientation::Vertical};
    Label Label4{*this, "Label4"};            ///< What to do here; then the picked file.
    Label Label5{*this, "Label5"};            ///< Its sizes, or those of the box.
    VistaButton HoekKnop{*this, "HoekKnop"};  ///< Stretches the picture over the viewport.
    VistaButton ExportKnop{*this, "ExportKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};

    MenuItem File{*this, "File", "File"};
    MenuItem FileExit{File, "FileExit", "Exit"};
    MenuItem Size{*this, "Size", "Size"};
    ControlArray<MenuItem> SizePic{Size, "SizePic", 1, 10};

    void Form_Load() override;

private:
    void Drive1_Change();
    void Dir1_Change();
    void List1_Click();
    void SizePic_Click(int index);
    void Pic_MouseDown(float x, float y);
    void Pic_MouseMove(float x, float y);
    void Pic_MouseUp();
    void ExportKnop_Click();

    /// Paints what the scroll bars show of the picture.
    void ScrollPicture();
    /// Both bars back to the start, with the range that the picture now needs.
    void AdjustScrollBars();
    void CheckSize(int index);
    void ShowFile(const std::filesystem::path& file);

    Context& context_;
};

}  // namespace coinlet
