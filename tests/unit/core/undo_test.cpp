#include "core/undo.h"

#include "core/main_form.h"
#include "core/main_layout.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

class UndoTest : public testing::Test {
protected:
    UndoTest() { LayOutMain(main); }
    Colour Pixel(int x) const { return main.Pic.surface.Point(x, 0); }

    test::TestServices services;
    MainForm main{services.ForForms()};
};

TEST_F(UndoTest, BringsBackTheCanvasAsItWasWhenItWasKept) {
    main.Pic.surface.PSet(1, 0, black);
    KeepForUndo(main);
    main.Pic.surface.PSet(2, 0, black);
    Undo(main);
    EXPECT_EQ(Pixel(1), black);
    EXPECT_EQ(Pixel(2), white);
}

TEST_F(UndoTest, IsOneStepHoweverOftenItIsAskedFor) {
    KeepForUndo(main);
    main.Pic.surface.PSet(1, 0, black);
    KeepForUndo(main);
    main.Pic.surface.PSet(2, 0, black);
    for (int times = 0; times < 2; ++times) {
        Undo(main);
        EXPECT_EQ(Pixel(1), black);
        EXPECT_EQ(Pixel(2), white);
        main.Pic.surface.PSet(2, 0, black);
    }
}

TEST_F(UndoTest, AnUndoneCanvasKeepsItsSize) {
    main.Pic.surface.SetPicture(Surface(services.fonts, 700, 600).Image());
    KeepForUndo(main);
    Undo(main);
    EXPECT_EQ(main.Pic.surface.Image().Width(), 500);
    EXPECT_EQ(main.Pic.surface.Image().Height(), 500);
}

}  // namespace
}  // namespace coinlet
