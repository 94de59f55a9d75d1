// A picture under the pointer: what is drawn lands on the pixel that the user points at, at every scale.

#include "sample_form.h"
#include "user.h"

#include <string>
#include <vector>

namespace coinlet::test {
namespace {

class Canvas : public ShellTest {
protected:
    SampleForm form{services};
};

TEST_F(Canvas, StrokeLandsOnThePixelsPointedAt) {
    Run(form, [&](User& user) {
        user.MoveTo(user.PlaceOf(form.Pic, 20, 30));
        user.Press();
        EXPECT_TRUE(user.Sees([&] { return form.Count("PicDown") == 1; }));
        user.MoveTo(user.PlaceOf(form.Pic, 20, 50));
        user.MoveTo(user.PlaceOf(form.Pic, 60, 50));
        user.Release();
        EXPECT_TRUE(user.Sees([&] { return form.Count("PicUp") == 1; }));

        // Down from (20, 30) to (20, 50), then right to (60, 50); nothing else.
        for (int y = 0; y < 150; ++y) {
            for (int x = 0; x < 140; ++x) {
                const bool ink = (x == 20 && y >= 30 && y <= 50) || (y == 50 && x >= 20 && x <= 60);
                ASSERT_EQ(form.Pic.surface.Point(x, y), ink ? black : white) << x << ", " << y;
            }
        }
        // And the screen shows it.
        user.MoveTo(user.PlaceOf(form.Pic, 100, 100));
        EXPECT_EQ(user.ColourAt(user.PlaceOf(form.Pic, 20, 40)), black);
        EXPECT_EQ(user.ColourAt(user.PlaceOf(form.Pic, 60, 50)), black);
        EXPECT_EQ(user.ColourAt(user.PlaceOf(form.Pic, 61, 50)), white);
        EXPECT_EQ(user.ColourAt(user.PlaceOf(form.Pic, 21, 49)), white);
    });
}

TEST_F(Canvas, EachEventTellsItsButtonAndAMoveTheOneThatIsHeld) {
    std::vector<std::string> told;
    const auto note = [&told](const char* event) {
        return [&told, event](int button, int, float, float) {
            const std::string line = event + std::to_string(button);
            // However many steps a move has.
            if (told.empty() || told.back() != line) told.push_back(line);
        };
    };
    form.Pic.MouseDown = note("down ");
    form.Pic.MouseMove = note("move ");
    form.Pic.MouseUp = note("up ");
    Run(form, [&](User& user) {
        user.MoveTo(user.PlaceOf(form.Pic, 20, 30));
        for (const int button : {1, 3}) {
            user.Press(button);
            user.MoveTo(user.PlaceOf(form.Pic, 40, 30));
            user.Release(button);
            user.MoveTo(user.PlaceOf(form.Pic, 20, 30));
        }
        const std::vector<std::string> expected{"move 0", "down 1", "move 1", "up 1",  "move 0",
                                                "down 2", "move 2", "up 2",   "move 0"};
        EXPECT_TRUE(user.Sees([&] { return told.size() >= expected.size(); }));
        user.Has([&] { EXPECT_EQ(told, expected); });
    });
}

TEST_F(Canvas, PointerIsCountedInTheUnitsOfThePicture) {
    float x = 0, y = 0;
    form.Pic.surface.SetScaleMode(twipScale);
    form.Pic.MouseDown = [&](int, int, float atX, float atY) { x = atX, y = atY; };
    Run(form, [&](User& user) {
        user.Click(form.Pic, 10, 12);
        EXPECT_TRUE(user.Sees([&] { return x == 150.0F && y == 180.0F; }));
    });
}

TEST_F(Canvas, MiddleButtonIsAButton) {
    std::vector<int> pressed, released;
    form.Pic.MouseDown = [&](int button, int, float, float) { pressed.push_back(button); };
    form.Pic.MouseUp = [&](int button, int, float, float) { released.push_back(button); };
    Run(form, [&](User& user) {
        user.ClickMiddle(user.PlaceOf(form.Pic, 10, 12));
        EXPECT_TRUE(user.Sees([&] { return pressed == std::vector{4} && released == std::vector{4}; }));
    });
}

TEST_F(Canvas, IsShownWhileAHandlerStillDraws) {
    bool seen = false;
    form.OkKnop.Click = [&] {
        form.Pic.surface.Line(0, 0, 199, 199, RGB(0, 200, 0), Box::Filled);
        while (!seen)
            platform.DoEvents();
    };
    Run(form, [&](User& user) {
        user.Click(form.OkKnop, 40, 14);
        const QPoint place = user.PlaceOf(form.Pic, 100, 100);
        while (user.ColourAt(place) != RGB(0, 200, 0)) {
        }
        user.Has([&] { seen = true; });
    });
    EXPECT_TRUE(seen);
}

TEST_F(Canvas, ShowsAFixedBitmapFromItsCorner) {
    form.Pic.FixedBitmap = true;
    form.Pic.surface.PSet(0, 0, RGB(255, 0, 0));
    form.Pic.SetWidth(100 * 15);
    Run(form, [&](User& user) {
        EXPECT_EQ(form.Pic.surface.PixelWidth(), 200);
        EXPECT_EQ(user.ColourAt(user.PlaceOf(form.Pic, 0, 0)), RGB(255, 0, 0));
        EXPECT_EQ(user.ColourAt(user.PlaceOf(form.Pic, 99, 5)), white);
        EXPECT_EQ(user.ColourAt(user.PlaceOf(form.Pic, 101, 5)), RGB(220, 220, 190));
    });
}

}  // namespace
}  // namespace coinlet::test
