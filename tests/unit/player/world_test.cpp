// The world that the player puts around the program: clock, answers, printers.

#include "player/answers.h"
#include "player/printer_record.h"
#include "player/virtual_clock.h"

#include <gtest/gtest.h>
#include <limits>

namespace coinlet::player {
namespace {

TEST(VirtualClock, MovesOnlyWhenToldTo) {
    VirtualClock clock;
    EXPECT_EQ(clock.Now(), (DateTime{2026, 1, 2, 15, 4, 5}));
    clock.Advance(0.5);
    EXPECT_EQ(clock.Now(), (DateTime{2026, 1, 2, 15, 4, 5}));
    clock.Advance(0.5);
    EXPECT_EQ(clock.Now(), (DateTime{2026, 1, 2, 15, 4, 6}));
    // 8 h 55 min 54 s to midnight.
    clock.Advance(8 * 3600 + 55 * 60 + 54);
    EXPECT_EQ(clock.Now(), (DateTime{2026, 1, 3, 0, 0, 0}));
}

TEST(VirtualClock, PassesOverTimesThatAreNone) {
    VirtualClock clock;
    clock.Advance(-5);
    clock.Advance(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(clock.Now(), (DateTime{2026, 1, 2, 15, 4, 5}));
    clock.Advance(std::numeric_limits<double>::infinity());
    EXPECT_GT(clock.Now().year, 3000);
}

TEST(Answers, AreTakenInTheirOrder) {
    Answers answers;
    answers.Add(Answer::Yes);
    answers.Add(Answer::No);
    answers.Add(Answer::Cancel);
    EXPECT_EQ(answers.TakeForQuestion(), Answer::Yes);
    EXPECT_EQ(answers.TakeForQuestion(), Answer::No);
    EXPECT_EQ(answers.TakeForQuestion(), Answer::No);
    EXPECT_FALSE(answers.TakeForQuestion());
}

TEST(Answers, WaitForABoxThatTheyFit) {
    Answers answers;
    answers.Add(FolderAnswer{"/a"});
    answers.Add(TextAnswer{"b"});
    answers.Add(Answer::Yes);
    EXPECT_EQ(answers.TakeForQuestion(), Answer::Yes);
    EXPECT_EQ(answers.TakeForInput("standard"), "b");
    EXPECT_EQ(answers.TakeForFolder(), "/a");
    EXPECT_FALSE(answers.TakeForFolder());
}

TEST(Answers, OkTakesTheStandardTextAndCancelNone) {
    Answers answers;
    answers.Add(Answer::Ok);
    answers.Add(Answer::Cancel);
    answers.Add(Answer::Ok);
    EXPECT_EQ(answers.TakeForInput("standard"), "standard");
    EXPECT_EQ(answers.TakeForInput("standard"), "");
    EXPECT_FALSE(answers.TakeForQuestion()) << "OK is no answer to a question";
}

TEST(PrinterRecord, ForgetsAJobThatIsGivenUp) {
    PrinterRecord printer;
    printer.KillDoc();
    printer.Box(1, 2, 3, 4, white);
    printer.EndDoc();
    const auto printed = printer.lines.All();
    printer.Box(5, 6, 7, 8, white);
    printer.NewPage();
    printer.FeedPage();
    printer.KillDoc();
    EXPECT_EQ(printer.lines.All(), printed);
    printer.EndDoc();
    EXPECT_EQ(printer.lines.All(), printed);
    printer.Box(5, 6, 7, 8, white);
    EXPECT_EQ(printer.lines.All().size(), printed.size() + 3);
}

TEST(PrinterRecord, StartsJobsAndPagesWhenSomethingIsDrawn) {
    PrinterRecord printer;
    FontProperties font;
    printer.NewPage();
    printer.EndDoc();
    EXPECT_TRUE(printer.lines.All().empty());

    printer.Print(1, 2.5, font, RGB(4, 5, 6), "");
    printer.SetOrientation(PageOrientation::Landscape);
    printer.PaintPicture({}, {1, 2, 3, 4});
    printer.NewPage();
    printer.NewPage();
    font.FontBold = true;
    font.FontSize = 12;
    printer.Print(0, 0, font, black, "a \"b\"");
    printer.EndDoc();
    printer.Box(1, 2, 3, 4, white);
    const std::vector<std::string> expected = {"job",
                                               "page portrait",
                                               "text 1 2.5 8.25 plain 4,5,6 \"\"",
                                               "picture 1 2 3 4",
                                               "page landscape",
                                               "text 0 0 12 bold 0,0,0 \"a \\\"b\\\"\"",
                                               "end",
                                               "job",
                                               "page landscape",
                                               "box 1 2 3 4 255,255,255"};
    EXPECT_EQ(printer.lines.All(), expected);
}

TEST(PrinterRecord, KnowsTwoPrinters) {
    PrinterRecord printer;
    EXPECT_EQ(printer.DeviceName(), "Printer A");
    printer.SelectPrinter("Printer B");
    EXPECT_EQ(printer.DeviceName(), "Printer B");
    printer.SelectPrinter("Printer C");
    EXPECT_EQ(printer.DeviceName(), "Printer B");
    EXPECT_EQ(printer.DeviceNames(), (std::vector<std::string>{"Printer A", "Printer B"}));
}

}  // namespace
}  // namespace coinlet::player
