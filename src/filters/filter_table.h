#pragma once

#include "filters/filter_run.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace coinlet {

/// The filters of the core. Numbers outside this list are no filter.
enum class FilterNumber : std::int32_t {
    Sharpen = 1,
    Negative,
    Blur,
    Defuse,
    Smooth,
    Edge,
    Contour,
    DiagonalBack,
    GradientBack,
    DiagonalForward,
    GradientForward,
    Grayscale,
    Relief,
    Brightness,
    Pixelize,
    SwapColours,
    Contrast,
    Threshold,
    SharpDither,
    OrderedDither,
    FloydDither,
    BurkesDither,
    StuckiDither,
    Aquarel,
    Dilate,
    Erode,
    Connection,
    Stretch,
    AddNoise,
    Saturation,
    Gamma
};

/// The menu in which an entry stands: the Filter menu itself, or one of its two sub-menus.
enum class FilterMenuPart { Filter, Contrast, SwapColours };

/// An entry of the menu that runs a filter with a parameter.
struct FilterEntry {
    FilterMenuPart part = FilterMenuPart::Filter;
    int index = 0;  ///< Within its menu.
    std::string_view caption;
    std::int32_t parameter = 0;
};

struct NumberedFilter {
    FilterNumber number;
    std::string_view name;
    void (*apply)(FilterRun& run, std::int32_t parameter);
    std::array<FilterEntry, 5> room{};  ///< For its entries; those without a caption are none.

    /// Its entries in the menu. Many filters have none.
    std::span<const FilterEntry> Entries() const {
        std::size_t count = 0;
        while (count < room.size() && !room[count].caption.empty())
            ++count;
        return {room.data(), count};
    }
};

/// All filters, in the order of their numbers.
std::span<const NumberedFilter> AllFilters();
/// nullptr if there is none of that number.
const NumberedFilter* FindFilter(std::int32_t number);

}  // namespace coinlet
