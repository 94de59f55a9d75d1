// All dialogs of the program, each opened by what the user presses for it, in both languages: what one
// expects of any dialog holds for it. A dialog is looked at because it has a row among the dialogs, and for
// nothing else.
#include "app/dialogs.h"

#include "base/text.h"
#include "core/accessible_names.h"
#include "core/language.h"
#include "core/main_form.h"
#include "unit/app/delivered_program.h"
#include "unit/app/layout_check.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <variant>
#include <vector>

namespace coinlet::test {
namespace {

/// The user's press on an opener, which must be there for him.
class Press {
public:
    explicit Press(MainForm& main) : main_(main) {}
    void operator()(MenuItem MainForm::*entry) const {
        EXPECT_TRUE((main_.*entry).Enabled);
        (main_.*entry).Click();
    }
    void operator()(ToolButton button) const {
        EXPECT_TRUE(main_.Knop[button.number].Reachable());
        main_.Knop[button.number].PointerClicked();
    }
    void operator()(FillColourField) const { main_.ColorLabel.PointerClicked(); }

private:
    MainForm& main_;
};

template <class Kind>
std::vector<Kind*> Usable(Form& form) {
    std::vector<Kind*> found;
    for (Element* element : form.Elements()) {
        auto* control = dynamic_cast<Kind*>(element);
        if (control != nullptr && control->Shown() && control->Reachable()) found.push_back(control);
    }
    return found;
}

struct Opening {
    std::string language;
    DialogRow row;
};

std::string NameOf(const Opening& opening) {
    // Two rows may open one form.
    const auto place = std::ranges::find(Dialogs(), opening.row.open, &DialogRow::open) - Dialogs().begin();
    return opening.language + "_" + std::string(opening.row.form) + "_" + std::to_string(place);
}
void PrintTo(const Opening& opening, std::ostream* out) {
    *out << NameOf(opening);
}

class EveryDialog : public DeliveredProgram, public testing::WithParamInterface<Opening> {
protected:
    EveryDialog() { LoadLanguage(program.GetContext(), GetParam().language); }

    const DialogRow& Row() const { return GetParam().row; }

    /// Opens the dialog, does this in it, and leaves it by the close box if it is still there.
    void InDialog(const std::function<void(Form&)>& doing) {
        bool opened = false;
        platform.doings.emplace_back([&] {
            Form& dialog = *platform.FrontForm();
            opened = dialog.Name() == Row().form;
            doing(dialog);
            dialog.Unload();
        });
        std::visit(Press(Main()), Row().opener);
        EXPECT_TRUE(opened);
        EXPECT_EQ(platform.FrontForm(), &Main());
    }

