#include "tools/tool_strip.h"

#include "core/context.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/main_layout.h"
#include "core/slider_groups.h"
#include "core/text_keys.h"
#include "core/tool_codes.h"
#include "core/tool_keys.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace coinlet {

namespace {

struct ToolRow {
    std::string_view hintKey;  ///< Empty: the button says nothing.
    void (*further)(Context&) = nullptr;
};

void ShowEraserSlider(Context& context) {
    ShowSlider(context.main, eraserSlider, true);
}

void ShowTextPanel(Context& context) {
    MainForm& main = context.main;
    main.Frame4.Visible = false;
    main.Frame6.Visible = true;
    // What one types replaces the text that stands there.
    main.Text1.SetFocus();
    main.Text1.SelectText();
}

void ArmPick(Context& context) {
    MainForm& main = context.main;
    main.Label16.Caption = LookupInfoText(context, key::pickIntoSidePanel);
    main.Label16.Visible = true;
    main.Pic.MousePointer = crossPointer;
}

void ShowCanvasSlider(Context& context) {
    ShowSlider(context.main, canvasSlider, true);
}

void PopUpShapes(Context& context) {
    context.services.platform.PopupMenu(context.main.Shapes);
}
void PopUpFlips(Context& context) {
    context.services.platform.PopupMenu(context.main.FlipImage);
}

constexpr std::array<ToolRow, toolButtonCount> toolRows{{
    {key::drawFreeHand},
    {key::drawLine},
    {"", PopUpShapes},
    {key::designPolygon},
    {key::designArc},
    {key::fill},
    {key::erase, ShowEraserSlider},
    {key::writeCurvedText},
    {key::writeText, ShowTextPanel},
    {key::pickColour, ArmPick},
    {key::removeColours},
    {key::replaceColours},
    {key::copyArea},
    {key::flipOrTurn, PopUpFlips},
    {key::makeHole},
    {key::readAbout, ShowCanvasSlider},
}};

/// The last shape, "Tree", isn't among the entries that a choice unchecks: once chosen it keeps its check
/// mark.
constexpr int lastUncheckedShape = shapeCount - 1;

}  // namespace

ToolStrip::ToolStrip(Context& context) : context_(context) {
    MainForm& main = context.main;
    main.Knop.Bind(&VistaButton::Click, [this](int index) { Knop_Click(index); });
    main.Vormen.Bind(&MenuItem::Click, [this](int index) { Vormen_Click(index); });
    main.ColorLabel.MouseDown = [this](int, int, float, float) { ColorLabel_MouseDown(); };
    main.ExitKnop.Click = [this] { ExitKnop_Click(); };
    context.session.ToolCode.Changed = [this] { MarkTool(); };
    BindSliders();
}

bool ToolStrip::TakesKey(int code, int shift) {
    MainForm& main = context_.main;
    const auto tool = ToolOfKey(code);
    if (!tool || shift != 0 || main.PointerHeld()) return false;
    VistaButton& button = main.Knop[*tool];
    if (!button.Shown() || !button.Reachable()) return true;
    // First, since the tool may have another place for it.
    main.Pic.SetFocus();
    main.StandPopupsAt(button);
    button.Click();
    return true;
}

/// The focus of a button goes on to other things; which tool is in use stays to be seen behind its button.
void ToolStrip::MarkTool() {
    MainForm& main = context_.main;
    const int code = context_.session.ToolCode;
    const int place = IsShapeTool(code) ? shapesMenuTool : code;
    main.ToolShape.Visible = main.Knop.Contains(place);
    if (main.ToolShape.Visible) SurroundButton(main.ToolShape, main.Knop[place]);
}

void ToolStrip::BindSliders() {
    MainForm& main = context_.main;
    Session& session = context_.session;
    const auto bind = [&main](const SliderGroup& group, auto take) {
        const auto moved = [&main, &group, take] {
            const int value = (main.*group.bar).Value();
            (main.*group.caption).Caption = group.text(value);
            take(value);
        };
        (main.*group.bar).Change = moved;
        (main.*group.bar).Scroll = moved;
    };
    // The slider's value has the range of the session's field, so the conversions lose nothing.
    bind(penSlider, [&session](int value) { session.LineWidth = static_cast<std::uint8_t>(value); });
    bind(cornerSlider, [&session](int value) { session.CornerSize = value; });
    bind(eraserSlider, [&session](int value) { session.EraserSize = static_cast<std::uint8_t>(value); });
    bind(rasterSlider, [&session](int value) { session.RasterStep = static_cast<std::int16_t>(value); });
    bind(canvasSlider, [this](int /*value*/) { HScroll5_Change(); });
}

void ToolStrip::Knop_Click(int index) {
    MainForm& main = context_.main;
    Session& session = context_.session;
    session.TextPlacing = false;
    session.ToolCode = index;
    main.Pic.MousePointer = toolPointer;
    main.Label16.Visible = false;
    main.HoleShape.Visible = false;
    for (const SliderGroup* group : slidersOfTools)
        ShowSlider(main, *group, false);
    main.HScroll5.SetValue(canvasLeft);
    main.Pic.SetLeft(canvasLeft);
    main.Pic.SetWidth(canvasTwips);
    // Sliding the canvas back serves events, which may have shown it again.
    (main.*canvasSlider.caption).Visible = false;

    const auto place = static_cast<std::size_t>(index);
    const ToolRow& row = toolRows.at(place);
    if (!row.hintKey.empty()) ShowHint(context_, row.hintKey);
    if (row.further != nullptr) row.further(context_);
    openDialog.at(place)();
}

void ToolStrip::Vormen_Click(int index) {
    MainForm& main = context_.main;
    context_.session.ToolCode = index + firstShapeTool - 1;
    for (int i = main.Vormen.First(); i <= lastUncheckedShape; ++i)
        main.Vormen[i].Checked = false;
    main.Vormen[index].Checked = true;
    ShowSlider(main, rasterSlider, false);
    ShowHint(context_, key::drawShape);
    if (context_.session.ToolCode == roundedRectangleShape) ShowSlider(main, cornerSlider, true);
    if (context_.session.ToolCode == rasterShape) ShowSlider(main, rasterSlider, true);
}

void ToolStrip::ColorLabel_MouseDown() {
    context_.session.ToolCode = colourChooserTool;
    ShowHint(context_, key::chooseFillColour);
    openColourChooser();
}

void ToolStrip::ExitKnop_Click() {
    MainForm& main = context_.main;
    main.Frame6.Visible = false;
    main.Frame4.Visible = true;
    main.Knop[pickTool].SetEnabled(true);
    main.Knop[textTool].SetFocus();
    ShowHint(context_, key::toolsAreBack);
}

void ToolStrip::HScroll5_Change() {
    MainForm& main = context_.main;
    main.Pic.SetLeft(main.HScroll5.Value());
    main.Pic.SetWidth(canvasLeft + canvasTwips - main.HScroll5.Value());
    context_.services.platform.DoEvents();
    // The slider may have been moved on meanwhile.
    const bool inPlace = main.HScroll5.Value() == canvasLeft;
    for (int i = main.Knop.First(); i <= main.Knop.Last(); ++i)
        main.Knop[i].SetEnabled(inPlace);
}

}  // namespace coinlet
