// Loading, dialogs one above the other, serving events, and the end of the program.

#include "controls/label.h"
#include "controls/menu.h"
#include "controls/text_box.h"
#include "controls/vista_button.h"
#include "event_log.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>
#include <limits>

namespace coinlet {
namespace {

using test::Lines;

/// A form that writes down its life and does what a test hands in.
struct PlatformForm : Form {
    PlatformForm(FormServices services, std::string_view name, test::TestPlatform& platform)
        : Form(services, name), log(platform.log) {}

    void Note(const char* what) { log.push_back(std::string(what) + " " + std::string(Name())); }
    void Form_Load() override {
        Note("load");
        if (atLoad) atLoad();
    }
    void Form_Activate() override { Note("activate"); }
    void Form_Unload(bool& cancel) override {
        Note("unload");
        if (atUnload) atUnload();
        cancel = refuses;
    }

    Lines& log;
    std::function<void()> atLoad, atUnload;
    bool refuses = false;
    Label Label1{*this, "Label1"};
};

struct PlatformTest : testing::Test {
    test::TestServices services;
    test::TestPlatform& platform = services.platform;
    PlatformForm main{services.ForForms(), "Main", platform};
    Lines TakeLog() { return std::exchange(platform.log, {}); }

    PlatformForm NewForm(std::string_view name) { return {services.ForForms(), name, platform}; }
};

TEST_F(PlatformTest, TheMainFormIsLoadedShownActivated) {
    EXPECT_FALSE(main.Loaded());
    platform.ShowMain(main);
    EXPECT_EQ(TakeLog(), (Lines{"load Main", "show Main", "activate Main"}));
    EXPECT_TRUE(main.Loaded());
    EXPECT_EQ(platform.FrontForm(), &main);
    EXPECT_EQ(platform.FindForm("Main"), &main);
    EXPECT_EQ(platform.FindForm("Other"), nullptr);
    platform.ShowMain(main);
    EXPECT_EQ(TakeLog(), Lines{});
}

TEST_F(PlatformTest, ADialogWaitsUntilItUnloadsAndThenTheFormBelowIsActivated) {
    platform.ShowMain(main);
    PlatformForm dialog = NewForm("Dialog");
    platform.doings = {[&] { platform.log.push_back("front " + std::string(platform.FrontForm()->Name())); },
                       [&] { dialog.Unload(); }};
    TakeLog();
    platform.ShowModal(dialog);
    EXPECT_EQ(TakeLog(), (Lines{"load Dialog", "show Dialog", "activate Dialog", "front Dialog",
                                "unload Dialog", "hide Dialog", "activate Main"}));
    EXPECT_EQ(platform.Forms(), std::vector<Form*>{&main});
    EXPECT_FALSE(dialog.Loaded());
}

TEST_F(PlatformTest, OfFormsOfOneNameTheFrontOneIsFound) {
    platform.ShowMain(main);
    PlatformForm lower = NewForm("Twin"), upper = NewForm("Twin");
    std::vector<const Form*> found;
    platform.doings = {[&] { platform.ShowModal(upper); },
                       [&] {
                           found.push_back(platform.FindForm("Twin"));
                           upper.Unload();
                           found.push_back(platform.FindForm("Twin"));
                           lower.Unload();
                       }};
    platform.ShowModal(lower);
    EXPECT_EQ(found, (std::vector<const Form*>{&upper, &lower}));
}

TEST_F(PlatformTest, DialogsStandAboveEachOther) {
    platform.ShowMain(main);
    PlatformForm lower = NewForm("Lower"), upper = NewForm("Upper");
    platform.doings = {[&] {
                           platform.ShowModal(upper);
                           lower.Note("back in");
                       },
                       [&] { upper.Unload(); }, [&] { lower.Unload(); }};
    TakeLog();
    platform.ShowModal(lower);
    EXPECT_EQ(TakeLog(), (Lines{"load Lower", "show Lower", "activate Lower", "load Upper", "show Upper",
                                "activate Upper", "unload Upper", "hide Upper", "activate Lower",
                                "back in Lower", "unload Lower", "hide Lower", "activate Main"}));
}

TEST_F(PlatformTest, ADialogClosedBelowAnotherOneLeavesTheFormBelowActivatedOnce) {
    platform.ShowMain(main);
    PlatformForm lower = NewForm("Lower"), upper = NewForm("Upper");
    platform.doings = {[&] { platform.ShowModal(upper); }, [&] { lower.Unload(); }, [&] { upper.Unload(); }};
    TakeLog();
    platform.ShowModal(lower);
    EXPECT_EQ(TakeLog(), (Lines{"load Lower", "show Lower", "activate Lower", "load Upper", "show Upper",
                                "activate Upper", "unload Lower", "hide Lower", "unload Upper", "hide Upper",
                                "activate Main"}));
}

TEST_F(PlatformTest, ADialogThatUnloadsItselfWhileItLoadsIsNeverShown) {
    platform.ShowMain(main);
    PlatformForm dialog = NewForm("Dialog");
    dialog.atLoad = [&] { dialog.Unload(); };
    TakeLog();
    platform.ShowModal(dialog);
    EXPECT_EQ(TakeLog(), (Lines{"load Dialog", "unload Dialog"}));
    EXPECT_EQ(platform.FrontForm(), &main);
}

TEST_F(PlatformTest, ADialogThatIsOpenIsNotOpenedAgain) {
    platform.ShowMain(main);
    PlatformForm dialog = NewForm("Dialog");
    platform.doings = {[&] {
                           TakeLog();
                           platform.ShowModal(dialog);
                           EXPECT_EQ(TakeLog(), Lines{});
                       },
                       [&] { dialog.Unload(); }};
    platform.ShowModal(dialog);
    EXPECT_TRUE(platform.doings.empty());
}

TEST_F(PlatformTest, ADialogMayRefuseToUnload) {
    platform.ShowMain(main);
    PlatformForm dialog = NewForm("Dialog");
    dialog.refuses = true;
    platform.doings = {[&] {
                           dialog.Unload();
                           EXPECT_TRUE(dialog.Loaded());
                           dialog.refuses = false;
                       },
                       [&] { dialog.Unload(); }};
    platform.ShowModal(dialog);
    EXPECT_FALSE(dialog.Loaded());
    TakeLog();
    dialog.Unload();
    EXPECT_EQ(TakeLog(), Lines{});
}

TEST_F(PlatformTest, UnloadingWhileUnloadingDoesNothing) {
    platform.ShowMain(main);
    main.atUnload = [&] { main.Unload(); };
    TakeLog();
    main.Unload();
    EXPECT_EQ(TakeLog(), (Lines{"unload Main", "hide Main"}));
    EXPECT_EQ(platform.FrontForm(), nullptr);
}

TEST_F(PlatformTest, AFormMayBeShownAgainAfterItWasUnloaded) {
    platform.ShowMain(main);
    PlatformForm dialog = NewForm("Dialog");
    const std::function<void()> close = [&] { dialog.Unload(); };
    platform.doings = {close, close};
    platform.ShowModal(dialog);
    platform.ShowModal(dialog);
    EXPECT_TRUE(platform.doings.empty());
}

TEST_F(PlatformTest, AFormThatEndsWhileItIsLoadedIsTakenOff) {
    {
        PlatformForm passing = NewForm("Passing");
        platform.ShowMain(passing);
        TakeLog();
    }
    EXPECT_EQ(TakeLog(), Lines{"hide Passing"});
    EXPECT_TRUE(platform.Forms().empty());
}

TEST_F(PlatformTest, DoEventsMayBeEnteredAgainSixteenDeep) {
    int deepest = 0, depth = 0;
    platform.whenServing = [&] {
        deepest = std::max(deepest, ++depth);
        // By turns, since both share one depth.
        if (depth % 2 == 0) {
            platform.DoEvents();
        } else {
            platform.Wait(1);
        }
        --depth;
    };
    platform.DoEvents();
    EXPECT_EQ(deepest, 16);
    EXPECT_EQ(platform.served, 16);
    platform.whenServing = nullptr;
    platform.DoEvents();
    EXPECT_EQ(platform.served, 17);
}

TEST_F(PlatformTest, WaitServesEventsForItsSeconds) {
    platform.Wait(2.5);
    EXPECT_EQ(platform.waited, 2.5);
    EXPECT_EQ(platform.served, 1);
    platform.Wait(0);
    platform.Wait(-1);
    platform.Wait(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(platform.waited, 2.5);
    EXPECT_EQ(platform.served, 4);
}

TEST_F(PlatformTest, QuestionsComeBackWithTheirAnswers) {
    platform.answers = {Answer::No};
    platform.texts = {"forty"};
    platform.folders = {"/somewhere"};
    EXPECT_EQ(platform.ShowMessage({.prompt = "Sure?", .buttons = MessageButtons::YesNo}), Answer::No);
    EXPECT_EQ(platform.ShowMessage({.prompt = "Done"}), Answer::Ok);
    EXPECT_EQ(platform.InputBox("Value", "", "40"), "forty");
    EXPECT_EQ(platform.PickFolder("Folder"), "/somewhere");
    ASSERT_EQ(platform.messages.size(), 2U);
    EXPECT_EQ(platform.messages[0].prompt, "Sure?");
    EXPECT_EQ(platform.messages[0].title, "Coinlet Designer");
}

TEST_F(PlatformTest, TheEndUnwindsEveryDialogAndActivatesNobody) {
    platform.ShowMain(main);
    bool ranOn = false;
    {
        PlatformForm lower = NewForm("Lower"), upper = NewForm("Upper");
        platform.doings = {[&] {
                               platform.ShowModal(upper);
                               ranOn = true;
                           },
                           [&] {
                               platform.End();
                               ranOn = true;
                           }};
        TakeLog();
        EXPECT_FALSE(platform.Do([&] {
            platform.ShowModal(lower);
            ranOn = true;
        }));
        EXPECT_FALSE(lower.Loaded());
        EXPECT_FALSE(upper.Loaded());
    }
    EXPECT_FALSE(ranOn);
    EXPECT_TRUE(platform.Ended());
    EXPECT_EQ(TakeLog(), (Lines{"load Lower", "show Lower", "activate Lower", "load Upper", "show Upper",
                                "activate Upper", "end", "hide Upper", "hide Lower"}));
    EXPECT_EQ(platform.Forms(), std::vector<Form*>{&main});
}

TEST_F(PlatformTest, TheEndInsideAServedEventEndsTheHandlerThatWaited) {
    platform.whenServing = [&] { platform.End(); };
    EXPECT_THROW(platform.DoEvents(), ProgramEnded);
}

TEST_F(PlatformTest, TheEndWhileADialogLoadsTakesItOff) {
    PlatformForm dialog = NewForm("Dialog");
    dialog.atLoad = [&] { platform.End(); };
    EXPECT_THROW(platform.ShowModal(dialog), ProgramEnded);
    EXPECT_FALSE(dialog.Loaded());
    EXPECT_TRUE(platform.Forms().empty());
}

TEST_F(PlatformTest, TheEndWhileAFormUnloadsLeavesNoTrace) {
    platform.ShowMain(main);
    main.atUnload = [&] { platform.End(); };
    EXPECT_THROW(main.Unload(), ProgramEnded);
    EXPECT_TRUE(main.Loaded());
    main.atUnload = nullptr;
    main.Unload();
    EXPECT_FALSE(main.Loaded());
}

TEST_F(PlatformTest, AfterTheEndEveryCallReturnsAtOnce) {
    platform.Do([&] { platform.End(); });
    TakeLog();
    platform.DoEvents();
    platform.Wait(3);
    PlatformForm dialog = NewForm("Dialog");
    platform.ShowModal(dialog);
    platform.ShowMain(main);
    EXPECT_EQ(platform.ShowMessage({.prompt = "?", .buttons = MessageButtons::YesNo, .standard = Answer::No}),
              Answer::No);
    EXPECT_EQ(platform.InputBox("", "", "40"), "");
    EXPECT_EQ(platform.PickFolder(""), "");
    EXPECT_EQ(platform.served, 0);
    EXPECT_EQ(TakeLog(), Lines{});
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_THROW(platform.End(), ProgramEnded);
    EXPECT_EQ(TakeLog(), Lines{});
}

TEST_F(PlatformTest, APopupStandsAtTheControlThatAKeyWentToElseAtThePointer) {
    struct PopupForm : PlatformForm {
        using PlatformForm::PlatformForm;
        MenuItem Menu{*this, "Menu", "Menu"};
        VistaButton Button{*this, "Button"};
        TextBox Text{*this, "Text"};
    } form{services.ForForms(), "Popup", platform};
    form.Button.Move(0, 0, 300, 300);
    form.Button.Click = [&] { platform.PopupMenu(form.Menu); };
    platform.ShowMain(form);
    form.Button.SetFocus();
    const auto space = [&] {
        form.KeyDown(nullptr, keySpace, 0);
        form.KeyUp(nullptr, keySpace, 0);
    };
    space();
    EXPECT_EQ(platform.popups, std::vector{&form.Menu});
    EXPECT_EQ(platform.popupAt, &form.Button);
    form.Button.PointerClicked();
    EXPECT_EQ(platform.popups.size(), 2U);
    EXPECT_EQ(platform.popupAt, nullptr);
    space();
    EXPECT_EQ(platform.popupAt, &form.Button);
    // What the user does elsewhere counts too, and a control that has ended no more.
    form.Text.PointerPressed(rightButton, 0, 0, 0);
    EXPECT_EQ(form.KeyedControl(), nullptr);
    {
        TextBox passing(form, "Passing");
        form.KeyDown(&passing, 'A', 0);
        EXPECT_EQ(form.KeyedControl(), &passing);
    }
    EXPECT_EQ(form.KeyedControl(), nullptr);
    platform.Do([&] { platform.End(); });
    const auto before = platform.popups.size();
    platform.PopupMenu(form.Menu);
    EXPECT_EQ(platform.popups.size(), before);
}

TEST_F(PlatformTest, TheFocusIsSettledOnEveryForm) {
    struct FieldForm : PlatformForm {
        using PlatformForm::PlatformForm;
        TextBox Text{*this, "Text"};
    } below{services.ForForms(), "Below", platform}, above{services.ForForms(), "Above", platform};
    platform.ShowMain(below);
    below.Text.SetFocus();
    platform.doings = {[&] {
        above.Text.SetFocus();
        below.Text.Visible = above.Text.Visible = false;
        platform.SettleFocus();
        below.Text.Visible = above.Text.Visible = true;
        EXPECT_EQ(below.Focus(), nullptr);
        EXPECT_EQ(above.Focus(), nullptr);
        above.Unload();
    }};
    platform.ShowModal(above);
}

}  // namespace
}  // namespace coinlet
