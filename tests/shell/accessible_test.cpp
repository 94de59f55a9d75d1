// What assistive tools are told of each control, and what they can do for the user.

#include "controls/name_giver.h"
#include "sample_form.h"
#include "shell/accessible_controls.h"
#include "shell/form_window.h"
#include "user.h"

#include <QAccessible>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace coinlet::test {
namespace {

/// Names by the code's name of the control.
struct Names : NameGiver {
    std::string NameOf(const Control& control) const override {
        const auto found = names.find(std::string(control.Name()));
        return found == names.end() ? std::string() : found->second;
    }
    std::uint64_t Revision() const override { return revision; }

    std::map<std::string, std::string> names;
    std::uint64_t revision = 1;
};

class Accessible : public ShellTest {
protected:
    Accessible() { platform.NameControlsBy(names); }
    ~Accessible() override = default;

    QAccessibleInterface& Of(const Control& control) {
        return *QAccessible::queryAccessibleInterface(
            &platform.WindowOf(control.OwnerForm())->ViewOf(control)->Widget());
    }
    std::string NameOf(const Control& control) { return Of(control).text(QAccessible::Name).toStdString(); }
    QStringList ActionsOf(const Control& control) { return Of(control).actionInterface()->actionNames(); }

    Names names;
    SampleForm form{services};
};

const QString press = QStringLiteral("Press"), toggle = QStringLiteral("Toggle");

TEST_F(Accessible, EveryControlHasItsRole) {
    form.Label2.Click = [] {};
    Run(form, [&](User& user) {
        user.Has([&] {
            const std::map<const Control*, QAccessible::Role> roles{
                {&form.Label1, QAccessible::StaticText},   {&form.Label2, QAccessible::PushButton},
                {&form.Text1, QAccessible::EditableText},  {&form.Check1, QAccessible::CheckBox},
                {&form.Option1, QAccessible::RadioButton}, {&form.HScroll1, QAccessible::Slider},
                {&form.VScroll1, QAccessible::Slider},     {&form.List1, QAccessible::List},
                {&form.Combo1, QAccessible::ComboBox},     {&form.Pic, QAccessible::Graphic},
                {&form.Frame1, QAccessible::Grouping},     {&form.OkKnop, QAccessible::PushButton},
            };
            for (const auto& [control, role] : roles)
                EXPECT_EQ(Of(*control).role(), role) << control->Name();
        });
    });
}

TEST_F(Accessible, TheNameIsTheCaptionElseTheTooltipElseAnOwnOne) {
    form.OkKnop.SetCaption(" Take it ");
    form.OkKnop.ToolTipText = " Takes it ";
    names.names = {{"OkKnop", "never read"}, {"HScroll1", "Line width"}, {"Combo1", "Font"}};
    form.GrayKnop.SetCaption("");
    form.GrayKnop.ToolTipText = " Grey ";
    Run(form, [&](User& user) {
        user.Has([&] {
            EXPECT_EQ(NameOf(form.OkKnop), "Take it");
            EXPECT_EQ(Of(form.OkKnop).text(QAccessible::Description).trimmed(), "Takes it");
            EXPECT_EQ(NameOf(form.GrayKnop), "Grey");
            EXPECT_EQ(NameOf(form.HScroll1), "Line width");
            EXPECT_EQ(Of(form.Combo1).child(1)->text(QAccessible::Name), "Font")
                << "the part that is typed in";
            // The code's own name says nothing to anybody.
            EXPECT_EQ(NameOf(form.VScroll1), "");
            names.names["HScroll1"] = "Lijndikte";
            ++names.revision;
            platform.Mirror();
            EXPECT_EQ(NameOf(form.HScroll1), "Lijndikte");
        });
    });
}

TEST_F(Accessible, StatesFollowTheProgram) {
    Run(form, [&](User& user) {
        user.Has([&] {
            EXPECT_TRUE(Of(form.Check1).state().checkable);
            EXPECT_FALSE(Of(form.OkKnop).state().checkable);
            const bool before = form.Check1.Value();
            EXPECT_EQ(Of(form.Check1).state().checked != 0, before);
            form.Check1.SetValue(!before);
            EXPECT_EQ(Of(form.Check1).state().checked != 0, !before);
            EXPECT_TRUE(Of(form.GrayKnop).state().disabled);
            EXPECT_FALSE(Of(form.OkKnop).state().disabled);
            EXPECT_TRUE(Of(form.OkKnop).state().focusable);
            for (const Control* passive :
                 std::initializer_list<const Control*>{&form.Label1, &form.Frame1, &form.Pic})
                EXPECT_FALSE(Of(*passive).state().focusable) << passive->Name();
        });
    });
}

/// What a screen reader would be told of ticks.
class Announcements {
public:
    Announcements() {
        told.clear();
        AnnounceBy(Hear);
    }
    ~Announcements() { AnnounceBy(nullptr); }
    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;

