#include "filters/filter_menu.h"

#include "core/context.h"
#include "core/main_form.h"
#include "filters/filter_core.h"
#include "filters/filter_table.h"
#include "filters/photo_effects.h"
#include "filters/progress_bar.h"

#include <algorithm>

namespace coinlet {

namespace {

/// An entry that runs a filter of the core.
struct FilterEntry {
    int index;
    FilterNumber number;
    std::int32_t parameter = 0;
};

using enum FilterNumber;
// "Sepia" (20) stands in both tables: the tint comes after the gray.
constexpr FilterEntry filterEntries[] = {
    {4, Grayscale},   {5, Negative},         {6, Brightness, 4},     {7, Brightness, -4},
    {8, Sharpen, 10}, {10, Pixelize, 3},     {11, Relief},           {13, StuckiDither, 15},
    {14, Blur},       {15, Aquarel},         {16, Defuse, 6},        {17, AddNoise, 50},
    {18, Edge, 1},    {19, Contour, white},  {20, Grayscale},        {21, Connection},
    {22, Erode},      {23, Saturation, 140}, {24, StuckiDither, 50}, {27, Smooth},
};

/// Joins every pixel with the inverse of the one at its upper left: flat areas turn white and steps in colour
/// stay as lines.
void DrawEdgeLines(Context& context) {
    constexpr Rectangle whole{0, 0, canvasSide, canvasSide}, shifted{1, 1, canvasSide, canvasSide};
    MainForm& main = context.main;
    main.Pic.surface.PaintPicture(main.UndoPic.surface.Image(), shifted, whole, MERGE_NOT_SOURCE);
}

/// An entry that works on the canvas pixel by pixel, before the user's eyes.
struct EffectEntry {
    int index;
    void (*apply)(Context& context, Surface& canvas);
};
constexpr EffectEntry effectEntries[] = {{20, ApplySepiaTone}, {25, ApplyDodge}, {26, ApplyNeon}};

constexpr int edgeLinesEntry = 3;
constexpr int firstFilterCode = 100;

}  // namespace

FilterMenu::FilterMenu(Context& context, FilterCore& core) : context_(context), core_(core) {
    MainForm& main = context.main;
    main.Filter.Bind(&MenuItem::Click, [this](int index) { Filter_Click(index); });
    main.EditContrastConvert.Bind(&MenuItem::Click, [this](int index) { EditContrastConvert_Click(index); });
    main.EditSwap.Bind(&MenuItem::Click, [this](int index) { EditSwap_Click(index); });
}

void FilterMenu::Filter_Click(int index) {
    ChangeCanvas([this, index] {
        MainForm& main = context_.main;
        // No drawing tool stays armed.
        context_.session.ToolCode = static_cast<std::int16_t>(firstFilterCode + index);
        main.Label16.Visible = false;
        if (index == edgeLinesEntry) DrawEdgeLines(context_);
        if (const auto* entry = std::ranges::find(filterEntries, index, &FilterEntry::index);
            entry != std::end(filterEntries)) {
            RunFilter(entry->number, entry->parameter);
        }
        if (const auto* entry = std::ranges::find(effectEntries, index, &EffectEntry::index);
            entry != std::end(effectEntries)) {
            ClearProgress(context_);
            entry->apply(context_, main.Pic.surface);
        }
    });
}

void FilterMenu::EditContrastConvert_Click(int index) {
    constexpr std::int32_t more = 10, less = -10;
    ChangeCanvas([this, index] { RunFilter(Contrast, index == 1 ? more : less); });
}

void FilterMenu::EditSwap_Click(int index) {
    ChangeCanvas([this, index] { RunFilter(SwapColors, index); });
}

void FilterMenu::ChangeCanvas(const std::function<void()>& change) {
    Surface& canvas = context_.main.Pic.surface;
    context_.main.UndoPic.surface.SetPicture(canvas.Image());
    const ProgressShown shown(context_);
    change();
    canvas.Refresh();
}

void FilterMenu::RunFilter(FilterNumber number, std::int32_t parameter) {
    core_.FilterPicture(static_cast<std::int32_t>(number), context_.main.Pic.surface, parameter,
                        filterProgress_);
}

}  // namespace coinlet
