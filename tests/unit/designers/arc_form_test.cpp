// The arc designer as a whole: its ways of drawing, and what goes to the canvas.

#include "core/language.h"
#include "unit/designers/arc_world.h"

namespace coinlet {
namespace {

class ArcFormTest : public test::ArcWorld {
protected:
    std::vector<const Frame*> Panels() const {
        return {&form.Arcs.Frame7, &form.Triangles.Frame2, &form.Segments.Frame3, &form.Curves.Frame4,
                &form.Polygons.Frame6};
    }
};

TEST_F(ArcFormTest, OpensWithTheCanvasAsItsBackground) {
    main.Pic.surface.Line(10, 10, 100, 10, black);
    ArcForm fresh(context);
    fresh.Form_Load();
    EXPECT_EQ(fresh.Pic.surface.Image(), main.Pic.surface.Image());
    fresh.Pic.surface.Line(0, 0, 499, 499, black, Box::Filled);
    fresh.Pic.surface.Cls();
    EXPECT_EQ(fresh.Pic.surface.Image(), main.Pic.surface.Image());
    EXPECT_EQ(fresh.CorLabel.Caption, "0, 0");
    EXPECT_EQ(fresh.Label3.Caption, "Line Width (2)");
    EXPECT_EQ(fresh.HScroll1.Value(), 2);
    EXPECT_TRUE(fresh.Option1[0].Value());
}

TEST_F(ArcFormTest, EachWayOfDrawingHasItsPanelAndItsCircle) {
    const auto panels = Panels();
    for (const int mode : {1, 2, 3, 4, 0}) {
        Choose(mode);
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(panels[static_cast<std::size_t>(i)]->Visible, i == mode) << mode;
        EXPECT_EQ(form.Layer.Visible, mode == 2 || mode == 4);
    }
}

TEST_F(ArcFormTest, EachWayOfDrawingSaysWhatToDo) {
    fs::create_directories(folder / "app/Data");
    folder.Write("app/Data/English.txt",
                 "014 arc\r\n090 triangle\r\n091 segment\r\n092 curve\r\n093 polygon\r\n");
    LoadLanguage(context, "English");
    const char* texts[] = {"arc", "triangle", "segment", "curve", "polygon"};
    for (const int mode : {1, 2, 3, 4, 0}) {
        Choose(mode);
        EXPECT_EQ(main.InfoLabel.Caption, texts[mode]);
        EXPECT_EQ(form.InfoLabel.Caption, texts[mode]);
    }
    main.InfoLabel.Caption = "before";
    ArcForm fresh(context);
    fresh.Form_Load();
    EXPECT_EQ(fresh.InfoLabel.Caption, "arc");
    EXPECT_EQ(main.InfoLabel.Caption, "before");
}

TEST_F(ArcFormTest, EveryPressTakesThePenOfTheSliderInBlack) {
    for (int mode = 0; mode < 5; ++mode) {
        Choose(mode);
        form.HScroll1.SetValue(3 + mode);
        Picture().DrawWidth = 1;
        Picture().ForeColor = RGB(1, 2, 3);
        Press(-400, -400, middleButton);
        EXPECT_EQ(Picture().DrawWidth, 3 + mode);
        EXPECT_EQ(Picture().ForeColor, black);
        Release(-400, -400, middleButton);
    }
}

TEST_F(ArcFormTest, EveryMoveTellsThePlace) {
    for (int mode = 0; mode < 5; ++mode) {
        Choose(mode);
        Move(static_cast<float>(100 + mode), -7);
        EXPECT_EQ(form.CorLabel.Caption, "X : " + std::to_string(100 + mode) + ", Y : -7");
    }
}

TEST_F(ArcFormTest, TheSliderLosesALetterOfItsName) {
    ArcForm fresh(context);
    EXPECT_EQ(fresh.Label3.Caption, "Line Width (2)");
    fresh.HScroll1.SetValue(7);
    EXPECT_EQ(fresh.Label3.Caption, "Line With (7)");
    fresh.HScroll1.SetValue(99);
    EXPECT_EQ(fresh.Label3.Caption, "Line With (10)");
    fresh.HScroll1.SetValue(0);
    EXPECT_EQ(fresh.Label3.Caption, "Line With (1)");
}

TEST_F(ArcFormTest, ThePenFollowsItsSliderWhileThatIsDragged) {
    Choose(3);
    form.HScroll1.UserDrags(6);  // and doesn't let it go
    EXPECT_EQ(form.Label3.Caption, "Line With (6)");
    EXPECT_EQ(Picture().DrawWidth, 6);
}

TEST_F(ArcFormTest, ResetTakesTheCanvasAsItIsNow) {
    form.Segments.HScroll2[0].SetValue(1);
    form.Segments.HScroll2[1].SetValue(2);
    form.Segments.HScroll2[2].SetValue(33);
    Choose(2);
    form.Segments.SegmentKnop[0].Click();
    main.Pic.surface.Line(10, 10, 100, 10, black);
    form.ResetKnop.Click();
    EXPECT_EQ(Seen(), main.Pic.surface.Image());
    EXPECT_EQ(form.TMPres.surface.Image(), Seen());
    EXPECT_EQ(form.Segments.HScroll2[0].Value(), 150);
    EXPECT_EQ(form.Segments.HScroll2[1].Value(), 150);
    EXPECT_EQ(form.Segments.HScroll2[2].Value(), 200);
    EXPECT_EQ(form.Segments.ScrolLabel[2].Caption, "Radius (200)");
    form.Pic.surface.Cls();
    EXPECT_EQ(Seen(), main.Pic.surface.Image());
}

TEST_F(ArcFormTest, ExportPaintsAllOfThePictureOverTheCanvas) {
    const ArcForm& seen = form;
    form.Pic.surface.Line(10, 10, 100, 10, black);
    const Image picture = Seen();
    session.DesignChanged = false;
    form.ExportKnop.Click();
    EXPECT_EQ(main.Pic.surface.Image(), picture);
    EXPECT_FALSE(session.DesignChanged);
    EXPECT_FALSE(seen.Loaded());
}

}  // namespace
}  // namespace coinlet
