#include "filters/filter_table.h"

#include "filters/block_filters.h"
#include "filters/colour_filters.h"
#include "filters/dither_filters.h"
#include "filters/neighbourhood_filters.h"
#include "filters/random_filters.h"

#include <algorithm>

namespace coinlet {

namespace {

/// A filter that takes no parameter, called with one.
template <void (*filter)(FilterRun&)>
void Plain(FilterRun& run, std::int32_t /*parameter*/) {
    filter(run);
}

using enum FilterNumber;
constexpr NumberedFilter filters[] = {
    {Sharpen, "Sharpen", FilterSharpen},
    {Negative, "Negative", Plain<FilterNegative>},
    {Blur, "Blur", Plain<FilterBlur>},
    {Defuse, "Defuse", FilterDefuse},
    {Smooth, "Smooth", Plain<FilterSmooth>},
    {Edge, "Edge", FilterEdge},
    {Contour, "Contour", FilterContour},
    {DiagonalBack, "DiagonalBack", FilterDiagonalBack},
    {GradientBack, "GradientBack", FilterGradientBack},
    {DiagonalForward, "DiagonalForward", FilterDiagonalForward},
    {GradientForward, "GradientForward", FilterGradientForward},
    {Grayscale, "Grayscale", Plain<FilterGrayscale>},
    {Relief, "Relief", Plain<FilterRelief>},
    {Brightness, "Brightness", FilterBrightness},
    {Pixelize, "Pixelize", FilterPixelize},
    {SwapColors, "SwapColors", FilterSwapColors},
    {Contrast, "Contrast", FilterContrast},
    {Threshold, "Threshold", FilterThreshold},
    {SharpDither, "SharpDither", Plain<FilterSharpDither>},
    {OrderedDither, "OrderedDither", Plain<FilterOrderedDither>},
    {FloydDither, "FloydDither", FilterFloydDither},
    {BurkesDither, "BurkesDither", FilterBurkesDither},
    {StuckiDither, "StuckiDither", FilterStuckiDither},
    {Aquarel, "Aquarel", Plain<FilterAquarel>},
    {Dilate, "Dilate", Plain<FilterDilate>},
    {Erode, "Erode", Plain<FilterErode>},
    {Connection, "Connection", Plain<FilterConnection>},
    {Stretch, "Stretch", Plain<FilterStretch>},
    {AddNoise, "AddNoise", FilterAddNoise},
    {Saturation, "Saturation", FilterSaturation},
    {Gamma, "Gamma", FilterGamma},
};

}  // namespace

std::span<const NumberedFilter> AllFilters() {
    return filters;
}

const NumberedFilter* FindFilter(std::int32_t number) {
    const auto* found = std::ranges::find(filters, FilterNumber{number}, &NumberedFilter::number);
    return found == std::end(filters) ? nullptr : found;
}

}  // namespace coinlet
