#pragma once

#include "filters/filter_table.h"

#include <cstdint>
#include <functional>

namespace coinlet {

class CanvasWork;
class FilterCore;
struct Context;

/// The Filters menu with its two sub-menus: each entry changes the whole canvas, under one step of undo.
class FilterMenu {
public:
    FilterMenu(Context& context, CanvasWork& work, FilterCore& core);

private:
    void Filter_Click(int index);
    void EditContrastConvert_Click(int index);
    void EditSwap_Click(int index);

    /// Does what an entry is for, with all that surrounds it. Events that are served meanwhile may come here
    /// again: the entry chosen then takes its undo copy, and ends the other one's bar and hourglass.
    void ChangeCanvas(const std::function<void()>& change);
    /// Runs the filter of an entry; does nothing where there is none.
    void RunEntry(FilterMenuPart part, int index);
    void RunFilter(const NumberedFilter& filter, std::int32_t parameter);

    Context& context_;
    CanvasWork& work_;
    FilterCore& core_;
};

}  // namespace coinlet
