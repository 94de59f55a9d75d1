// How often the polygon is drawn, and what is typed.
#include "designers/polygon_form.h"

#include "designers/polygon_figure.h"
#include "support/world.h"

#include <climits>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace coinlet::test {
namespace {

class PolygonFormTest : public testing::Test, protected World {
protected:
    /// Opens the dialog, has the user do that, and closes it if he hasn't.
    void Open(const std::function<void(PolygonForm&)>& doing) {
        PolygonForm dialog(context);
        platform.doings.push_back([&] {
            doing(dialog);
            dialog.Unload();
        });
        platform.ShowModal(dialog);
    }
    Image Polygon(const PolygonSweep& sweep, int width = 400, int height = 400, int penWidth = 1) const {
        Surface surface(services.fonts, width, height);
        surface.DrawWidth = penWidth;
        DrawPolygonFigure(surface, sweep, 0.5);
        return surface.Image();
    }
    /// How often a doing draws a polygon of the dialog's present number of sides: each drawing changes the
    /// picture by the same number of steps.
    static std::uint64_t Drawings(PolygonForm& dialog, const std::function<void()>& doing) {
        const Surface& picture = dialog.Picture1.surface;
        const std::uint64_t before = picture.Revision();
        doing();
        const std::uint64_t middle = picture.Revision();
        dialog.chkCircle.Click();  // draws once, whatever else
        const std::uint64_t one = picture.Revision() - middle;
        EXPECT_EQ((middle - before) % one, 0U);
        return (middle - before) / one;
    }
};

TEST_F(PolygonFormTest, DrawsOnceForEachChange) {
    Open([&](PolygonForm& dialog) {
        EXPECT_EQ(Drawings(dialog, [&] { dialog.vsbDiameter.SetValue(20); }), 1U);
        EXPECT_EQ(Drawings(dialog, [&] { dialog.hsbRotate.SetValue(40); }), 1U);
        EXPECT_EQ(Drawings(dialog, [&] { dialog.hsbRotate.UserDrags(41); }), 1U);
        EXPECT_EQ(Drawings(dialog, [&] { dialog.hsbRotate.UserReleases(); }), 1U);
        EXPECT_EQ(Drawings(dialog, [] {}), 0U);
    });
}

TEST_F(PolygonFormTest, ThePolygonFollowsItsSlidersWhileTheyAreDragged) {
    Open([&](PolygonForm& dialog) {
        dialog.HScroll1.UserDrags(14);  // none is let go
        EXPECT_EQ(dialog.Label14.Caption, "4");
        EXPECT_EQ(dialog.Picture1.surface.Image(), Polygon({10, 0, wholeTurn}, 280, 280));
        dialog.hsbRotate.UserDrags(25);
        EXPECT_EQ(dialog.txtInitialSide.Text(), "25°");
        EXPECT_EQ(dialog.Picture1.surface.Image(), Polygon({10, 25, wholeTurn}, 280, 280));
    });
}

TEST_F(PolygonFormTest, TheRotationGoesBackWithoutADrawingOfItsOwn) {
    Open([&](PolygonForm& dialog) {
        const Surface& picture = dialog.Picture1.surface;
        dialog.hsbRotate.SetValue(40);
        const std::uint64_t before = picture.Revision();
        dialog.vsbNumberofSides.SetValue(12);
        const std::uint64_t after = picture.Revision();
        EXPECT_EQ(dialog.hsbRotate.Value(), 0);
        dialog.hsbRotate.SetValue(40);  // one drawing of the same
        EXPECT_EQ(after - before, picture.Revision() - after);
        dialog.vsbNumberofSides.SetValue(13);
        EXPECT_EQ(dialog.hsbRotate.Value(), 0);
        EXPECT_EQ(dialog.txtInitialSide.Text(), "0°");
        // The drawing was made before.
        dialog.hsbRotate.SetValue(30);
        dialog.vsbNumberofSides.SetValue(5);
        EXPECT_EQ(dialog.Picture1.surface.Image(), Polygon({5, 30, wholeTurn}));
        dialog.chkCircle.Click();
        EXPECT_EQ(dialog.Picture1.surface.Image(), Polygon({5, 0, wholeTurn}));
    });
}

TEST_F(PolygonFormTest, AWholeTurnIsNoneAndDrawsOnce) {
    Open([&](PolygonForm& dialog) {
        dialog.hsbRotate.SetValue(359);
        EXPECT_EQ(Drawings(dialog, [&] { dialog.hsbRotate.SetValue(360); }), 1U);
        EXPECT_EQ(dialog.hsbRotate.Value(), 0);
        EXPECT_EQ(dialog.txtInitialSide.Text(), "0°");
        EXPECT_EQ(dialog.Picture1.surface.Image(), Polygon({10, 0, wholeTurn}));
        EXPECT_EQ(Drawings(dialog, [&] { dialog.hsbRotate.UserDrags(360); }), 1U);
        EXPECT_EQ(dialog.hsbRotate.Value(), 0);
    });
}

TEST_F(PolygonFormTest, ATypedNumberOfFacesCountsFromTheNextDrawing) {
    Open([&](PolygonForm& dialog) {
        const Image tenSides = dialog.Picture1.surface.Image();
        dialog.txtNumberofSides.UserEdits(" 6 ");
        EXPECT_EQ(dialog.Picture1.surface.Image(), tenSides);
        dialog.hsbRotate.SetValue(30);
        EXPECT_EQ(dialog.Picture1.surface.Image(), Polygon({6, 30, wholeTurn}));
        EXPECT_EQ(dialog.vsbNumberofSides.Value(), 10);
        dialog.txtNumberofSides.UserEdits("4.5");  // the nearest whole number, of two the even one
        dialog.txtNumberofSides.CharacterTyped(keyReturn);
        EXPECT_EQ(dialog.Picture1.surface.Image(), Polygon({4, 30, wholeTurn}));
        EXPECT_EQ(dialog.txtDegrees.Text(), "90.00°");
        dialog.txtNumberofSides.CharacterTyped('5');
        EXPECT_EQ(dialog.txtDegrees.Text(), "90.00°");
    });
}

TEST_F(PolygonFormTest, ANumberOfFacesThatNoPolygonHasDrawsNothingAnew) {
    Open([&](PolygonForm& dialog) {
        const Image before = dialog.Picture1.surface.Image();
        const std::uint64_t revision = dialog.Picture1.surface.Revision();
        for (const char* typed : {"2", "361", "0", "-5", "2.4", "360.6", "", "  ", "abc", "10 faces", "1e9",
                                  "1e400", "nan", "inf", "99999999999999999999"}) {
            dialog.txtNumberofSides.UserEdits(typed);
            dialog.hsbRotate.SetValue(dialog.hsbRotate.Value() + 1);
            dialog.chkCircle.SetValue(!dialog.chkCircle.Value());
            dialog.txtNumberofSides.CharacterTyped(keyReturn);
            EXPECT_EQ(dialog.Picture1.surface.Revision(), revision) << typed;
            EXPECT_EQ(dialog.txtInitialSide.Text(), WholeDegrees(dialog.hsbRotate.Value()));
        }
        EXPECT_EQ(dialog.Picture1.surface.Image(), before);
        EXPECT_EQ(dialog.txtDegrees.Text(), "36.00°");
        // Another size leaves the paper empty, and the bar beside the field makes a number again.
        dialog.HScroll1.SetValue(10);
        EXPECT_EQ(dialog.Picture1.surface.Image(), Surface(services.fonts, 200, 200).Image());
        EXPECT_EQ(dialog.Label14.Caption, "0");
        dialog.chkCircle.SetValue(false);
        dialog.hsbRotate.SetValue(0);
        dialog.vsbNumberofSides.SetValue(11);
        EXPECT_EQ(dialog.txtNumberofSides.Text(), "11");
        EXPECT_EQ(dialog.Picture1.surface.Image(), Polygon({11, 0, wholeTurn}, 200, 200));
    });
}

TEST_F(PolygonFormTest, ADiameterOfNoneDrawsNothing) {
    Open([&](PolygonForm& dialog) {
        for (const char* typed : {"0", "", "abc", "0.0", "-0", "1e400", "nan", "1 m"}) {
            dialog.txtDiameter.UserEdits("1");
            dialog.txtDiameter.CharacterTyped(keyReturn);
            ASSERT_EQ(dialog.Picture1.surface.Image(), Polygon({10, 0, wholeTurn}));
            dialog.txtDiameter.UserEdits(typed);
            dialog.chkCircle.Click();
            EXPECT_EQ(dialog.Picture1.surface.Image(), Surface(services.fonts, 400, 400).Image()) << typed;
            EXPECT_EQ(dialog.txtPerimeter.Text(), "0");
            EXPECT_EQ(dialog.txtDegrees.Text(), "36.00°");
        }
    });
}

TEST_F(PolygonFormTest, ATypedDiameterCountsFromTheNextDrawing) {
    Open([&](PolygonForm& dialog) {
        dialog.txtDiameter.UserEdits("2.5");
        EXPECT_EQ(dialog.txtCircumference.Text(), "3.141593");
        dialog.txtDiameter.CharacterTyped('x');
        EXPECT_EQ(dialog.txtRadius.Text(), "0.5");
        dialog.txtDiameter.CharacterTyped(keyReturn);
        EXPECT_EQ(dialog.txtRadius.Text(), "1.25");
        EXPECT_EQ(dialog.txtCircumference.Text(), "7.853981");  // 2.5 pi as a single
        EXPECT_EQ(dialog.Picture1.surface.Image(), Polygon({10, 0, wholeTurn}));
        for (const char* typed : {"-1", "1e308", "1e-310", "-1e308"}) {
            dialog.txtDiameter.UserEdits(typed);
            dialog.hsbRotate.SetValue(dialog.hsbRotate.Value() + 1);
            EXPECT_FALSE(dialog.txtPerimeter.Text().empty()) << typed;
        }
    });
}

TEST_F(PolygonFormTest, TakesALineWidthThatIsTyped) {
    Open([&](PolygonForm& dialog) {
        dialog.Combo1.UserEdits("7");
        EXPECT_EQ(dialog.Picture1.surface.Image(), Polygon({10, 0, wholeTurn}));  // counts from the next one
        dialog.hsbRotate.SetValue(1);
        EXPECT_EQ(dialog.Picture1.surface.Image(), Polygon({10, 1, wholeTurn}, 400, 400, 7));
        for (const char* none : {"", "abc", "0", "-3"}) {
            dialog.Combo1.UserEdits(none);
            dialog.chkCircle.Click();
            EXPECT_EQ(dialog.Picture1.surface.Image(), Polygon({10, 1, wholeTurn})) << none;
        }
        dialog.Combo1.UserEdits("99999999999");
        dialog.chkCircle.Click();
        EXPECT_EQ(dialog.Picture1.surface.Point(0, 0), black);
    });
}

TEST_F(PolygonFormTest, BarsOfAnyRangeDrawOrLeaveThePictureAsItWas) {
    Open([this](PolygonForm& dialog) {
        const int width = dialog.Picture1.surface.Image().Width();
        dialog.HScroll1.SetRange(INT_MIN, INT_MAX);
        for (const int end : {INT_MIN, INT_MAX}) {
            dialog.HScroll1.SetValue(end);
            EXPECT_EQ(dialog.Label14.Caption, std::to_string(std::int64_t{end} - 10));
        }
        EXPECT_EQ(dialog.Picture1.surface.Image().Width(), width);
        dialog.hsbRotate.SetRange(0, INT_MAX);
        dialog.hsbRotate.SetValue(INT_MAX);
        EXPECT_EQ(dialog.Picture1.surface.Image(),
                  Polygon({dialog.vsbNumberofSides.Value(), 32767, wholeTurn}, width, width));
    });
}

TEST_F(PolygonFormTest, HasNoButtonThatEnterPresses) {
    Open([&](PolygonForm& dialog) {
        dialog.KeyDown(&dialog.txtNumberofSides, keyReturn, 0);
        EXPECT_TRUE(dialog.Loaded());
        EXPECT_EQ(dialog.DefaultButton, nullptr);
    });
}

}  // namespace
}  // namespace coinlet::test
