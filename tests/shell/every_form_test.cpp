// Every form of the program by keys alone, in its real windows: the tab key reaches all that can be used, the
// arrows reach every option, and letters lead to the rows of every list.

#include "base/order_key.h"
#include "controls/check_box.h"
#include "controls/list_box.h"
#include "core/tool_codes.h"
#include "shell/form_window.h"
#include "whole_program.h"

#include <QApplication>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace coinlet::test {
namespace {

std::string NameOf(const Control* control) {
    if (!control) return "nothing";
    std::string name(control->Name());
    if (control->Index() != noIndex) name += "(" + std::to_string(control->Index()) + ")";
    return name;
}

std::vector<Control*> ShownControls(const Form& form) {
    std::vector<Control*> controls;
    for (Element* element : form.Elements())
        if (auto* control = dynamic_cast<Control*>(element);
            control && control->Shown() && control->Reachable())
            controls.push_back(control);
    return controls;
}

/// Whether the user can do something with it by the pointer.
bool CanBeUsed(const Control& control) {
    switch (control.Kind()) {
        case ControlKind::TextBox:
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
        case ControlKind::ScrollBar:
        case ControlKind::ListBox:
        case ControlKind::ComboBox:
        case ControlKind::Button:
            return true;
        case ControlKind::Label:
        case ControlKind::PictureBox:
            return control.MouseDown || control.Click;
        default:
            return false;
    }
}

class ProgramByKeys : public WholeProgram {
protected:
    /// A key, and the program has done with it.
    void Press(User& user, const std::string& key) {
        user.Key(key);
        user.Sees([] { return true; });
    }

    /// Where the tab key leads from control to control, until it is round.
    std::vector<Control*> Round(User& user, Form& form) {
        std::vector<Control*> stops;
        const std::size_t most = ShownControls(form).size() + 1;
        while (stops.size() <= most) {
            Control* before = nullptr;
            user.Has([&] { before = form.Focus(); });
            user.Key("Tab");
            if (!user.Sees([&] { return form.Focus() != before; })) break;
            Control* stop = nullptr;
            user.Has([&] {
                stop = form.Focus();
                if (!stop) return;
                // The toolkit's keyboard is there too.
                const FormWindow* window = platform.WindowOf(form);
                EXPECT_EQ(window->focusWidget(), &window->ViewOf(*stop)->KeyboardWidget()) << NameOf(stop);
            });
            if (!stop || std::ranges::find(stops, stop) != stops.end()) break;
            stops.push_back(stop);
        }
        return stops;
    }

    /// The options of a choice, walked by the arrows from the one that the tab key stops at.
    void WalkOptions(User& user, OptionButton& start, std::set<const Control*>& reached) {
        std::size_t count = 0;
        user.Has([&] {
            start.SetFocus();
            platform.Mirror();
            count = static_cast<std::size_t>(
                std::ranges::count_if(start.Parent().Children(), [](const Control* each) {
                    return dynamic_cast<const OptionButton*>(each) && each->CanFocus();
                }));
        });
        Form& form = start.OwnerForm();
        for (std::size_t i = 1; i < count; ++i) {
            const Control* before = form.Focus();
            user.Key("Down");
            EXPECT_TRUE(user.Sees([&] { return form.Focus() != before; })) << NameOf(before);
            user.Has([&] {
                const auto* option = dynamic_cast<const OptionButton*>(form.Focus());
                ASSERT_NE(option, nullptr);
                EXPECT_TRUE(option->Value());
                reached.insert(option);
            });
        }
    }

    std::vector<Control*> UsableControls(User& user, const Form& form) {
        std::vector<Control*> usable;
        user.Has([&] {
            for (Control* control : ShownControls(form))
                if (CanBeUsed(*control)) usable.push_back(control);
        });
        return usable;
    }

    void ExpectAllReached(User& user, Form& form) {
        const std::vector<Control*> usable = UsableControls(user, form);
        walked_.insert(usable);
        const std::vector<Control*> stops = Round(user, form);
        std::set<const Control*> reached(stops.begin(), stops.end());
        for (Control* stop : stops)
            if (auto* option = dynamic_cast<OptionButton*>(stop)) WalkOptions(user, *option, reached);
        for (const Control* control : usable)
            EXPECT_TRUE(reached.contains(control)) << form.Name() << "." << NameOf(control);
    }

    /// The same with what is shown only for some choice.
    void ExpectAllReachedInEveryMode(User& user, Form& form) {
        ExpectAllReached(user, form);
        for (Control* control : ShownControls(form)) {
            const bool chooses =
                control->Kind() == ControlKind::CheckBox || control->Kind() == ControlKind::OptionButton;
            if (!chooses) continue;
            user.Has([&] { control->PointerClicked(), platform.Mirror(); });
            if (walked_.contains(UsableControls(user, form))) continue;
            SCOPED_TRACE("after a click on " + NameOf(control));
            ExpectAllReached(user, form);
        }
    }

