// The main window as its user sees it, with each tool and in both languages.
#include "core/language.h"
#include "core/side_panel.h"
#include "core/tool_codes.h"
#include "unit/app/delivered_program.h"
#include "unit/app/layout_check.h"

#include <string>
#include <vector>

namespace coinlet::test {
namespace {

class MainWindow : public DeliveredProgram, public testing::WithParamInterface<const char*> {
protected:
    MainWindow() { LoadLanguage(program.GetContext(), GetParam()); }

    void ExpectGoodLooks(const std::string& when) {
        ExpectInside(Main(), when);
        // The explanation lies over the back of the tag, and over nothing else.
        const bool explains = Main().Label16.Shown();
        EXPECT_TRUE(!explains || ExplanationLiesOverTheBack()) << when;
        Main().Label16.Visible = false;
        ExpectApart(Main(), when);
        Main().Label16.Visible = explains;
        ExpectTextsWhole(Main(), when);
        ExpectReadingOrder(Main(), when);
    }

private:
    bool ExplanationLiesOverTheBack() {
        const Label& box = Main().Label16;
        const double left = Main().InfoPic.Left() + sidePanelBackLeft * 15;
        const double top = Main().InfoPic.Top() + sidePanelBackTop * 15;
        constexpr double side = sidePanelBackSide * 15;
        return box.Left() >= left && box.Top() >= top && box.Left() + box.Width() <= left + side &&
               box.Top() + box.Height() <= top + side;
    }
};
INSTANTIATE_TEST_SUITE_P(AsDelivered, MainWindow, testing::Values("Nederlands", "English"),
                         [](const auto& test) { return std::string(test.param); });

TEST_P(MainWindow, LooksRightAtTheStart) {
    ExpectGoodLooks("at the start");
}

// Those that open no dialog: sliders, explanations and the text panel come and go with them.
TEST_P(MainWindow, LooksRightWithEveryTool) {
    for (const int tool :
         {freeHandTool, lineTool, fillTool, eraseTool, pickTool, copyTool, holeTool, aboutTool}) {
        Main().Knop[tool].PointerClicked();
        ExpectGoodLooks("with " + Main().Knop[tool].Caption());
    }
    for (int shape = Main().Vormen.First(); shape <= Main().Vormen.Last(); ++shape) {
        Main().Knop[shapesMenuTool].PointerClicked();
        Main().Vormen[shape].Click();
        ExpectGoodLooks("with " + Main().Vormen[shape].Caption);
    }
    Main().Knop[textTool].PointerClicked();
    EXPECT_TRUE(Main().Frame6.Shown());
    ExpectGoodLooks("with the text panel");
}

TEST_P(MainWindow, LooksRightAtBothEndsOfItsSliders) {
    std::vector<ScrollBar*> seen;
    for (const int tool : {freeHandTool, eraseTool, aboutTool}) {
        Main().Knop[tool].PointerClicked();
        for (Element* element : Main().Elements()) {
            auto* bar = dynamic_cast<ScrollBar*>(element);
            // The one that moves the canvas leaves it aside.
            if (!bar || !bar->Shown() || bar == &Main().HScroll5) continue;
            for (const int end : {bar->Highest(), bar->Lowest()}) {
                bar->UserDrags(end);
                bar->UserReleases();
                ExpectGoodLooks("with " + std::string(bar->Name()) + " at " + std::to_string(end));
            }
            seen.push_back(bar);
        }
    }
    EXPECT_GE(seen.size(), 3U);
}

// What belongs to a tool is as wide as what stands above it.
TEST_P(MainWindow, ThePanelsOfToolsStandInTheColumnOfTheColour) {
    for (const Label* panel : {&Main().Label9, &Main().Label11, &Main().Label20, &Main().Label5}) {
        EXPECT_EQ(panel->Left(), Main().ColorLabel.Left()) << panel->Name();
        EXPECT_EQ(panel->Width(), Main().ColorLabel.Width()) << panel->Name();
    }
}

TEST_P(MainWindow, AnExplanationKeepsOffTheEdgesOfItsBox) {
    EXPECT_GE(Main().Label16.Margin, 4);
}

}  // namespace
}  // namespace coinlet::test
