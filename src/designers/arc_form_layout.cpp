#include "designers/arc_form_layout.h"

#include "controls/placing.h"
#include "core/canvas_dialog.h"
#include "designers/arc_form.h"
#include "surface/finer_edition.h"

#include <array>

namespace coinlet {

namespace {

// All in pixels. The picture on the left, and below it what to do and where the pointer is; a column on the
// right with the ways of drawing, the panel of the chosen one, the pen, and the ways out.
constexpr int formWidth = 768, formHeight = 562;
constexpr int column = canvasDialogColumn, columnWidth = formWidth - dialogMargin - column;
constexpr int canvasBottom = dialogMargin + canvasSide;
constexpr int optionHeight = 20, optionPitch = 22, buttonHeight = 28;

constexpr int optionsTop = dialogMargin + 18;
constexpr int panelTop = optionsTop + 5 * optionPitch + dialogGap;
constexpr int penHeight = 92, penTop = canvasBottom - penHeight;
constexpr int panelHeight = penTop - dialogGap - panelTop;

// In the frames.
constexpr int inset = 10, innerWidth = columnWidth - 2 * inset;

/// A row of a panel: a button, and what it does.
void PlaceButton(VistaButton& button, const char* caption, Label& label, std::string_view words, int top) {
    constexpr int width = 64;
    button.SetCaption(caption);
    PlaceButtonRow(button, label, words, {inset, top, innerWidth, width, buttonHeight});
}

void PlaceMenu(ArcForm& form) {
    constexpr std::array captions{"Draw Arc and Pie", "Draw Triangles", "Draw Circle Segments",
                                  "Draw Curved Lines", "Draw Polygons"};
    PlaceText(form.Label1, "Menu", column, dialogMargin, columnWidth);
    form.Label1.FontBold = true;
    int top = optionsTop;
    for (int i = form.Option1.First(); i <= form.Option1.Last(); ++i, top += optionPitch) {
        form.Option1[i].Caption = captions.at(static_cast<std::size_t>(i));
        PlaceByPixels(form.Option1[i], column, top, columnWidth, optionHeight);
    }
    form.Option1[0].SetValue(true);
}

void PlaceTriangles(TriangleDrawing& panel) {
    panel.Check1[0].Caption = "Right Angled Triangle";
    panel.Check1[1].Caption = "Isosceles Triangle";
    PlaceByPixels(panel.Check1[0], inset, inset, innerWidth, optionHeight);
    PlaceByPixels(panel.Check1[1], inset, inset + optionPitch, innerWidth, optionHeight);
    panel.Check1[0].SetValue(true);
}

/// The picture of a quarter of a circle: 0 and 1 are the upper ones, 0 and 2 those on the left. In its own
/// size, or so many times as large.
Image QuarterIcon(const FontEngine& fonts, int quarter, int times = 1) {
    const int side = 20 * times, radius = 15 * times, penWidth = 3 * times, edge = 2 * times + times / 2;
    constexpr Colour mask = RGB(0, 255, 0);
    constexpr std::array<ArcAngles, 4> quarters{
        {{1.5708, 3.1416}, {0, 1.5708}, {3.1416, 4.7124}, {4.7124, 0}}};
    const bool isLeft = quarter % 2 == 0, isUpper = quarter < 2;
    Surface icon(fonts, side, side);
    icon.SetBackColor(mask);
    icon.DrawWidth = penWidth;
    const int x = isLeft ? side - 1 - edge : edge, y = isUpper ? side - 1 - edge : edge;
    icon.Circle(x, y, radius, black, quarters.at(static_cast<std::size_t>(quarter)));
    return icon.Image();
}

void PlaceSegments(ArcForm& form) {
    constexpr int sliderPitch = 40, sliderHeight = 16, sliderOffset = 18;
    SegmentDrawing& panel = form.Segments;
    for (int i = panel.HScroll2.First(); i <= panel.HScroll2.Last(); ++i) {
        const int top = inset + i * sliderPitch;
        PlaceByPixels(panel.ScrolLabel[i], inset, top, innerWidth, dialogTextHeight);
        PlaceByPixels(panel.HScroll2[i], inset, top + sliderOffset, innerWidth, sliderHeight);
    }
    constexpr int headTop = inset + 3 * sliderPitch + 6, knopsTop = headTop + sliderOffset + 2;
    PlaceText(panel.Label6, "Segment Buttons", inset, headTop, innerWidth);
    constexpr int between = 4, knopWidth = (innerWidth - between) / 2, knopHeight = 36;
    constexpr std::array hints{" Upper left ", " Upper right ", " Lower left ", " Lower right "};
    for (int i = panel.SegmentKnop.First(); i <= panel.SegmentKnop.Last(); ++i) {
        VistaButton& knop = panel.SegmentKnop[i];
        knop.SetCaption("");
        knop.SetPictures(1);
        constexpr int fineness = 6;
        knop.SetPicture(QuarterIcon(form.Fonts(), i));
        // The fonts are the program's: no copy of the picture outlives them.
        HasFinerEdition(knop.Picture(),
                        [&fonts = form.Fonts(), i] { return QuarterIcon(fonts, i, fineness); });
        knop.ToolTipText = hints.at(static_cast<std::size_t>(i));
        PlaceByPixels(knop, inset + i % 2 * (knopWidth + between), knopsTop + i / 2 * (knopHeight + between),
                      knopWidth, knopHeight);
    }
}

void PlaceCurves(CurveDrawing& panel) {
    panel.Option2.Caption = "Bezier Curve";
    panel.Option3.Caption = "Straight Line Segments";
    panel.Check4.Caption = "Don't Connect Control Points";
    PlaceByPixels(panel.Option2, inset, inset, innerWidth, optionHeight);
    PlaceByPixels(panel.Option3, inset, inset + optionPitch, innerWidth, optionHeight);
    constexpr int checkTop = inset + 2 * optionPitch + dialogGap;
    PlaceByPixels(panel.Check4, inset, checkTop, innerWidth, optionHeight);
    constexpr int textTop = checkTop + optionPitch + dialogGap, textPitch = 20;
    PlaceText(panel.Label8, "Control Point Information", inset, textTop, innerWidth);
    PlaceText(panel.Label9, "Selected Point : 0", inset, textTop + textPitch, innerWidth);
    PlaceText(panel.Label10, "Total Points : 0", inset, textTop + 2 * textPitch, innerWidth);
    panel.DrawKnop.SetCaption("Paint Current Curve");
    PlaceByPixels(panel.DrawKnop, inset, panelHeight - inset - buttonHeight, innerWidth, buttonHeight);
    panel.Option2.SetValue(true);
    for (CheckBox* hidden : {&panel.Check2, &panel.Check3, &panel.Check5, &panel.Check6, &panel.Check7})
        hidden->Visible = false;
}

void PlacePolygons(PolygonDrawing& panel) {
    PlaceNamedFields({{panel.Label12, "Sides", panel.Combo1},
                      {panel.Label13, "Size", panel.Combo2},
                      {panel.Label14, "Rotate", panel.Combo3}},
                     inset, inset, innerWidth, dialogGap);
    constexpr int colourTop = inset + dialogFieldOffset + dialogFieldHeight + 16, swatchWidth = 64,
                  swatchHeight = 24;
    PlaceText(panel.Label17, "Fillcolor", inset, colourTop + 5, innerWidth - swatchWidth);
    PlaceByPixels(panel.Label16, inset + innerWidth - swatchWidth, colourTop, swatchWidth, swatchHeight);
    panel.Label16.Transparent = false;
    panel.Label16.Border = true;
    constexpr int slidersTop = colourTop + swatchHeight + 12, pitch = 24, nameWidth = 44, valueWidth = 32;
    constexpr std::array names{"Red", "Green", "Blue"};
    for (int i = panel.ColorScroll.First(); i <= panel.ColorScroll.Last(); ++i) {
        const int top = slidersTop + i * pitch;
        PlaceText(panel.Label15[i], names.at(static_cast<std::size_t>(i)), inset, top + 1, nameWidth);
        PlaceByPixels(panel.ColorScroll[i], inset + nameWidth, top, innerWidth - nameWidth - valueWidth,
                      dialogTextHeight);
        PlaceByPixels(panel.ColLabel[i], inset + innerWidth - valueWidth, top + 1, valueWidth,
                      dialogTextHeight);
        panel.ColLabel[i].Alignment = Alignment::Right;
    }
}

void PlacePen(ArcForm& form) {
    constexpr int lowest = 1, highest = 10, standard = 2, sliderHeight = 16;
    PlaceByPixels(form.Frame5, column, penTop, columnWidth, penHeight);
    PlaceText(form.Label3, "Line Width (2)", inset, inset, innerWidth);
    form.HScroll1.SetRange(lowest, highest);
    form.HScroll1.SetValue(standard);
    form.HScroll1.LargeChange = 2;
    PlaceByPixels(form.HScroll1, inset, inset + 18, innerWidth, sliderHeight);
    PlaceButton(form.ResetKnop, "Reset", form.Label7, "Back to Orginal Design",
                penHeight - inset - buttonHeight);
}

void PlaceFoot(ArcForm& form) {
    constexpr int top = canvasBottom + dialogGap, placeWidth = 100;
    PlaceByPixels(form.InfoLabel, dialogMargin, top, canvasSide - placeWidth - dialogGap,
                  formHeight - dialogMargin - top + 2);
    PlaceText(form.CorLabel, "0, 0", dialogMargin + canvasSide - placeWidth, top, placeWidth);
    form.CorLabel.Alignment = Alignment::Right;
    PlaceWaysOut(form.ExportKnop, form.CancelKnop, column, formHeight - dialogMargin - buttonHeight,
                 columnWidth, buttonHeight);
}

}  // namespace

void LayOutArcForm(ArcForm& form) {
    SetTitleAndSize(form, "Draw Arc, Pie and Triangles", formWidth, formHeight);
    PlaceCanvasCopy(form.Pic, form.Shape1);
    form.Pic.MousePointer = crossPointer;
    PlaceByPixels(form.TMPres, 0, 0, canvasSide, canvasSide);
    form.TMPres.Visible = false;
    form.Layer.Form = ShapeForm::Circle;
    form.Layer.Visible = false;
    for (Frame* frame : {&form.Arcs.Frame7, &form.Triangles.Frame2, &form.Segments.Frame3,
                         &form.Curves.Frame4, &form.Polygons.Frame6}) {
        PlaceByPixels(*frame, column, panelTop, columnWidth, panelHeight);
        frame->Visible = frame == &form.Arcs.Frame7;
    }
    PlaceMenu(form);
    PlaceButton(form.Arcs.ClearKnop, "Clear", form.Arcs.Label18, "Clear Points", inset);
    PlaceTriangles(form.Triangles);
    PlaceSegments(form);
    PlaceCurves(form.Curves);
    PlacePolygons(form.Polygons);
    PlacePen(form);
    PlaceFoot(form);
}

}  // namespace coinlet
