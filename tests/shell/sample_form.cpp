#include "sample_form.h"

#include <algorithm>

namespace coinlet::test {

SampleForm::SampleForm(FormServices services) : Form(services, "Main") {
    Caption = "Every control";
    Width = 600 * 15;
    Height = 400 * 15;
    PlaceControls();
    BindEvents();
}

void SampleForm::PlaceControls() {
    FileNew.Shortcut = "Ctrl+N";
    FileLocked.Enabled = false;
    EditCopy.Shortcut = "Ctrl+C";
    EditCopy.Checked = true;
    Shapes.Visible = false;
    Timer1.Interval = 0;

    Label1.Caption = "Filename :";
    Label1.Move(16 * 15, 16 * 15, 120 * 15, 16 * 15);
    Label2.Caption = "information available!";
    Label2.Transparent = false;
    Label2.BackColor = RGB(255, 255, 225);
    Label2.Border = true;
    Label2.Alignment = Alignment::Center;
    Label2.Move(16 * 15, 40 * 15, 160 * 15, 20 * 15);
    Label3.Caption = "As wide as its words";
    Label3.AutoSize = true;
    Label3.Move(16 * 15, 68 * 15);
    Text1.SetText("Coinlet");
    Text1.Move(16 * 15, 92 * 15, 160 * 15, 22 * 15);
    Text2.MultiLine = Text2.VerticalScroll = true;
    Text2.SetText("First line\r\nSecond line");
    Text2.Move(16 * 15, 120 * 15, 160 * 15, 60 * 15);
    Check1.Caption = "Mirror the design";
    Check1.Move(16 * 15, 188 * 15, 160 * 15, 20 * 15);
    Frame1.Caption = "Choices";
    Frame1.Move(16 * 15, 216 * 15, 160 * 15, 72 * 15);
    Option1.Caption = "Whole";
    Option1.SetValue(true);
    Option1.Move(12 * 15, 20 * 15, 120 * 15, 20 * 15);
    Option2.Caption = "Half";
    Option2.Move(12 * 15, 44 * 15, 120 * 15, 20 * 15);
    HScroll1.SetRange(0, 100);
    HScroll1.Move(16 * 15, 296 * 15, 160 * 15, 17 * 15);
    VScroll1.SetRange(50, 0);
    VScroll1.SetValue(50);
    VScroll1.Move(560 * 15, 16 * 15, 17 * 15, 160 * 15);
    for (const char* row : {"Anchor", "Bear", "Crown", "Deer"})
        List1.AddItem(row);
    List1.Move(192 * 15, 16 * 15, 120 * 15, 100 * 15);
    for (const char* row : {"Arial", "Courier", "Times"})
        Combo1.AddItem(row);
    Combo1.SetListIndex(0);
    Combo1.Move(192 * 15, 124 * 15, 120 * 15, 22 * 15);
    Pic.Move(328 * 15, 16 * 15, 200 * 15, 200 * 15);
    PicKnop.SetCaption("On it");
    PicKnop.Move(8, 168, 48, 24);
    Shape1.Form = ShapeForm::Rectangle;
    Shape1.BorderColor = RGB(200, 0, 0);
    Shape1.Move(150, 10, 40, 30);
    Line1.X1 = 16 * 15;
    Line1.X2 = 560 * 15;
    Line1.Y1 = Line1.Y2 = 336 * 15;
    Line1.BorderColor = RGB(0, 0, 255);
    OkKnop.SetCaption("Ok");
    OkKnop.ToolTipText = " Takes it ";
    OkKnop.Move(192 * 15, 352 * 15, 80 * 15, 28 * 15);
    GrayKnop.SetCaption("Gray");
    GrayKnop.SetEnabled(false);
    GrayKnop.Move(288 * 15, 352 * 15, 80 * 15, 28 * 15);
}

void SampleForm::BindEvents() {
    FileNew.Click = [this] { Write("FileNew"); };
    EditCopy.Click = [this] { Write("EditCopy"); };
    ShapesStar.Click = [this] { Write("ShapesStar"); };
    Timer1.Tick = [this] { Write("Tick"); };
    Text1.Change = [this] { log.push_back("Text1 " + Text1.Text()); };
    Text2.Change = [this] { Write("Text2"); };
    Check1.Click = [this] { Write("Check1"); };
    Option2.Click = [this] { Write("Option2"); };
    HScroll1.Change = [this] { log.push_back("Change " + std::to_string(HScroll1.Value())); };
    HScroll1.Scroll = [this] { Write("Scroll"); };
    VScroll1.Change = [this] { log.push_back("VChange " + std::to_string(VScroll1.Value())); };
    List1.Click = [this] { log.push_back("List1 " + List1.Text()); };
    List1.DblClick = [this] { log.push_back("DblClick " + List1.Text()); };
    Combo1.Click = [this] { log.push_back("Combo1 " + Combo1.Text()); };
    Combo1.Change = [this] { log.push_back("Combo1Change " + Combo1.Text()); };
    OkKnop.Click = [this] { Write("OkKnop"); };
    OkKnop.MouseIn = [this] { Write("MouseIn"); };
    OkKnop.MouseOut = [this] { Write("MouseOut"); };
    GrayKnop.Click = [this] { Write("GrayKnop"); };
    PicKnop.Click = [this] { Write("PicKnop"); };

    Pic.MouseDown = [this](int, int, float x, float y) {
        lastX_ = x;
        lastY_ = y;
        Write("PicDown");
    };
    Pic.MouseMove = [this](int button, int, float x, float y) {
        if (button != 1) return;
        Pic.surface.Line(lastX_, lastY_, x, y);
        Pic.surface.PSet(x, y);
        lastX_ = x;
        lastY_ = y;
    };
    Pic.MouseUp = [this](int, int, float, float) { Write("PicUp"); };
}

int SampleForm::Count(const std::string& event) const {
    return static_cast<int>(std::ranges::count(log, event));
}

}  // namespace coinlet::test