    /// "NAME ticked" or "NAME not ticked", since the last call.
    static std::vector<std::string> Take() { return std::exchange(told, {}); }

private:
    static void Hear(QAccessibleEvent* event) {
        ASSERT_EQ(event->type(), QAccessible::StateChanged);
        EXPECT_TRUE(static_cast<QAccessibleStateChangeEvent*>(event)->changedStates().checked);
        QAccessibleInterface* part = event->accessibleInterface();
        ASSERT_NE(part, nullptr);
        told.push_back(part->text(QAccessible::Name).toStdString() +
                       (part->state().checked ? " ticked" : " not ticked"));
    }

    static inline std::vector<std::string> told;
};

using Told = std::vector<std::string>;

TEST_F(Accessible, TicksAreAnnounced) {
    form.Check1.Caption = "Bold";
    form.Option1.Caption = "Left";
    form.Option2.Caption = "Right";
    form.Option1.SetValue(true);
    Run(form, [&](User& user) {
        user.Has([&] {
            const Announcements announcements;
            // What stays as it is is no news.
            platform.Mirror();
            EXPECT_EQ(Announcements::Take(), Told{});
            form.Check1.SetValue(!form.Check1.Value());
            platform.Mirror();
            EXPECT_EQ(Announcements::Take(), Told{form.Check1.Value() ? "Bold ticked" : "Bold not ticked"});
            form.Option2.SetValue(true);
            platform.Mirror();
            EXPECT_EQ(Announcements::Take(), (Told{"Left not ticked", "Right ticked"}));
            form.FileNew.Checked = true;
            platform.Mirror();
            EXPECT_EQ(Announcements::Take(), Told{"New ticked"});
            form.FileNew.Checked = false;
            platform.Mirror();
            EXPECT_EQ(Announcements::Take(), Told{"New not ticked"});
        });
    });
}

// By keys, as the user hears it.
TEST_F(Accessible, TicksByKeysAreHeard) {
    form.Check1.Caption = "Bold";
    form.Option1.Caption = "Left";
    form.Option2.Caption = "Right";
    form.Option1.SetValue(true);
    form.EditCopy.Checked = true;
    form.EditCopy.Click = [this] { form.EditCopy.Checked = !form.EditCopy.Checked; };
    const Announcements announcements;
    Run(form, [&](User& user) {
        user.Has([&] {
            form.Check1.SetFocus();
            platform.Mirror();
            Announcements::Take();
        });
        const bool before = form.Check1.Value();
        user.Key("space");
        EXPECT_TRUE(user.Sees([&] { return form.Check1.Value() != before; }));
        user.Has([&] {
            EXPECT_EQ(Announcements::Take(), Told{before ? "Bold not ticked" : "Bold ticked"});
            form.Option1.SetFocus();
            platform.Mirror();
        });
        user.Key("Down");
        EXPECT_TRUE(user.Sees([&] { return form.Option2.Value(); }));
        user.Has([&] { EXPECT_EQ(Announcements::Take(), (Told{"Left not ticked", "Right ticked"})); });
        // The toolkit turns the mark of a chosen entry by itself: it is told of once all the same.
        user.Key("alt+e");
        user.Key("c");
        EXPECT_TRUE(user.Sees([&] { return !form.EditCopy.Checked; }));
        user.Has([&] { EXPECT_EQ(Announcements::Take(), Told{"Copy not ticked"}); });
    });
}

TEST_F(Accessible, ToolsPressAndTickAndSlide) {
    Run(form, [&](User& user) {
        user.Has([&] {
            EXPECT_TRUE(ActionsOf(form.OkKnop).contains(press));
            Of(form.OkKnop).actionInterface()->doAction(press);
            EXPECT_EQ(form.Count("OkKnop"), 1);

            EXPECT_TRUE(ActionsOf(form.Check1).contains(toggle));
            const bool before = form.Check1.Value();
            Of(form.Check1).actionInterface()->doAction(toggle);
            EXPECT_EQ(form.Check1.Value(), !before);

            // What is disabled, what takes no press, and a word that means nothing.
            EXPECT_FALSE(ActionsOf(form.GrayKnop).contains(press));
            Of(form.GrayKnop).actionInterface()->doAction(press);
            EXPECT_EQ(form.Count("GrayKnop"), 0);
            EXPECT_TRUE(ActionsOf(form.Label1).isEmpty());
            Of(form.OkKnop).actionInterface()->doAction(toggle);
            EXPECT_EQ(form.Count("OkKnop"), 1);

            QAccessibleValueInterface* slider = Of(form.HScroll1).valueInterface();
            ASSERT_NE(slider, nullptr);
            EXPECT_EQ(slider->minimumValue().toInt(), form.HScroll1.Lowest());
            EXPECT_EQ(slider->maximumValue().toInt(), form.HScroll1.Highest());
            slider->setCurrentValue(form.HScroll1.Lowest() + 1);
            EXPECT_EQ(form.HScroll1.Value(), form.HScroll1.Lowest() + 1);
            EXPECT_EQ(slider->currentValue().toInt(), form.HScroll1.Value());
        });
    });
}

TEST_F(Accessible, ADisabledFormIsOutOfReachBehindItsDialog) {
    Form dialog(services, "Dialog");
    dialog.Width = dialog.Height = 3000;
    VistaButton close(dialog, "OkKnop");
    close.Move(0, 0, 900, 300);
    close.Click = [&] { dialog.Unload(); };
    form.GrayKnop.SetEnabled(true);
    form.OkKnop.Click = [&] { platform.ShowModal(dialog); };
    Run(form, [&](User& user) {
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(user.Sees([&] { return dialog.Loaded() && platform.WindowOf(dialog); }));
        user.Has([&] { Of(form.GrayKnop).actionInterface()->doAction(press); });
        EXPECT_EQ(form.Count("GrayKnop"), 0);
        user.Has([&] { Of(close).actionInterface()->doAction(press); });
        EXPECT_TRUE(user.Sees([&] { return !dialog.Loaded(); }));
    });
}

// A tool may still hold on to a control whose form has gone.
TEST_F(Accessible, WhatHasGoneIsNothing) {
    QAccessible::Id id = 0;
    Form dialog(services, "Dialog");
    dialog.Width = dialog.Height = 3000;
    VistaButton close(dialog, "OkKnop");
    close.Move(0, 0, 900, 300);
    close.Click = [&] {
        QAccessibleInterface& access = Of(close);
        id = QAccessible::uniqueId(&access);
        dialog.Unload();
        EXPECT_TRUE(access.state().invalid);
        EXPECT_TRUE(access.actionInterface()->actionNames().isEmpty());
        access.actionInterface()->doAction(press);
    };
    form.OkKnop.Click = [&] { platform.ShowModal(dialog); };
    Run(form, [&](User& user) {
        user.Click(form.OkKnop, 40, 14);
        EXPECT_TRUE(user.Sees([&] { return dialog.Loaded() && platform.WindowOf(dialog); }));
        user.Click(close, 20, 10);
        EXPECT_TRUE(user.Sees([&] { return !dialog.Loaded() && id != 0; }));
    });
}

}  // namespace
}  // namespace coinlet::test