    /// Letters lead to a row of every list that has rows to choose from.
    void ExpectLettersLeadToRows(User& user, Form& form) {
        for (Control* control : ShownControls(form)) {
            auto* const list = dynamic_cast<ListBox*>(control);
            if (!list) continue;
            SCOPED_TRACE(std::string(form.Name()) + "." + NameOf(list));
            int wanted = -1;
            std::string letters;
            user.Has([&] { letters = LettersOfARow(*list, wanted); });
            if (wanted < 0) continue;
            user.Has([&] {
                list->SetFocus();
                platform.Mirror();
            });
            user.Type(letters);
            EXPECT_TRUE(user.Sees([&] { return list->ListIndex() == wanted; })) << letters;
            Press(user, "Home");
            EXPECT_TRUE(user.Sees([&] { return list->ListIndex() == 0; }));
            Press(user, "Next");
            const int page = std::min(list->VisibleRows(), list->ListCount() - 1);
            EXPECT_TRUE(user.Sees([&] { return list->ListIndex() == page; }));
            Press(user, "End");
            EXPECT_TRUE(user.Sees([&] { return list->ListIndex() == list->ListCount() - 1; }));
            ++lists_;
        }
    }

    /// Small letters that one row alone begins with, and that row; the last such one that isn't chosen.
    static std::string LettersOfARow(const ListBox& list, int& row) {
        for (int i = list.ListCount() - 1; i >= 0; --i) {
            std::string letters;
            for (const char c : list.List(i)) {
                if ((c < 'a' || c > 'z') && (c < 'A' || c > 'Z') && (c < '0' || c > '9')) break;
                letters += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
                int others = 0;
                for (int other = 0; other < list.ListCount(); ++other)
                    if (other != i && BeginsWith(list.List(other), letters)) ++others;
                if (others > 0) continue;
                if (i == list.ListIndex()) break;
                row = i;
                return letters;
            }
        }
        return {};
    }

    int lists_ = 0;
    std::set<std::vector<Control*>> walked_;  ///< Each time: all that could be used then.
};

TEST_F(ProgramByKeys, TheMainFormIsUsedByThemAlone) {
    Run(Main(), [&](User& user) {
        ExpectAllReached(user, Main());
        ExpectLettersLeadToRows(user, Main());
        EXPECT_EQ(lists_, 1);
        // The eraser brings controls of its own; the text panel takes the place of the tools.
        user.Has([&] { Main().Knop[eraseTool].PointerClicked(), platform.Mirror(); });
        ExpectAllReached(user, Main());
        user.Has([&] { Main().Knop[textTool].PointerClicked(), platform.Mirror(); });
        EXPECT_TRUE(Main().Frame6.Shown());
        ExpectAllReached(user, Main());
    });
}

TEST_F(ProgramByKeys, TheHelpOfTheCollectionIsReadAndLeft) {
    const auto row = std::ranges::find(Dialogs(), std::string_view("CollectionForm"), &DialogRow::form);
    Run(Main(), [&](User& user) {
        Form& dialog = Open(user, *row);
        auto& help = dynamic_cast<Control&>(*dialog.Find("HelpKnop"));
        user.Has([&] { help.PointerClicked(), platform.Mirror(); });
        EXPECT_TRUE(dynamic_cast<const Control&>(*dialog.Find("Text4")).Shown());
        ExpectAllReached(user, dialog);
        user.Has([&] { help.SetFocus(), platform.Mirror(); });
        Press(user, "space");
        EXPECT_TRUE(user.Sees([&] { return dynamic_cast<const Control&>(*dialog.Find("List1")).Shown(); }));
        Press(user, "Escape");
        EXPECT_TRUE(user.Sees([&] { return platform.FrontForm() == &Main(); }));
    });
}

class EveryDialogByKeys : public ProgramByKeys, public testing::WithParamInterface<DialogRow> {};

TEST_P(EveryDialogByKeys, IsUsedByThemAlone) {
    Run(Main(), [&](User& user) {
        Form& dialog = Open(user, GetParam());
        ExpectAllReachedInEveryMode(user, dialog);
        ExpectLettersLeadToRows(user, dialog);
        // A chosen row may bring more.
        if (!walked_.contains(UsableControls(user, dialog))) ExpectAllReached(user, dialog);
        user.Key("Escape");
        EXPECT_TRUE(user.Sees([&] { return platform.FrontForm() == &Main(); }));
    });
}

INSTANTIATE_TEST_SUITE_P(AsDelivered, EveryDialogByKeys,
                         testing::ValuesIn(Dialogs().begin(), Dialogs().end()), [](const auto& test) {
                             return std::string(test.param.form) + "_" + std::to_string(test.index);
                         });

}  // namespace
}  // namespace coinlet::test
