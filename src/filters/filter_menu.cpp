#include "filters/filter_menu.h"

#include "core/canvas_work.h"
#include "core/context.h"
#include "core/main_form.h"
#include "core/progress_bar.h"
#include "core/tool_codes.h"
#include "core/undo.h"
#include "filters/filter_core.h"
#include "filters/filter_table.h"
#include "filters/photo_effects.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace coinlet {

namespace {

/// Joins every pixel with the inverse of the one at its upper left: flat areas turn white and steps in colour
/// stay as lines.
void DrawEdgeLines(Context& context) {
    constexpr Rectangle whole{0, 0, canvasSide, canvasSide}, shifted{1, 1, canvasSide, canvasSide};
    MainForm& main = context.main;
    main.Pic.surface.PaintPicture(main.UndoPic.surface.Image(), shifted, whole, MERGE_NOT_SOURCE);
}

void Dodge(Context& context) {
    ApplyDodge(context, context.main.Pic.surface);
}
void Neon(Context& context) {
    ApplyNeon(context, context.main.Pic.surface);
}
/// Tints what the filter made gray.
void Sepia(Context& context) {
    ClearProgress(context);
    ApplySepiaTone(context, context.main.Pic.surface);
}

/// An entry that works on the canvas before the user's eyes, after a filter or alone.
struct EffectEntry {
    int index;
    std::string_view caption;
    std::optional<FilterNumber> first;
    void (*apply)(Context& context);
};
constexpr EffectEntry effectEntries[] = {{3, "Edge Lines", {}, DrawEdgeLines},
                                         {20, "Sepia", FilterNumber::Grayscale, Sepia},
                                         {25, "Dodge", {}, Dodge},
                                         {26, "Neon (Photo)", {}, Neon}};

/// The entries that open a sub-menu.
constexpr int contrastHead = 9, swapHead = 12;

/// The filter behind an entry of the menu, and what it runs with; no filter where there is none.
struct FoundEntry {
    const NumberedFilter* filter = nullptr;
    std::int32_t parameter = 0;
};
FoundEntry FindEntry(FilterMenuPart part, int index) {
    for (const NumberedFilter& filter : AllFilters()) {
        for (const FilterEntry& entry : filter.Entries())
            if (entry.part == part && entry.index == index) return {&filter, entry.parameter};
    }
    return {};
}
ControlArray<MenuItem>& EntriesOf(MainForm& main, FilterMenuPart part) {
    switch (part) {
        case FilterMenuPart::Contrast:
            return main.EditContrastConvert;
        case FilterMenuPart::SwapColours:
            return main.EditSwap;
        default:
            return main.Filter;
    }
}

void CaptionEntries(MainForm& main) {
    main.Filter[contrastHead].Caption = "Contrast";
    main.Filter[swapHead].Caption = "Swap Colors";
    for (const NumberedFilter& filter : AllFilters()) {
        for (const FilterEntry& entry : filter.Entries())
            EntriesOf(main, entry.part)[entry.index].Caption = entry.caption;
    }
    for (const EffectEntry& entry : effectEntries)
        main.Filter[entry.index].Caption = entry.caption;
}

}  // namespace

FilterMenu::FilterMenu(Context& context, CanvasWork& work, FilterCore& core)
    : context_(context), work_(work), core_(core) {
    MainForm& main = context.main;
    CaptionEntries(main);
    main.Filter.Bind(&MenuItem::Click, [this](int index) { Filter_Click(index); });
    main.EditContrastConvert.Bind(&MenuItem::Click, [this](int index) { EditContrastConvert_Click(index); });
    main.EditSwap.Bind(&MenuItem::Click, [this](int index) { EditSwap_Click(index); });
}

void FilterMenu::Filter_Click(int index) {
    ChangeCanvas([this, index] {
        // No drawing tool stays armed.
        context_.session.ToolCode = filterTools + index;
        context_.main.Label16.Visible = false;
        RunEntry(FilterMenuPart::Filter, index);
        const auto* effect = std::ranges::find(effectEntries, index, &EffectEntry::index);
        if (effect == std::end(effectEntries)) return;
        if (effect->first) RunFilter(*FindFilter(static_cast<std::int32_t>(*effect->first)), 0);
        effect->apply(context_);
    });
}

void FilterMenu::EditContrastConvert_Click(int index) {
    ChangeCanvas([this, index] { RunEntry(FilterMenuPart::Contrast, index); });
}

void FilterMenu::EditSwap_Click(int index) {
    ChangeCanvas([this, index] { RunEntry(FilterMenuPart::SwapColours, index); });
}

void FilterMenu::RunEntry(FilterMenuPart part, int index) {
    const FoundEntry entry = FindEntry(part, index);
    if (entry.filter != nullptr) RunFilter(*entry.filter, entry.parameter);
}

void FilterMenu::ChangeCanvas(const std::function<void()>& change) {
    const CanvasWork::Piece piece(work_);
    Surface& canvas = context_.main.Pic.surface;
    KeepForUndo(context_.main);
    const ProgressShown shown(context_);
    change();
    canvas.Refresh();
}

void FilterMenu::RunFilter(const NumberedFilter& filter, std::int32_t parameter) {
    std::int32_t percent = 0;  // The bar shows it.
    core_.RunFilter(&filter, context_.main.Pic.surface, parameter, percent);
}

}  // namespace coinlet
