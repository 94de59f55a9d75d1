// An image that floats over the canvas, and dialogs that hand one over.
#include "core/floating_image.h"

#include "core/context.h"
#include "core/dialog.h"
#include "core/main_layout.h"
#include "support/world.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

constexpr Colour red = RGB(255, 0, 0);

class FloatingImageTest : public testing::Test, protected test::World {
protected:
    FloatingImageTest() {
        LayOutMain(main);
        main.InfoList.AddItem("001 Begin");
        main.InfoList.AddItem("027 Drag and paste");
        main.InfoLabel.Caption = "Choose";
        main.ClipPic.Visible = main.HoekKnop.Visible = false;
        session.ToolCode = 4;
    }
    Image Picture(int width, int height) const {
        Surface picture(fonts, width, height);
        picture.PSet(width - 1, height - 1, red);
        return picture.Image();
    }
    void Export(const Image& image, FloatingHint hint = FloatingHint::Shown) {
        platform.doings.emplace_back([=, this] { ExportAsFloatingImage(context, dialog, image, hint); });
        platform.ShowModal(dialog);
    }
    void ExpectFloats(int width, int height) {
        EXPECT_EQ(session.ToolCode, 50);
        EXPECT_TRUE(main.ClipPic.Visible);
        EXPECT_TRUE(main.HoekKnop.Visible);
        EXPECT_EQ(main.ClipPic.Left(), 0);
        EXPECT_EQ(main.ClipPic.Top(), 0);
        EXPECT_EQ(main.ClipPic.PixelWidth(), width);
        EXPECT_EQ(main.ClipPic.PixelHeight(), height);
    }

    Form dialog{services.ForForms(), "Dialog"};
};

TEST_F(FloatingImageTest, ADialogHandsOverItsPictureAndUnloads) {
    main.ClipPic.Move(100, 120);
    Export(Picture(30, 20));
    ExpectFloats(30, 20);
    EXPECT_EQ(main.ClipPic.surface.Point(29, 19), red);
    EXPECT_FALSE(dialog.Loaded());
    EXPECT_EQ(main.InfoLabel.Caption, "Drag and paste");
    EXPECT_EQ(main.NummerLabel.Caption, "027");
    EXPECT_FALSE(session.DesignChanged);
    EXPECT_EQ(main.Pic.surface.Point(29, 19), white);
}

TEST_F(FloatingImageTest, AHintMayStayWhileItsNumberChanges) {
    Export(Picture(30, 20), FloatingHint::NumberOnly);
    ExpectFloats(30, 20);
    EXPECT_EQ(main.InfoLabel.Caption, "Choose");
    EXPECT_EQ(main.NummerLabel.Caption, "027");
}

TEST_F(FloatingImageTest, APictureReplacesTheOneThatFloats) {
    Export(Picture(30, 20));
    main.ClipPic.Move(7, 9);
    Export(Picture(10, 40));
    ExpectFloats(10, 40);
}

TEST_F(FloatingImageTest, APictureOfNoPixelsFloatsUnseen) {
    Export(Picture(30, 20));
    Export({});
    ExpectFloats(0, 0);
}

TEST_F(FloatingImageTest, ADialogThatIsCancelledLeavesWhatFloats) {
    Export(Picture(30, 20));
    platform.doings.emplace_back([this] { CloseDialog(context, dialog); });
    platform.ShowModal(dialog);
    ExpectFloats(30, 20);
    EXPECT_EQ(main.InfoLabel.Caption, "Begin");
}

TEST_F(FloatingImageTest, HidingTakesTheButtonAway) {
    Export(Picture(30, 20));
    HideFloatingImage(context);
    EXPECT_FALSE(main.ClipPic.Visible);
    EXPECT_FALSE(main.HoekKnop.Visible);
}

}  // namespace
}  // namespace coinlet
