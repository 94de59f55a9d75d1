#include "filters/filter_table.h"

#include "filters/block_filters.h"
#include "filters/colour_filters.h"
#include "filters/dither_filters.h"
#include "filters/neighbourhood_filters.h"
#include "filters/random_filters.h"
#include "surface/colour.h"

#include <algorithm>

namespace coinlet {

namespace {

/// A filter that takes no parameter, called with one.
template <void (*filter)(FilterRun&)>
void Plain(FilterRun& run, std::int32_t /*parameter*/) {
    filter(run);
}

using Menu = FilterMenuPart;
using enum FilterNumber;
constexpr NumberedFilter filters[] = {
    {Sharpen, "Sharpen", FilterSharpen, {{{Menu::Filter, 8, "Sharpen", 10}}}},
    {Negative, "Negative", Plain<FilterNegative>, {{{Menu::Filter, 5, "Negative"}}}},
    {Blur, "Blur", Plain<FilterBlur>, {{{Menu::Filter, 14, "Blur"}}}},
    {Defuse, "Defuse", FilterDefuse, {{{Menu::Filter, 16, "Defuse", 6}}}},
    {Smooth, "Smooth", Plain<FilterSmooth>, {{{Menu::Filter, 27, "Smooth"}}}},
    {Edge, "Edge", FilterEdge, {{{Menu::Filter, 18, "Edge", 1}}}},
    {Contour, "Contour", FilterContour, {{{Menu::Filter, 19, "Contour", white}}}},
    {DiagonalBack, "DiagonalBack", FilterDiagonalBack},
    {GradientBack, "GradientBack", FilterGradientBack},
    {DiagonalForward, "DiagonalForward", FilterDiagonalForward},
    {GradientForward, "GradientForward", FilterGradientForward},
    {Grayscale, "Grayscale", Plain<FilterGrayscale>, {{{Menu::Filter, 4, "Grayscale"}}}},
    {Relief, "Relief", Plain<FilterRelief>, {{{Menu::Filter, 11, "Reliëf"}}}},
    {Brightness,
     "Brightness",
     FilterBrightness,
     {{{Menu::Filter, 6, "Light", 4}, {Menu::Filter, 7, "Dark", -4}}}},
    {Pixelize, "Pixelize", FilterPixelize, {{{Menu::Filter, 10, "Pixelize", 3}}}},
    {SwapColours,
     "SwapColours",
     FilterSwapColours,
     {{{Menu::SwapColours, 1, "RGB --> BRG", 1},
       {Menu::SwapColours, 2, "RGB --> GBR", 2},
       {Menu::SwapColours, 3, "RGB --> RBG", 3},
       {Menu::SwapColours, 4, "RGB --> BGR", 4},
       {Menu::SwapColours, 5, "RGB --> GRB", 5}}}},
    {Contrast,
     "Contrast",
     FilterContrast,
     {{{Menu::Contrast, 1, "Positive", 10}, {Menu::Contrast, 2, "Negative", -10}}}},
    {Threshold, "Threshold", FilterThreshold},
    {SharpDither, "SharpDither", Plain<FilterSharpDither>},
    {OrderedDither, "OrderedDither", Plain<FilterOrderedDither>},
    {FloydDither, "FloydDither", FilterFloydDither},
    {BurkesDither, "BurkesDither", FilterBurkesDither},
    {StuckiDither,
     "StuckiDither",
     FilterStuckiDither,
     {{{Menu::Filter, 13, "Scattered", 15}, {Menu::Filter, 24, "Coldept", 50}}}},
    {Aquarel, "Aquarel", Plain<FilterAquarel>, {{{Menu::Filter, 15, "Aquarel"}}}},
    {Dilate, "Dilate", Plain<FilterDilate>},
    {Erode, "Erode", Plain<FilterErode>, {{{Menu::Filter, 22, "Erode"}}}},
    {Connection, "Connection", Plain<FilterConnection>, {{{Menu::Filter, 21, "Connection"}}}},
    {Stretch, "Stretch", Plain<FilterStretch>},
    {AddNoise, "AddNoise", FilterAddNoise, {{{Menu::Filter, 17, "Add noise", 50}}}},
    {Saturation, "Saturation", FilterSaturation, {{{Menu::Filter, 23, "Saturation", 140}}}},
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
