#pragma once

#include "filters/filter_run.h"

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
    SwapColors,
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

struct NumberedFilter {
    FilterNumber number;
    std::string_view name;
    void (*apply)(FilterRun& run, std::int32_t parameter);
};

/// All filters, in the order of their numbers.
std::span<const NumberedFilter> AllFilters();
/// nullptr if there is none of that number.
const NumberedFilter* FindFilter(std::int32_t number);

}  // namespace coinlet
