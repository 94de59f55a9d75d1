#pragma once

#include "base/desktop.h"
#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/file_boxes.h"
#include "controls/frame.h"
#include "controls/label.h"
#include "controls/menu.h"
#include "controls/picture_box.h"
#include "controls/platform.h"
#include "controls/scroll_bar.h"
#include "controls/shapes.h"
#include "controls/text_box.h"
#include "controls/timer.h"
#include "controls/vista_button.h"
#include "player/program.h"
#include "surface/printer.h"

#include <string>

namespace coinlet::test {

/// A dialog that asks for a word.
class AskForm : public Form {
public:
    explicit AskForm(FormServices services) : Form(services, "AskForm") {
        Width = 3000;
        Height = 1500;
        OkKnop.Move(150, 600, 1200, 375);
        CancelKnop.Move(1500, 600, 1200, 375);
        OkKnop.Click = [this] {
            accepted = true;
            Unload();
        };
        CancelKnop.Click = [this] { Unload(); };
    }

    TextBox Text1{*this, "Text1"};
    VistaButton OkKnop{*this, "OkKnop"};
    VistaButton CancelKnop{*this, "CancelKnop"};
    bool accepted = false;
};

/// A main form with a control of every kind. Each event adds a word to `Log`, so that a script can read what
/// its lines did.
class EveryControlForm : public Form {
public:
    explicit EveryControlForm(const Services& services)
        : Form(services.ForForms(), "Main"), services_(services) {
        Caption = "Every control";
        Width = Height = 9000;
        Place();
        Bind();
    }

    Label Log{*this, "Log"};
    Label Label1{*this, "Label1"};
    TextBox Text1{*this, "Text1"};
    CheckBox Check1{*this, "Check1"};
    Frame Frame1{*this, "Frame1"};
    ControlArray<OptionButton> Option{Frame1, "Option", 0, 2};
    ScrollBar HScroll1{*this, "HScroll1", Orientation::Horizontal};
    ListBox List1{*this, "List1"};
    ComboBox Combo1{*this, "Combo1"};
    PictureBox Pic{*this, "Pic"};
    PictureBox Cover{*this, "Cover"};
    Shape Band{Pic, "Band"};
    LineShape Edge{Pic, "Edge"};
    ControlArray<VistaButton> Knop{*this, "Knop", 0, 8};
    FileListBox File1{*this, "File1"};
    DirListBox Dir1{*this, "Dir1"};
    DriveListBox Drive1{*this, "Drive1"};
    MenuItem FileMenu{*this, "FileMenu", "File"};
    MenuItem FileOpen{FileMenu, "FileOpen", "Open"};
    MenuItem FileRule{FileMenu, "FileRule", "-"};
    MenuItem PopMenu{*this, "PopMenu", "Pop"};
    MenuItem PopFirst{PopMenu, "PopFirst", "First"};
    Timer Timer1{*this, "Timer1"};
    StockPicture Stock{*this, "Stock"};

    void Form_Activate() override { Say("Activate"); }
    void Form_Unload(bool& cancel) override {
        Message message{"Leave?", "Main", MessageButtons::YesNo};
        cancel = GetPlatform().ShowMessage(message) == Answer::No;
        if (!cancel) GetPlatform().End();
    }

private:
    void Say(const std::string& word) { Log.Caption += word + ";"; }

    void Place() {
        Text1.Move(0, 300, 1500, 300);
        Frame1.Move(0, 700, 3000, 900);
        Option[0].Move(15, 15, 900, 300);
        Option[1].Move(15, 330, 900, 300);
        HScroll1.Move(0, 1700, 1500, 255);
        HScroll1.SetRange(0, 100);
        for (const char* row : {"one", "two", "three"}) {
            List1.AddItem(row);
            Combo1.AddItem(row);
        }
        Pic.Move(3000, 0, 300, 150);  // 20 by 10 pixels
        Cover.Move(3150, 0, 150, 150);
        Cover.Visible = false;
        for (int i = Knop.First(); i <= Knop.Last(); ++i)
            Knop[i].Move(600.0 * i, 3000, 600, 300);
        PopMenu.Visible = false;
        Timer1.Interval = 1000;
    }