    void ExpectGoodLooks(Form& dialog, const std::string& when) {
        ExpectInside(dialog, when);
        ExpectApart(dialog, when);
        ExpectTextsWhole(dialog, when);
        ExpectReadingOrder(dialog, when);
        ExpectWhole(Main().InfoLabel, Main().InfoLabel.Caption, when);
    }
};

/// What a screen reader has to call a control by: its caption, else its tooltip, else the name that it is
/// given.
std::string ReadOut(const Control& control, const NameGiver& names) {
    std::string caption;
    if (const auto* button = dynamic_cast<const VistaButton*>(&control)) caption = button->Caption();
    if (const auto* box = dynamic_cast<const CheckBox*>(&control)) caption = box->Caption;
    if (const auto* option = dynamic_cast<const OptionButton*>(&control)) caption = option->Caption;
    if (const auto* label = dynamic_cast<const Label*>(&control)) caption = label->Caption;
    if (!TrimBlanks(caption).empty()) return std::string(TrimBlanks(caption));
    const auto toolTip = TrimBlanks(control.ToolTipText);
    return toolTip.empty() ? names.NameOf(control) : std::string(toolTip);
}

void ExpectNames(Form& form, const NameGiver& names) {
    for (Control* control : Usable<Control>(form)) {
        const bool isUsed = control->CanFocus() || control->Click || control->MouseDown;
        const std::string name = ReadOut(*control, names);
        if (isUsed) {
            EXPECT_FALSE(name.empty()) << form.Name() << "." << control->Name() << " has no name";
        }
        // What only the code calls it says nothing to anybody; fields may be called by a word that both use.
        const bool hasWordOfItsOwn =
            control->Kind() == ControlKind::Button || control->Kind() == ControlKind::Label;
        if (!hasWordOfItsOwn) {
            EXPECT_NE(name, control->Name()) << form.Name();
        }
    }
}

TEST_P(EveryDialog, HasANameForWhatOneUsesInIt) {
    const AccessibleNames names(program.GetContext());
    ExpectNames(Main(), names);
    InDialog([&](Form& dialog) { ExpectNames(dialog, names); });
}

/// The controls of that name; in an array those of that index, if one is asked for.
std::vector<const Control*> ControlsOf(const Form& form, std::string_view name, int index) {
    std::vector<const Control*> found;
    for (const Element* element : form.Elements()) {
        const auto* control = dynamic_cast<const Control*>(element);
        if (control != nullptr && control->Name() == name && (index == noIndex || control->Index() == index))
            found.push_back(control);
    }
    return found;
}

/// Names given to controls, or by labels, that a form hasn't got (any more) are left-overs.
void ExpectNamesAreUsed(const Form& form) {
    for (const NamedControl& row : NamedControls()) {
        if (row.form != form.Name()) continue;
        const std::vector<const Control*> controls = ControlsOf(form, row.control, row.index);
        EXPECT_FALSE(controls.empty()) << row.form << "." << row.control << " isn't there";
        for (const Control* control : controls) {
            const bool isLabelled =
                row.label.empty() || dynamic_cast<const Label*>(form.Find(row.label, control->Index()));
            EXPECT_TRUE(isLabelled) << row.form << "." << row.label << " isn't there";
        }
    }
}

TEST_P(EveryDialog, HasWhatNamesAreGivenTo) {
    ExpectNamesAreUsed(Main());
    InDialog([](Form& dialog) { ExpectNamesAreUsed(dialog); });
}

TEST(NamedForms, AreFormsOfTheProgram) {
    for (const NamedControl& row : NamedControls()) {
        const bool isThere =
            row.form == "Main" || std::ranges::find(Dialogs(), row.form, &DialogRow::form) != Dialogs().end();
        EXPECT_TRUE(isThere) << row.form;
        EXPECT_NE(row.key.empty(), row.label.empty()) << row.form << "." << row.control;
    }
}

TEST_P(EveryDialog, LooksRightWhenItOpens) {
    InDialog([this](Form& dialog) {
        ExpectGoodLooks(dialog, "at the opening");
        EXPECT_FALSE(TrimBlanks(dialog.Caption).empty());
        EXPECT_FALSE(TrimBlanks(Main().InfoLabel.Caption).empty());
        EXPECT_NE(dialog.Focus(), nullptr) << "nothing has the focus";
    });
}

// What is shown only for some choice has its place too.
TEST_P(EveryDialog, LooksRightWithEveryChoice) {
    InDialog([this](Form& dialog) {
        for (CheckBox* box : Usable<CheckBox>(dialog)) {
            box->PointerClicked();
            ExpectGoodLooks(dialog, "after a click on " + std::string(box->Name()));
            box->PointerClicked();
        }
        for (OptionButton* option : Usable<OptionButton>(dialog)) {
            option->PointerClicked();
            ExpectGoodLooks(dialog, "with " + option->Caption);
        }
    });
}

// Captions tell the value of a slider: there is room for the longest.
TEST_P(EveryDialog, LooksRightAtBothEndsOfItsSliders) {
    InDialog([this](Form& dialog) {
        for (ScrollBar* bar : Usable<ScrollBar>(dialog)) {
            for (const int end : {bar->Highest(), bar->Lowest()}) {
                bar->UserDrags(end);
                bar->UserReleases();
                ExpectGoodLooks(dialog, "with " + std::string(bar->Name()) + " at " + std::to_string(end));
            }
        }
    });
}

TEST_P(EveryDialog, IsLeftByEscape) {
    InDialog([](Form& dialog) {
        dialog.KeyDown(nullptr, keyEscape, 0);
        EXPECT_FALSE(dialog.Loaded());
    });
}

// Enter is for the dialog's own button, once, and for no other.
TEST_P(EveryDialog, HasEnterForItsDefaultButtonAlone) {
    InDialog([](Form& dialog) {
        int presses = 0, others = 0;
        for (Element* element : dialog.Elements()) {
            auto* button = dynamic_cast<VistaButton*>(element);
            if (button == nullptr) continue;
            int& count = button == dialog.DefaultButton ? presses : others;
            button->Click = [&count] { ++count; };
        }
        int expected = 0;
        const auto enter = [&](Control* focused) {
            dialog.MoveFocus(focused);
            dialog.KeyDown(nullptr, keyReturn, 0);
            if (dialog.DefaultButton != nullptr) ++expected;
            EXPECT_EQ(presses, expected);
            EXPECT_EQ(others, 0);
        };
        enter(nullptr);
        for (TextBox* box : Usable<TextBox>(dialog))
            if (!box->MultiLine) enter(box);
        for (ComboBox* box : Usable<ComboBox>(dialog))
            enter(box);
    });
}

// Where there is one line to type, Enter ends it: by the dialog's button, or by the field itself.
TEST_P(EveryDialog, TakesEnterWhereThereIsOneLineToType) {
    InDialog([](Form& dialog) {
        std::vector<TextBox*> lines = Usable<TextBox>(dialog);
        std::erase_if(lines, [](const TextBox* box) { return box->MultiLine || box->Locked; });
        if (lines.size() != 1) return;
        EXPECT_TRUE(dialog.DefaultButton != nullptr || lines.front()->KeyDown);
    });
}

std::vector<Opening> RowsInBothLanguages() {
    std::vector<Opening> openings;
    for (const char* language : {"Nederlands", "English"}) {
        for (const DialogRow& row : Dialogs())
            openings.push_back({language, row});
    }
    return openings;
}

INSTANTIATE_TEST_SUITE_P(AsDelivered, EveryDialog, testing::ValuesIn(RowsInBothLanguages()),
                         [](const auto& test) { return NameOf(test.param); });

}  // namespace
}  // namespace coinlet::test
