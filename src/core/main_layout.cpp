#include "core/main_layout.h"

#include "base/program.h"
#include "controls/house_colours.h"
#include "controls/placing.h"
#include "core/main_form.h"
#include "core/side_panel.h"
#include "core/slider_groups.h"
#include "core/stock_pictures.h"
#include "core/tool_codes.h"
#include "core/tool_sliders.h"

#include <array>
#include <string>
#include <string_view>

namespace coinlet {

namespace {

constexpr Colour boardColour = RGB(60, 64, 72);
constexpr Colour sliderPanelColour = RGB(206, 206, 174);
constexpr Colour toolInUseColour = RGB(70, 90, 170);

constexpr int rulerWidth = 21, rulerHeight = 20;  // pixels
/// Where the rulers meet, in twips.
constexpr double rulersLeft = 180, rulersTop = 270;

constexpr double Twips(int pixels) {
    return pixels * twipsPerPixel;
}

void LayOutStrip(MainForm& main) {
    PlaceByPixels(main.MenuPic, 0, 0, 1098, 28);
    main.MenuPic.Border = false;
    main.MenuPic.BackColor = fieldColour;
    for (Label* label : {&main.Label2, &main.Label19, &main.KlokLabel}) {
        label->ForeColor = fieldTextColour;
        label->FontSize = 9;
    }
    PlaceByPixels(main.Label2, 12, 6, 560, 16);
    PlaceByPixels(main.Label19, 584, 6, 200, 16);
    main.Label19.ForeColor = accentColour;
    main.Label19.Alignment = Alignment::Center;
    main.Label19.Visible = false;
    PlaceByPixels(main.KlokLabel, 906, 6, 180, 16);
    main.KlokLabel.Alignment = Alignment::Right;
}

void LayOutBrowser(MainForm& main) {
    PlaceByPixels(main.Frame1, 4, 32, 196, 548);
    PlaceByPixels(main.ImgKnop, 9, 12, 115, 24);
    PlaceByPixels(main.Bar, 9, 16, 115, 15);
    main.Bar.Visible = false;
    PlaceByPixels(main.MapKnop, 128, 12, 59, 24);
    PlaceByPixels(main.List1, 9, 44, 178, 280);
    main.List1.ForeColor = fileListTextColour;
    main.List1.BackColor = fileListColour;
    main.File1.Visible = false;
    PlaceByPixels(main.Label8, 9, 332, 178, 16);
    main.Pic2.Move(135, 5355, Twips(previewSide), Twips(previewSide));

    PlaceByPixels(main.Frame3, 4, 584, 196, 80);
    PlaceByPixels(main.HorKnop, 9, 10, 58, 28);
    PlaceByPixels(main.VerKnop, 69, 10, 58, 28);
    PlaceByPixels(main.RotatieKnop, 129, 10, 58, 28);
    PlaceByPixels(main.OkKnop, 9, 44, 178, 28);

    main.ImgKnop.SetCaption("Images");
    main.MapKnop.SetCaption("Folder");
    main.MapKnop.ToolTipText = " Select Folder ";
    main.HorKnop.SetCaption("Hor.");
    main.HorKnop.ToolTipText = " Flip Horizontal ";
    main.VerKnop.SetCaption("Vert.");
    main.VerKnop.ToolTipText = " Flip Vertical ";
    main.RotatieKnop.SetCaption("Rot.");
    main.RotatieKnop.ToolTipText = " Rotate Left ";
    main.OkKnop.SetCaption("Paste");
    main.OkKnop.ToolTipText = " Paste Image on Coinlet ";
}

void LayOutCanvas(MainForm& main) {
    PlaceByPixels(main.Frame2, 204, 32, 720, 548);
    main.LabelPic.surface.SetScaleMode(twipScale);
    main.LabelPic.Move(75, 180, 10650, 7935);
    main.LabelPic.surface.SetBackColor(boardColour);

    main.TopPic.Move(canvasLeft, rulersTop, canvasTwips, Twips(rulerHeight));
    main.LeftPic.Move(rulersLeft, canvasTop, Twips(rulerWidth), canvasTwips);
    NarrowCorner(main);
    main.HoekKnop.SetCaption(" Paste ");
    main.HoekKnop.ToolTipText = " Paste Image on Coinlet ";
    main.HoekKnop.Visible = false;

    main.Pic.Move(canvasLeft, canvasTop, canvasTwips, canvasTwips);
    main.Pic.FixedBitmap = true;
    main.Pic.MousePointer = toolPointer;
    main.Pic.FocusRing = false;
    // A pixel of the board stays free between canvas and side panel.
    const double frameLeft = rulersLeft - main.LabelPic.Left() - twipsPerPixel;
    const double frameTop = rulersTop - main.LabelPic.Top() - twipsPerPixel;
    main.KeysShape.Move(frameLeft, frameTop,
                        canvasLeft + canvasTwips - main.LabelPic.Left() + twipsPerPixel - frameLeft,
                        canvasTop + canvasTwips - main.LabelPic.Top() + twipsPerPixel - frameTop);
    main.KeysShape.BorderColor = accentColour;
    main.KeysShape.Visible = false;
    main.UndoPic.Move(canvasLeft, canvasTop, canvasTwips, canvasTwips);

    main.Line1.X2 = rulerWidth;
    main.Line2.Y2 = rulerHeight;
    for (LineShape* mark : {&main.Line1, &main.Line2})
        mark->BorderColor = RGB(0, 0, 160);
    main.Line3.X2 = canvasSide;
    main.Line4.Y2 = canvasSide;
    for (LineShape* cross : {&main.Line3, &main.Line4}) {
        cross->BorderColor = RGB(200, 200, 200);
        cross->Visible = false;
    }
    main.Gom.Form = ShapeForm::Circle;
    main.HoleShape.Form = ShapeForm::Circle;
    main.Layer.BorderDotted = true;
    for (Shape* marker : {&main.Gom, &main.Layer, &main.HoleShape})
        marker->Visible = false;
    for (PictureBox* picture : {&main.ClipPic, &main.IconPic, &main.Pic2, &main.BorderPic})
        picture->surface.AutoSize = true;
    for (PictureBox* hidden :
         {&main.UndoPic, &main.IconPic, &main.VertPic, &main.BackPic, &main.BorderPic, &main.ClipPic})
        hidden->Visible = false;
    for (ListBox* hidden : {&main.InfoList, &main.PMSlist, &main.List2})
        hidden->Visible = false;

    // A copied area is white on white more often than not.
    main.ClipPic.Border = true;

    main.XYcor.AutoSize = true;
    main.XYcor.Transparent = false;
    main.XYcor.BackColor = noteColour;
    main.XYcor.Visible = false;
    main.TextLabel.AutoSize = true;
    main.TextLabel.Sample = true;
    main.TextLabel.Visible = false;

    main.TopInfoPic.Move(8010, 270, Twips(sidePanelWidth), Twips(rulerHeight));
    main.TopInfoPic.surface.SetBackColor(formColour);
    main.InfoPic.Move(8010, 570, Twips(sidePanelWidth), Twips(sidePanelHeight));
    main.InfoPic.SetPressPlaces(SwatchPlaces());
    // Over the back, which one doesn't need while one picks colours.
    main.Label16.Move(main.InfoPic.Left() + Twips(sidePanelBackLeft),
                      main.InfoPic.Top() + Twips(sidePanelBackTop), Twips(sidePanelBackSide),
                      Twips(sidePanelBackSide));
    main.Label16.Transparent = false;
    main.Label16.BackColor = noteColour;
    main.Label16.Margin = 6;
    main.Label16.Visible = false;
}

struct ToolButton {
    std::string_view caption, toolTip;
    float points = 7.5F;
};
constexpr std::array<ToolButton, toolButtonCount> toolButtons{{
    {"Draw", " Draw freehand "},
    {"Line", " Draw lines "},
    {"Shapes", " Draw rectangles, circles, triangles etc. "},
    {"Polygon", " Draw polygon shapes "},
    {"Arc / Pie", " Draw arc, pie, curved lines, etc. "},
    {"Fill", " Fill areas "},
    {"Erase", " Erase in back and fillcolor "},
    // The longest caption: a button shows one line beside its icon, and at 7.5 points this one would wrap.
    {"Curved Text", " Draw curves text ", 6.75F},
    {"Text", " Draw hor. and vert. text "},
    {"Get PMS", " Get Pms-color "},
    {"Remove", " Remove colors "},
    {"Replace", " Replace colors "},
    {"Copy", " Copy areas "},
    {"Flip Image", " Flip and rotate design "},
    {"Holes", " Draw holes "},
    {"About", " About Coinlet Design "},
}};
constexpr int buttonsInAColumn = 7;
/// Twips. The right one has the long captions.
constexpr std::array<double, 2> columnWidths{1050, 1170};

struct SliderLook {
    const SliderGroup& group;
    SliderRange range;
    int largeChange;
    int top;  ///< Of the caption, in pixels.
};
constexpr SliderRange canvasPlaces{canvasLeft, canvasLeft + canvasTwips, canvasLeft};
constexpr int toolSliderTop = 372, aboutSliderTop = 452;
constexpr std::array sliderLooks{
    SliderLook{penSlider, lineWidths, 1, 324},
    SliderLook{cornerSlider, cornerSizes, 10, toolSliderTop},
    SliderLook{eraserSlider, eraserSizes, 5, toolSliderTop},
    SliderLook{rasterSlider, rasterSteps, 10, toolSliderTop},
    SliderLook{canvasSlider, canvasPlaces, 750, aboutSliderTop},
};

void LayOutSlider(MainForm& main, const SliderLook& look) {
    const SliderGroup& group = look.group;
    ScrollBar& bar = main.*group.bar;
    Label& caption = main.*group.caption;
    bar.SetRange(look.range.minimum, look.range.maximum);
    bar.SetValue(look.range.standard);
    bar.LargeChange = look.largeChange;
    caption.Caption = group.text(look.range.standard);
    const bool framed = group.panel != nullptr;
    const int left = framed ? 16 : 10, width = framed ? 138 : 150;
    PlaceByPixels(caption, left, look.top, width, 14);
    PlaceByPixels(bar, left, look.top + 18, width, 16);
    if (!framed) return;
    Label& panel = main.*group.panel;
    PlaceByPixels(panel, 10, look.top - 6, 150, group.tick != nullptr ? 70 : 48);
    panel.Transparent = false;
    panel.BackColor = sliderPanelColour;
    if (group.tick == nullptr) return;
    CheckBox& tick = main.*group.tick;
    PlaceByPixels(tick, left, look.top + 40, width, 18);
    tick.BackColor = sliderPanelColour;
}

void LayOutTools(MainForm& main) {
    PlaceByPixels(main.Frame5, 928, 32, 166, 36);
    PlaceByPixels(main.CoorLabel, 10, 10, 146, 16);
    main.CoorLabel.Alignment = Alignment::Center;
    main.CoorLabel.Caption = "X : 0 / Y : 0";

    PlaceByPixels(main.Frame4, 928, 72, 166, 508);
    for (int i = 0; i <= main.Knop.Last(); ++i) {
        VistaButton& button = main.Knop[i];
        const ToolButton& look = toolButtons[static_cast<std::size_t>(i)];
        const bool apart = i >= 2 * buttonsInAColumn;
        const int column = apart ? i - 2 * buttonsInAColumn : i / buttonsInAColumn;
        const int row = i % buttonsInAColumn;
        button.Move(150 + column * 1080, apart ? 3600 : 240 + row * 450,
                    columnWidths[static_cast<std::size_t>(column)], 420);
        button.SetCaption(std::string(look.caption));
        button.ToolTipText = look.toolTip;
        FontProperties font;
        font.FontSize = look.points;
        button.SetFont(font);
        button.LoadPictures(toolIconFrames);
        button.SetPicture(ToolIconStrip(i));
    }

    main.ToolShape.Filled = true;
    main.ToolShape.FillColor = main.ToolShape.BorderColor = toolInUseColour;
    main.ToolShape.Visible = false;

    main.Label6.Caption = "Fillcolor";
    PlaceByPixels(main.Label6, 10, 276, 150, 14);
    main.ColorLabel.Transparent = false;
    main.ColorLabel.Border = true;
    main.ColorLabel.BackColor = accentColour;
    main.ColorLabel.ToolTipText = " Click to change Colors ";
    PlaceByPixels(main.ColorLabel, 10, 292, 150, 24);
    main.ColorLabel.LetKeysPress();

    for (const SliderLook& look : sliderLooks)
        LayOutSlider(main, look);
    for (const SliderGroup* group : slidersOfTools)
        ShowSlider(main, *group, false);
    main.Check1.Caption = "Erase in Fillcolor";
}

void LayOutTextPanel(MainForm& main) {
    PlaceByPixels(main.Frame6, 928, 72, 166, 508);
    main.Frame6.Visible = false;
    struct Row {
        Control* control;
        int top, height;
    };
    const std::array rows{
        Row{&main.Label13, 12, 14},         Row{&main.Text1, 28, 22},      Row{&main.Label14, 60, 14},
        Row{&main.Combo2, 76, 22},          Row{&main.FontLabel, 104, 28}, Row{&main.Label15, 140, 14},
        Row{&main.Combo3, 156, 22},         Row{&main.BoldCheck, 192, 18}, Row{&main.ItalicCheck, 212, 18},
        Row{&main.UnderlineCheck, 232, 18}, Row{&main.OpenCheck, 252, 18}, Row{&main.SchaduwCheck, 272, 18},
        Row{&main.VertCheck, 292, 18},      Row{&main.Label17, 324, 14},   Row{&main.PlaatsKnop, 340, 30},
        Row{&main.ExitKnop, 468, 28},
    };
    for (const Row& row : rows)
        PlaceByPixels(*row.control, 10, row.top, 146, row.height);

    main.Label13.Caption = "Text";
    main.Label14.Caption = "Letterfont";
    main.Label15.Caption = "Fontsize";
    main.BoldCheck.Caption = "Bold";
    main.ItalicCheck.Caption = "Italic";
    main.UnderlineCheck.Caption = "Underline";
    main.OpenCheck.Caption = "Open Text";
    main.SchaduwCheck.Caption = "Shadow";
    main.VertCheck.Caption = "Text Vertical";
    main.PlaatsKnop.SetCaption("Draw Text");
    main.ExitKnop.SetCaption("Exit");
}

void LayOutFoot(MainForm& main) {
    PlaceByPixels(main.Frame7, 204, 584, 890, 80);
    PlaceByPixels(main.InfoLabel, 12, 12, 820, 56);
    main.InfoLabel.FontSize = 10;
    PlaceByPixels(main.NummerLabel, 840, 32, 38, 16);
    main.NummerLabel.Alignment = Alignment::Right;
    main.NummerLabel.ForeColor = RGB(90, 90, 70);
}

void ShowCorner(MainForm& main, int width) {
    main.HoekPic.Move(rulersLeft, rulersTop, Twips(width), Twips(rulerHeight));
    main.HoekKnop.Move(0, 0, width, rulerHeight);
}

}  // namespace

void SurroundButton(Shape& shape, const VistaButton& button) {
    // The room between neighbouring buttons.
    constexpr double edge = Twips(2);
    shape.Move(button.Left() - edge, button.Top() - edge, button.Width() + 2 * edge,
               button.Height() + 2 * edge);
}

void NarrowCorner(MainForm& main) {
    ShowCorner(main, rulerWidth);
}

void WidenCorner(MainForm& main) {
    constexpr int captionWidth = 52;
    ShowCorner(main, captionWidth);
}

void LayOutMain(MainForm& main) {
    main.Width = 16470;
    main.Height = 10020;
    main.Caption = programTitle;
    LayOutStrip(main);
    LayOutBrowser(main);
    LayOutCanvas(main);
    LayOutTools(main);
    LayOutTextPanel(main);
    LayOutFoot(main);
    main.Timer1.Interval = 1000;
}

}  // namespace coinlet
