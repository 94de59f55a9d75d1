#pragma once

#include "controls/check_box.h"
#include "controls/form.h"
#include "controls/label.h"
#include "controls/list_box.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/shapes.h"
#include "controls/vista_button.h"

#include <string>

namespace coinlet {

struct Context;

/// The catalogue of ready-made backs, in two collections: the user clicks one, which is shown beside the
/// design. The session's name of the back follows each click.
class BackForm : public Form {
public:
    explicit BackForm(Context& context);

    ListBox List1{*this, "List1"};         ///< The names of the collection's backs; hidden.
    PictureBox BackPic{*this, "BackPic"};  ///< The collection's picture; hidden.
    Label Label4{*this, "Label4"};         ///< What to do here.
    ControlArray<OptionButton> Option1{*this, "Option1", 1, 2};      ///< Which collection.
    ControlArray<Shape> Shape1{*this, "Shape1", 0, 2};               ///< Edges of the pictures.
    PictureBox Pic{*this, "Pic"};                                    ///< One row of four backs.
    ScrollBar HScroll1{*this, "HScroll1", Orientation::Horizontal};  ///< Which row of it.
    PictureBox Orgineel{*this, "Orgineel"};                          ///< The chosen back.
    Label Label5{*this, "Label5"};                                   ///< Its name.
    VistaButton ExportKnop{*this, "ExportKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};

    void Form_Load() override;

private:
    void Option1_Click(int index);
    void HScroll1_Change();
    void Pic_MouseDown(float x, float y);
    void ExportKnop_Click();

    /// Shows the first row of a collection. False, with everything left as it was, if its picture can't be
    /// loaded.
    bool LoadBackPicture(int collection);
    void LoadBackNames(int collection);
    /// The number of the collection's last row, counted from 0: the nearest to what its height gives.
    int LastRow() const;
    /// The name of a cell of the row shown, counted from 0; empty for a cell that the list has no name for.
    std::string NameOfCell(int cell) const;
    void ShowName(const std::string& name);

    Context& context_;
};

}  // namespace coinlet
