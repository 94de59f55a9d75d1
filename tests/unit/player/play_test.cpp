// Scripts against a small program with a control of every kind.

#include "unit/player/script_player.h"

#include <gtest/gtest.h>

namespace coinlet::test {
namespace {

class Play : public testing::Test {
protected:
    void Passes(const std::string& script) {
        EXPECT_EQ(player_.Play(script), passed);
        EXPECT_EQ(player_.Status(), player::exitPassed);
    }
    void Fails(const std::string& script, const std::string& reason) {
        EXPECT_EQ(player_.Play(script), Failed(reason));
        EXPECT_EQ(player_.Status(), player::exitFailed);
    }
    std::string Printed(const std::string& script) {
        std::string text = player_.Play(script);
        EXPECT_TRUE(text.ends_with(passed)) << text;
        return text.substr(0, text.size() - std::string(passed).size());
    }

    ScriptPlayer player_;
};

// --- The course of a script -------------------------------------------------------------------------------

TEST_F(Play, AnEmptyScriptPasses) {
    Passes("");
    Passes("\n# nothing\n");
}

TEST_F(Play, TheProgramStartsBeforeTheFirstLineThatNeedsIt) {
    Passes(
        "set Screen.DotsPerInch 120\nwrite-file a.txt x\nexpect Main.Log.Caption Activate;\n"
        "expect Screen.DotsPerInch 120\n");
}

TEST_F(Play, TheFirstFailingLineEndsTheScript) {
    Fails("expect Main.Caption x\nnonsense\n", "1: expected Main.Caption \"x\", found \"Every control\"");
}

TEST_F(Play, AScriptMayEndWithADialogOpen) {
    Passes("click Main.Knop(0)\nexpect AskForm.Loaded true\nanswer yes\n");
}

TEST_F(Play, LinesActOnTheDialogUntilItCloses) {
    Passes(
        "click Main.Knop(0)\n"
        "type AskForm.Text1 \"two words\"\n"
        "click AskForm.OkKnop\n"
        "expect AskForm.Loaded false\n"
        "expect Main.Log.Caption \"Activate;Activate;accepted two words;\"\n");
}

TEST_F(Play, EscapeAndTheCloseBoxCancelADialog) {
    Passes(
        "click Main.Knop(0)\nkey AskForm 27\nexpect AskForm.Loaded false\n"
        "click Main.Knop(0)\nclose AskForm\nexpect AskForm.Loaded false\n"
        "expect Main.Log.Caption \"Activate;Activate;cancelled;Activate;cancelled;\"\n");
}

TEST_F(Play, AfterTheEndOnlyTheWorldIsLeft) {
    Passes(
        "click Main.Knop(5)\nanswer yes\nclose Main\nexpect Program.Ended true\nexpect-document "
        "Help/English.pdf\n"
        "expect-no-file a.txt\n");
    Fails("answer yes\nclose Main\nclick Main.Knop(0)\n",
          "3: expected a running program for click, found it ended");
}

TEST_F(Play, AnEndInsideADialogReachesThroughToTheTop) {
    Passes("click Main.Knop(0)\nanswer yes\nraise Main.Unload\nexpect Program.Ended true\n");
}

TEST_F(Play, ARestartKeepsTheWorldAndNothingElse) {
    Passes(
        "set Main.Caption other\nset Screen.DotsPerInch 144\nset Screen.MousePointer 11\n"
        "answer-text left\nsave Main.Pic pic.bmp\nload Clipboard @out/pic.bmp\n"
        "click Main.Knop(0)\nrestart\n"
        "expect AskForm.Loaded false\nexpect Main.Caption \"Every control\"\n"
        "expect Main.Log.Caption Activate;\n"
        "expect Screen.DotsPerInch 144\nexpect Screen.MousePointer 0\nsame Clipboard pic.bmp\n"
        "click Main.Knop(7)\nexpect Main.Label1.Caption left\n");
}

TEST_F(Play, InterruptsRunInsideTheServingOfEvents) {
    Passes(
        "interrupt 1 set Main.Log.Caption one;\n"
        "interrupt 2 click Main.FileOpen\n"
        "click Main.Knop(2)\n"
        "expect Main.Log.Caption \"one;middle;FileOpen;end;\"\n");
}

TEST_F(Play, AnInterruptThatFailsTellsItsOwnLine) {
    Fails("interrupt 2 click AskForm.OkKnop\n\nclick Main.Knop(2)\n",
          "1: no form AskForm is open, only Main");
    Fails("interrupt 0 tick Main.Timer1\n", "1: expected a count from 1 on, found 0");
    Fails("interrupt 1 nonsense\n", "1: no such command: nonsense");
}

TEST_F(Play, WhatIsTriedMayBeOutOfReach) {
    Passes(
        "try click AskForm.OkKnop\ntry pick Main.List1 99\ntry close AskForm\n"
        "interrupt 1 try click AskForm.OkKnop\ninterrupt 2 try set Main.Log.Caption two;\n"
        "click Main.Knop(2)\nexpect Main.Log.Caption two;end;\n");
    Fails("try nonsense\n", "1: no such command: nonsense");
    Fails("try set Main.Timer1.Enabled perhaps\n", "1: neither true nor false: \"perhaps\"");
}

TEST_F(Play, InterruptsBehindTheOneThatEndsTheProgramAreForgotten) {
    Passes(
        "answer yes\ninterrupt 1 close Main\ninterrupt 1 set Main.Log.Caption late\nclick Main.Knop(2)\n"
        "expect Program.Ended true\n");
}

TEST_F(Play, ARestartInsideAnInterruptEndsTheHandler) {
    Passes("interrupt 1 restart\nclick Main.Knop(2)\nexpect Main.Log.Caption Activate;\n");
}

// --- The user ---------------------------------------------------------------------------------------------

TEST_F(Play, GesturesRaiseTheEventsOfThePointer) {
    Passes(
        "press Main.Pic 1 2 3\nmove Main.Pic 1 25 -4\nrelease Main.Pic 1 25 3\n"
        "expect Main.Log.Caption Activate;Down1;Move1;Up1;\n"
        "pixel Main.Pic 2 3 255,0,0\npixel Main.Pic 3 3 16777215\npixel Main.Pic 20 0 -1\n");
    Passes("drag Main.Pic 1 1 30 30\nexpect Main.Log.Caption Activate;Down1;Move1;Up1;\n");
    Passes("move Main.Pic 0 1 1\nclick Main.Pic\nexpect Main.Log.Caption Activate;Move0;Down1;Up1;\n");
}

TEST_F(Play, SlidingChangesAScrollBarOnceAtItsEnd) {
    Passes(
        "slide Main.HScroll1 10 500 40\nexpect Main.HScroll1.Value 40\n"
        "expect Main.Log.Caption Activate;HScroll1_Change;\n");
    Fails("slide Main.Pic 1\n", "1: Main.Pic is no scroll bar");
}

TEST_F(Play, GesturesMayLeaveTheControl) {
    Passes(
        "press Main.Pic 1 20 3\nmove Main.Pic 1 -9 99\nrelease Main.Pic 1 30 3\nexpect Main.Log.Caption "
        "Activate;Down1;Move1;Up1;\n");
    Passes("release Main.Pic 1 5 5\nexpect Main.Log.Caption Activate;Up1;\n");
    Fails("press Main.Pic 3 2 3\n",
          "1: expected button 0 (none), 1 (left), 2 (right) or 4 (middle), found 3");
}

TEST_F(Play, WhatIsOutOfReachFails) {
    Fails("set Main.Pic.Visible false\npress Main.Pic 1 2 3\n", "2: Main.Pic is hidden");
    Fails("set Main.Frame1.Visible false\nclick Main.Option(1)\n",
          "2: Main.Option(1) lies in something hidden");
    Fails("set Main.Text1.Enabled false\ntype Main.Text1 a\n", "2: Main.Text1 is disabled");
    Fails("set Main.Frame1.Enabled false\nclick Main.Option(1)\n",
          "2: Main.Option(1) lies in something disabled");
    Fails("click Main.Knop(0)\nclick Main.Knop(1)\n", "2: Main is blocked by AskForm, which is in front");
    Fails("click Main.Knop(0)\nclose Main\n", "2: Main is blocked by AskForm, which is in front");
    Fails("click Main.FileMenu\n", "1: Main.FileMenu is a menu, not an entry of one");
    Fails("click Main.FileRule\n", "1: Main.FileRule is a separator");
    Fails("set Main.FileOpen.Enabled false\nclick Main.FileOpen\n", "2: Main.FileOpen is hidden or disabled");
    Fails("click Main.Timer1\n", "1: Main.Timer1 is no control that the user sees");
}

TEST_F(Play, SettingDoesNotCareForReach) {
    Passes(
        "set Main.List1.Enabled false\nset Main.List1.Text two\nexpect Main.List1.ListIndex 1\n"
        "set Main.Check1.Visible false\nset Main.Check1.Value true\n"
        "expect Main.Log.Caption Activate;List1_Click;Check1_Click;\n");
}

TEST_F(Play, ChoicesRaiseWhatTheUserRaises) {
    Passes(
        "pick Main.List1 1\npick Main.List1 1\nset Main.List1.ListIndex 1\nset Main.List1.Text three\n"
        "expect Main.List1.Text three\nexpect Main.List1.List(0) one\nexpect Main.List1.List(7) \"\"\n"
        "expect Main.List1.ListCount 3\n"
        "expect Main.Log.Caption Activate;List1_Click;List1_Click;List1_Click;\n");
    Passes(
        "set Main.Combo1.Text two\nset Main.Combo1.Text other\npick Main.Combo1 0\n"
        "expect Main.Combo1.Text one\nexpect Main.Log.Caption "
        "Activate;Combo1_Click;Combo1_Change;Combo1_Click;\n");
    Passes(
        "set Main.HScroll1.Value 7\nset Main.HScroll1.Value 7\nset Main.Option(1).Value true\n"
        "expect Main.Log.Caption Activate;HScroll1_Change;Option1;\n");
    Fails("pick Main.List1 3\n", "1: expected a row below 3, found 3");
    Fails("set Main.List1.Text four\n", "1: expected a row \"four\", found none in the list");
    Fails("pick Main.Text1 0\n", "1: Main.Text1 has no rows");
}

TEST_F(Play, TypingComesLetterByLetterAndTakesTheFocus) {
    Passes(
        "type Main.Text1 \"\xC3\xA9 a\"\nexpect Main.Text1.Text \"\xC3\xA9 a\"\nexpect Main.Focus Text1\n"
        "expect Main.Log.Caption Activate;Text1_Change;Text1_Change;Text1_Change;\n");
    Fails("type Main.Pic a\n", "1: Main.Pic takes no text");
}

TEST_F(Play, KeysComeInHalvesToo) {
    Passes(
        "key Main.Pic 65\nkeydown Main.Pic 37\nkeyup Main.Pic 37\n"
        "expect Main.Log.Caption Activate;Key65;Press97;KeyUp65;Key37;KeyUp37;\n");
}

TEST_F(Play, TheFocusGoesOnlyToWhatTakesIt) {
    Passes("expect Main.Focus \"\"\nfocus Main.Knop(3)\nexpect Main.Focus Knop(3)\n");
    Fails("focus Main.Label1\n", "1: Main.Label1 takes no focus");
}

TEST_F(Play, AButtonWatchesThePointer) {
    // States: 1 hover, 3 focused.
    Passes(
        "click Main.Knop(4)\nexpect Main.Knop(4).State 1\ntick Main.Knop(4)\n"
        "expect Main.Knop(4).State 1\npointer away\ntick Main.Knop(4)\nexpect Main.Knop(4).State 3\n");
    // Away from the pointer it has no timer to tick.
    Passes("tick Main.Knop(4)\nexpect Main.Knop(4).State 0\n");
}

TEST_F(Play, TimersTickWhileTheyRun) {
    Passes("tick Main.Timer1\nexpect Main.Log.Caption Activate;Timer1;\n");
    Passes("set Main.Timer1.Enabled false\ntick Main.Timer1\nexpect Main.Log.Caption Activate;\n");
    Passes("set Main.Timer1.Interval 0\ntick Main.Timer1\nexpect Main.Log.Caption Activate;\n");
    Fails("tick Main.Pic\n", "1: Main.Pic is no timer and has none");
}

TEST_F(Play, APopupMenuBlocksNothing) {
    Passes(
        "expect Screen.Popup \"\"\nclick Main.Knop(4)\nexpect Screen.Popup PopMenu\nclick Main.PopFirst\n"
        "expect Main.Log.Caption Activate;PopFirst;\n");
}

// --- What is read and written directly --------------------------------------------------------------------

TEST_F(Play, EventsAreRaisedByName) {
    Passes(
        "set Main.Pic.Visible false\nraise Main.Pic.MouseDown 2 0 1 1\nraise Main.Activate\n"
        "expect Main.Log.Caption Activate;Down2;Activate;\n");
    Fails("raise Main.Check1.Click 5\n", "1: expected at most 0 arguments of Main.Check1.Click, found 1");
    EXPECT_TRUE(player_.Play("raise Main.Check1.Bang\n")
                    .starts_with("s.play:1: no event Bang of Main.Check1, only "));
}

TEST_F(Play, ValuesAreComparedByTheirKind) {
    Passes(
        "set Main.Label1.ForeColor 1,2,3\nexpect Main.Label1.ForeColor 197121\n"
        "expect Main.Label1.ForeColor 1,2,3\nexpect Main.Width 9000.0\nset Session.StartX 1.5\n"
        "expect Session.StartX 1.50\nexpect Main.Check1.Value false\n");
    Fails("expect Main.Width wide\n", "1: no number: \"wide\"");
    Fails("expect Main.Check1.Value 0\n", "1: neither true nor false: \"0\"");
    Fails("expect Main.Label1.BackColor 1,2,3\n",
          "1: expected Main.Label1.BackColor 1,2,3, found 220,220,190");
    Fails("expect Main.Width 1\n", "1: expected Main.Width 1, found 9000");
}

TEST_F(Play, UnknownNamesAreToldApart) {
    Fails("expect Nope.Caption x\n", "1: no form Nope is open, only Main");
    Passes("expect Nope.Loaded false\n");
    Fails("click Main.Nope\n", "1: no control Nope on Main");
    Fails("click Main.Knop(8)\n", "1: no control Knop(8) on Main: the array goes from 0 to 7");
    Fails("click Main.Knop\n", "1: no control Knop on Main: the array goes from 0 to 7");
    Fails("click Main.Pic(0)\n", "1: no control Pic(0) on Main: it is in no array");
    Fails("click Main\n", "1: expected a control, found the form Main");
    Fails("click Main.Pic.Caption\n", "1: expected Form or Form.Control, found Main.Pic.Caption");
    Fails("expect Main 1\n", "1: expected a property, found Main");
    Fails("expect Program.Started true\n", "1: no property Started of Program, only Ended");
    Fails("set Program.Ended true\n", "1: Program.Ended can only be read");
    Fails("set Main.Pic.ScaleWidth 5\n", "1: Main.Pic.ScaleWidth can only be read");
}

TEST_F(Play, MisuseIsToldWithItsLine) {
    Fails("\n# a comment\nklick Main.Pic\n", "3: no such command: klick");
    Fails("click\n", "1: click takes ADDR, found 0 words");
    Fails("press Main.Pic 1 2\n", "1: press takes ADDR BUTTON X Y [MODIFIERS], found 3 words");
    Fails("restart now\n", "1: restart takes no words, found 1 word");
    Fails("press Main.Pic 1 2 three\n", "1: no number: \"three\"");
    Fails("set Main.Caption \"open\n", "1: a quote isn't closed");
    Fails("click Main..Pic\n", "1: no address: Main..Pic");
    Fails("pointer away 1\n", "1: pointer away takes no place");
    Fails("pointer Main.Pic\n", "1: pointer takes ADDR X Y, or away");
}

TEST_F(Play, PrintsValuesOneALine) {
    EXPECT_EQ(Printed("set Main.Caption \"a\\r\\nb c\"\nprint Main.Caption Main.Width Main.BackColor\n"),
              "Main.Caption = a\\r\\nb c\nMain.Width = 9000\nMain.BackColor = 220,220,190\n");
}

TEST_F(Play, DumpsAllPropertiesSorted) {
    const std::string dump = Printed("dump Main\n");
    EXPECT_EQ(
        dump,
        "Main.BackColor = 220,220,190\nMain.Caption = Every control\nMain.Focus = \nMain.Height = 9000\n"
        "Main.Loaded = true\nMain.MousePointer = 0\nMain.Name = Main\nMain.Width = 9000\n");
    EXPECT_NE(Printed("dump Main.List1\n").find("Main.List1.List(2) = three\n"), std::string::npos);
    EXPECT_EQ(Printed("dump Program\n"), "Program.Ended = false\n");
}

// --- Boxes, pages, documents ------------------------------------------------------------------------------

TEST_F(Play, QuestionsTakeQueuedAnswers) {
    Passes(
        "answer yes\nanswer cancel\nclick Main.Knop(1)\n"
        "expect-message Sure? Question\nexpect-message \"It was yes.\" \"Coinlet Designer\"\n"
        "expect-no-message\nclick Main.Knop(1)\nexpect-message *\nexpect-message \"It was no.\"\n");
    Fails("click Main.Knop(1)\n", "1: expected a queued answer, found none for the question \"Sure?\"");
    Fails("answer perhaps\n", "1: expected yes, no, ok or cancel, found \"perhaps\"");
    Fails("expect-message Sure?\n", "1: expected the message \"Sure?\", found none");
    Fails("answer no\nclick Main.Knop(1)\nexpect-message Sure? Other\n",
          "3: expected the message \"Sure?\" titled \"Other\", found \"Sure?\" titled \"Question\"");
    Fails("answer no\nclick Main.Knop(1)\nexpect-no-message\n",
          "3: expected no message, found \"Sure?\" titled \"Question\"");
}

TEST_F(Play, InputBoxesAndPickersTakeTheirs) {
    Passes(
        "answer-text \"a b\"\nclick Main.Knop(7)\nexpect Main.Label1.Caption \"a b\"\n"
        "answer ok\nclick Main.Knop(7)\nexpect Main.Label1.Caption standard\n"
        "answer cancel\nclick Main.Knop(7)\nexpect Main.Label1.Caption \"\"\n"
        "answer-folder Ontwerpen\nclick Main.Knop(6)\nexpect Main.Label1.Caption Ontwerpen\n"
        "answer-folder @out/x\nclick Main.Knop(6)\nexpect Main.Label1.Caption @out/x\n"
        "answer-folder \"\"\nclick Main.Knop(6)\nexpect Main.Label1.Caption \"\"\n"
        "expect-message Name? Main\n");
    Fails("answer yes\nclick Main.Knop(7)\n",
          "2: expected a queued answer, found none for the input box \"Name?\"");
    Fails("click Main.Knop(6)\n",
          "1: expected a queued answer, found none for the folder picker \"Which folder?\"");
}

TEST_F(Play, PagesAreWrittenDown) {
    const std::string lines =
        "job\npage portrait\ntext 100 200 12 bold 1,2,3 \"A \\\"text\\\"\"\n"
        "page landscape\nbox 1 2 3 4.5 0,0,0\nend\n";
    EXPECT_EQ(Printed("click Main.Knop(3)\npages\n"), lines);
    Passes(
        "click Main.Knop(3)\nexpect-page-line job\nexpect-page-line \"page portrait\"\n"
        "expect-page-line \"text 100 200 12 bold 1,2,3 \\\"A \\\\\\\"text\\\\\\\"\\\"\"\n");
    Fails("click Main.Knop(3)\nexpect-page-line end\n", "2: expected the page line \"end\", found \"job\"");
    Fails("expect-document a\n", "1: expected the document \"a\", found none");
}

// --- Pictures ---------------------------------------------------------------------------------------------

TEST_F(Play, PicturesGoToFilesAndBack) {
    Passes(
        "press Main.Pic 1 2 3\nsave Main.Pic pic.bmp\nsame Main.Pic pic.bmp\nload Main.Stock @out/pic.bmp\n"
        "same Main.Stock pic.bmp\nexpect Main.Stock.Width 20\nload Clipboard @out/pic.bmp\n"
        "pixel Clipboard 2 3 255,0,0\npixel Clipboard 20 3 -1\nload Hidden.Img(0) @out/pic.bmp\n"
        "same Hidden.Img(0) pic.bmp\nsame Clipboard pic.bmp\n");
    Passes("set Main.Pic.AutoSize true\nload Main.Pic out/pic.bmp\nexpect Main.Pic.Width 300\n");
    Fails("save Main.Text1 a.bmp\n", "1: Main.Text1 holds no picture");
    Fails("load Main.Pic none.bmp\n", "1: expected a picture in none.bmp, found none");
    Fails("save Clipboard a.bmp\n", "1: expected a picture in Clipboard, found none");
}

TEST_F(Play, DifferencesOfPicturesAreTold) {
    Passes("save Main.Pic pic.bmp\n");
    Fails(
        "press Main.Pic 1 2 3\nsame Main.Pic pic.bmp\n",
        "2: Main.Pic isn't pic.bmp: expected 255,255,255 at 2 3, found 255,0,0 (kept as out/pic.found.bmp)");
    EXPECT_TRUE(std::filesystem::exists(player_.Folder() / "out/pic.found.bmp"));
    Passes("press Main.Pic 1 2 3\nsame Main.Pic pic.bmp 255\n");
    Fails("set Main.Pic.Width 150\nsame Main.Pic pic.bmp 255\n",
          "2: Main.Pic isn't pic.bmp: expected 20 by 10 pixels, found 10 by 10 pixels (kept as "
          "out/pic.found.bmp)");
    Fails("pixel Main.Pic 0 0 1,2,3\n", "1: expected 1,2,3 at 0 0 of Main.Pic, found 255,255,255");
}

// --- Files ------------------------------------------------------------------------------------------------

TEST_F(Play, FilesAreMadeAndCompared) {
    Passes(
        "write-file Data/a.txt \"caf\xC3\xA9\\r\\n\\x00\"\nexpect-bytes Data/a.txt caf\\xE9\\x0D\\x0A\\x00\n"
        "copy-file Data/a.txt @out/b.txt\nexpect-file @out/b.txt\ndelete-file Data/a.txt\n"
        "delete-file Data/a.txt\nexpect-no-file Data/a.txt\nmake-folder x/y\nexpect-file x/y\n"
        "delete-folder x\nexpect-no-file x\ncopy-file s.play Data/s.play\nexpect-file Data/s.play\n");
    EXPECT_EQ(player_.Folder().Read("out/b.txt"), std::string("caf\xE9\r\n\0", 7));
}

TEST_F(Play, FileCommandsTellWhatIsWrong) {
    Fails("expect-file a.txt\n", "1: expected the file a.txt, found none");
    Fails("write-file a.txt x\nexpect-no-file a.txt\n", "2: expected no file a.txt, found one");
    Fails("write-file a.txt abcX\\x01\nexpect-bytes a.txt abcdef\n",
          "2: expected 6 bytes in a.txt with \"def\" at 3, found 5 with \"X\\x01\"");
    Fails("copy-file none.txt a.txt\n", "1: expected the file none.txt, found none");
    Fails("delete-folder .\n", "1: won't delete .: the folder that the script plays in lies there");
    Fails("delete-folder ..\n", "1: won't delete ..: the folder that the script plays in lies there");
}

TEST_F(Play, FoldersOfFileListsLieBeneathTheApplicationFolder) {
    Passes(
        "write-file Pictures/a.bmp x\nset Main.File1.Path Pictures\nexpect Main.File1.List(0) a.bmp\n"
        "expect Main.File1.Path Pictures\nset Main.Dir1.Path @out/Pictures\n"
        "expect Main.Dir1.Path @out/Pictures\n");
}

// --- All scripts ------------------------------------------------------------------------------------------

TEST(PlayAll, CountsScriptsAndPlaysEachAfresh) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder / "app");
    BlockFonts fonts;
    const NoCodecs codecs;
    const player::Libraries libraries{fonts, codecs, [](const Services& services) {
                                          return std::make_unique<EveryControlProgram>(services);
                                      }};
    const auto good = folder.Write("good.play", "set Main.Caption x\n");
    const auto bad = folder.Write("bad.play", "expect Main.Caption x\n");
    std::ostringstream out;
    EXPECT_EQ(player::PlayAll({folder / "app", {}, {good, bad, folder / "none.play", good}}, libraries, out),
              player::exitFailed);
    EXPECT_EQ(out.str(), bad.string() + ":1: expected Main.Caption \"x\", found \"Every control\"\n" +
                             (folder / "none.play").string() + ": can't be read\n2 passed, 2 failed\n");
    EXPECT_EQ(player::PlayAll({folder / "none", {}, {good}}, libraries, out), player::exitUsage);
}

}  // namespace
}  // namespace coinlet::test
