#pragma once

#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/form.h"
#include "controls/frame.h"
#include "controls/label.h"
#include "controls/list_box.h"
#include "controls/menu.h"
#include "controls/picture_box.h"
#include "controls/platform.h"
#include "controls/scroll_bar.h"
#include "controls/shapes.h"
#include "controls/text_box.h"
#include "controls/timer.h"
#include "controls/vista_button.h"

#include <string>
#include <vector>

namespace coinlet::test {

/// A form with every kind of control, which writes down what happens to it.
class SampleForm : public Form {
public:
    explicit SampleForm(FormServices services);

    void Form_Activate() override { log.emplace_back("Activate"); }

    std::vector<std::string> log;
    int Count(const std::string& event) const;

    MenuItem File{*this, "File", "File"};
    MenuItem FileNew{File, "FileNew", "New"};
    MenuItem FileRule{File, "FileRule", "-"};
    MenuItem FileLocked{File, "FileLocked", "Locked"};
    MenuItem Edit{*this, "Edit", "Edit"};
    MenuItem EditCopy{Edit, "EditCopy", "Copy"};
    MenuItem Shapes{*this, "Shapes", "Shapes"};
    MenuItem ShapesStar{Shapes, "ShapesStar", "Star"};
    Timer Timer1{*this, "Timer1"};

    Label Label1{*this, "Label1"};
    Label Label2{*this, "Label2"};
    Label Label3{*this, "Label3"};
    TextBox Text1{*this, "Text1"};
    TextBox Text2{*this, "Text2"};
    CheckBox Check1{*this, "Check1"};
    Frame Frame1{*this, "Frame1"};
    OptionButton Option1{Frame1, "Option1", 0};
    OptionButton Option2{Frame1, "Option1", 1};
    ScrollBar HScroll1{*this, "HScroll1", Orientation::Horizontal};
    ScrollBar VScroll1{*this, "VScroll1", Orientation::Vertical};
    ListBox List1{*this, "List1"};
    ComboBox Combo1{*this, "Combo1"};
    PictureBox Pic{*this, "Pic"};
    VistaButton PicKnop{Pic, "PicKnop"};
    Shape Shape1{Pic, "Shape1"};
    LineShape Line1{*this, "Line1"};
    VistaButton OkKnop{*this, "OkKnop"};
    VistaButton GrayKnop{*this, "GrayKnop"};

private:
    void PlaceControls();
    void BindEvents();
    void Write(const char* event) { log.emplace_back(event); }

    double lastX_ = 0, lastY_ = 0;
};

}  // namespace coinlet::test