    void Bind() {
        Text1.Change = [this] { Say("Text1_Change"); };
        Check1.Click = [this] { Say("Check1_Click"); };
        Option.Bind(&OptionButton::Click, [this](int index) { Say("Option" + std::to_string(index)); });
        HScroll1.Change = [this] { Say("HScroll1_Change"); };
        List1.Click = [this] { Say("List1_Click"); };
        Combo1.Click = [this] { Say("Combo1_Click"); };
        Combo1.Change = [this] { Say("Combo1_Change"); };
        Pic.MouseDown = [this](int button, int, float x, float y) {
            Say("Down" + std::to_string(button));
            Pic.surface.PSet(x, y, RGB(255, 0, 0));
        };
        Pic.MouseMove = [this](int button, int, float, float) { Say("Move" + std::to_string(button)); };
        Pic.MouseUp = [this](int button, int, float, float) { Say("Up" + std::to_string(button)); };
        Pic.KeyDown = [this](int code, int) { Say("Key" + std::to_string(code)); };
        Pic.KeyPress = [this](int code) { Say("Press" + std::to_string(code)); };
        Pic.KeyUp = [this](int code, int) { Say("KeyUp" + std::to_string(code)); };
        FileOpen.Click = [this] { Say("FileOpen"); };
        PopFirst.Click = [this] { Say("PopFirst"); };
        Timer1.Tick = [this] { Say("Timer1"); };
        Knop[0].Click = [this] { Ask(); };
        Knop[1].Click = [this] { Question(); };
        Knop[2].Click = [this] { ServeTwice(); };
        Knop[3].Click = [this] { PrintPage(); };
        Knop[4].Click = [this] { GetPlatform().PopupMenu(PopMenu); };
        Knop[5].Click = [this] {
            services_.desktop.OpenDocument((services_.applicationFolder / "Help/English.pdf").string());
        };
        Knop[6].Click = [this] { Label1.Caption = GetPlatform().PickFolder("Which folder?"); };
        Knop[7].Click = [this] { Label1.Caption = GetPlatform().InputBox("Name?", "Main", "standard"); };
    }

    void Ask() {
        AskForm dialog(services_.ForForms());
        GetPlatform().ShowModal(dialog);
        Say(dialog.accepted ? "accepted " + dialog.Text1.Text() : "cancelled");
    }

    void Question() {
        Message message{"Sure?", "Question", MessageButtons::YesNo};
        const Answer answer = GetPlatform().ShowMessage(message);
        GetPlatform().ShowMessage({answer == Answer::Yes ? "It was yes." : "It was no."});
    }

    void ServeTwice() {
        Say("begin");
        GetPlatform().DoEvents();
        Say("middle");
        GetPlatform().Wait(2.5);
        Say("end");
    }

    void PrintPage() {
        FontProperties font;
        font.FontSize = 12;
        font.FontBold = true;
        services_.printer.Print(100, 200, font, RGB(1, 2, 3), "A \"text\"");
        services_.printer.SetOrientation(PageOrientation::Landscape);
        services_.printer.NewPage();
        services_.printer.Box(1, 2, 3, 4.5, black);
        services_.printer.EndDoc();
    }

    const Services& services_;
};

/// A program of that form.
class EveryControlProgram : public player::Program {
public:
    explicit EveryControlProgram(const Services& services)
        : services_(services), main_(services), hidden_(services.ForForms(), "Hidden") {}

    void Start() override { services_.platform.ShowMain(main_); }
    Session& TheSession() override { return session_; }
    Form* HiddenForm(std::string_view name) override { return name == hidden_.Name() ? &hidden_ : nullptr; }
    /// Leaves the number and the parameter as a colour in the corner.
    void RunFilter(std::int32_t number, Surface& surface, std::int32_t parameter) override {
        surface.PSet(0, 0, RGB(number, parameter, 0));
    }

private:
    const Services& services_;
    Session session_;
    EveryControlForm main_;
    Form hidden_;
    StockPicture img_{hidden_, "Img", 0};
};

}  // namespace coinlet::test
