// Dialogs that work on a copy of the canvas: what they take from the main form, and what they give back.
#include "core/canvas_dialog.h"

#include "core/context.h"
#include "support/world.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace coinlet {
namespace {

constexpr Colour red = RGB(255, 0, 0), blue = RGB(0, 0, 255);

class CanvasDialogTest : public testing::Test, protected test::World {
protected:
    struct Dialog : Form {
        using Form::Form;
        Shape Shape1{*this, "Shape1"};
        PictureBox Pic{*this, "Pic"};
        VistaButton ExportKnop{*this, "ExportKnop"};
        VistaButton CancelKnop{*this, "CancelKnop"};
    };

    CanvasDialogTest() {
        PlaceCanvasCopy(dialog.Pic, dialog.Shape1);
        main.InfoList.AddItem("001 Begin");
        main.InfoLabel.Caption = "Draw";
        session.ToolCode = 7;
    }
    Surface& Canvas() { return main.Pic.surface; }
    Surface& Copy() { return dialog.Pic.surface; }
    /// Opens the dialog and does this in it.
    void InDialog(const std::function<void()>& doing) {
        platform.doings.emplace_back(doing);
        platform.ShowModal(dialog);
    }

    Dialog dialog{services.ForForms(), "Dialog"};
};

TEST_F(CanvasDialogTest, TheCopyStandsInTheCornerWithAnEdgeOfOnePixel) {
    EXPECT_EQ(dialog.Pic.Left(), 12 * 15);
    EXPECT_EQ(dialog.Pic.Top(), 12 * 15);
    EXPECT_EQ(dialog.Pic.PixelWidth(), 500);
    EXPECT_EQ(dialog.Pic.PixelHeight(), 500);
    EXPECT_EQ(dialog.Shape1.Left(), 11 * 15);
    EXPECT_EQ(dialog.Shape1.PixelHeight(), 502);
}

TEST_F(CanvasDialogTest, TheCopyIsTheCanvasAsItStandsNow) {
    Canvas().PSet(499, 0, red);
    CopyCanvas(context, Copy());
    EXPECT_EQ(Copy().Point(499, 0), red);
    Copy().PSet(0, 499, red);
    Canvas().PSet(499, 0, blue);
    CopyCanvas(context, Copy());
    EXPECT_EQ(Copy().Point(499, 0), blue);
    EXPECT_EQ(Copy().Point(0, 499), white);
}

TEST_F(CanvasDialogTest, TheCopyKeepsItsBackgroundAndItsFont) {
    Copy().FontSize = 40;
    Copy().ForeColor = blue;
    Canvas().PSet(3, 4, red);
    CopyCanvas(context, Copy());
    EXPECT_EQ(Copy().FontSize, 40);
    EXPECT_EQ(Copy().ForeColor, blue);
    Copy().Cls();
    EXPECT_EQ(Copy().Point(3, 4), white);
}

TEST_F(CanvasDialogTest, ExportPaintsTheWholeCanvasAndNothingElseOfMain) {
    Canvas().PSet(10, 10, blue);
    Copy().PSet(0, 0, red);
    Copy().PSet(499, 499, red);
    main.UndoPic.surface.PSet(1, 1, blue);
    InDialog([&] { ExportToCanvas(context, dialog, Copy().Image()); });
    EXPECT_FALSE(dialog.Loaded());
    EXPECT_EQ(Canvas().Point(0, 0), red);
    EXPECT_EQ(Canvas().Point(499, 499), red);
    EXPECT_EQ(Canvas().Point(10, 10), white);
    EXPECT_EQ(main.UndoPic.surface.Point(1, 1), blue);
    EXPECT_EQ(main.UndoPic.surface.Point(0, 0), white);
    EXPECT_FALSE(session.DesignChanged);
    EXPECT_EQ(session.ToolCode, 7);
    EXPECT_EQ(main.InfoLabel.Caption, "Begin");
    EXPECT_EQ(main.NummerLabel.Caption, "001");
}

TEST_F(CanvasDialogTest, ClosingLeavesTheCanvasAndShowsTheFirstHint) {
    Copy().PSet(0, 0, red);
    InDialog([&] { CloseDialog(context, dialog); });
    EXPECT_FALSE(dialog.Loaded());
    EXPECT_EQ(Canvas().Point(0, 0), white);
    EXPECT_EQ(main.InfoLabel.Caption, "Begin");
}

// A dialog that asked whether it may go, and stays, has left nothing half done but the canvas that it
// painted.
TEST_F(CanvasDialogTest, TheDialogUnloadsBeforeTheHintChanges) {
    struct Watching : Dialog {
        Watching(const Services& services, MainForm& form)
            : Dialog(services.ForForms(), "Watching"), main(form) {}
        void Form_Unload(bool&) override { hintAtUnload = main.InfoLabel.Caption; }
        MainForm& main;
        std::string hintAtUnload;
    };
    Watching watching(services, main);
    platform.doings.emplace_back([&] { CloseDialog(context, watching); });
    platform.ShowModal(watching);
    EXPECT_EQ(watching.hintAtUnload, "Draw");
    EXPECT_EQ(main.InfoLabel.Caption, "Begin");
}

TEST_F(CanvasDialogTest, TheButtonsAtTheFootShareTheirPlace) {
    PlaceWaysOut(dialog.ExportKnop, dialog.CancelKnop, 524, 488, 256, 24);
    EXPECT_EQ(dialog.ExportKnop.Left(), 524 * 15);
    EXPECT_EQ(dialog.ExportKnop.PixelWidth(), 124);
    EXPECT_EQ(dialog.CancelKnop.Left(), (524 + 124 + 8) * 15);
    EXPECT_EQ(dialog.CancelKnop.PixelWidth(), 124);
    EXPECT_EQ(dialog.CancelKnop.Top(), 488 * 15);
    EXPECT_EQ(dialog.ExportKnop.PixelHeight(), 24);
    EXPECT_EQ(dialog.ExportKnop.Caption(), "Export");
    EXPECT_EQ(dialog.CancelKnop.Caption(), "Cancel");
}

}  // namespace
}  // namespace coinlet
