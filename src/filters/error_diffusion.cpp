// Error diffusion by Floyd and Steinberg, Burkes, and Stucki.
//
// A pixel waits for the two at its left, and for nothing else of its row. So the errors that reach it from
// above are added up a row at a time, and from pixel to pixel there are only two looks into tables.

#include "filters/channels.h"
#include "filters/dither_filters.h"
#include "filters/mean_gray.h"
#include "filters/pixel_words.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>
#include <vector>

namespace coinlet {

namespace {

/// No kernel reaches further to the left or to the right.
constexpr int furthestColumn = 2;

/// The weights of what goes to a row below, from `furthestColumn` at the left to as far at the right.
using RowOfWeights = std::array<int, 2 * furthestColumn + 1>;

template <std::size_t rowsBelow>
struct Kernel {
    int divisor;
    int percentSet;              ///< The progress when its table stands.
    std::array<int, 2> toRight;  ///< Weights of the next two pixels.
    std::array<RowOfWeights, rowsBelow> below;
};

constexpr Kernel<1> floyd{16, 2, {7, 0}, {{{0, 3, 5, 1, 0}}}};
constexpr Kernel<1> burkes{32, 3, {8, 4}, {{{2, 4, 8, 4, 2}}}};
constexpr Kernel<2> stucki{42, 3, {8, 4}, {{{2, 4, 8, 4, 2}, {1, 2, 4, 2, 1}}}};

/// Of what leaves a pixel and, since the weights of a kernel add up to its divisor, of what reaches one.
constexpr int greatestError = 255;
/// Of a gray and what reaches it, before it is brought into range.
constexpr int leastSum = -255, greatestSum = 510;

/// What becomes of a pixel with such a sum.
struct Outcome {
    std::int16_t toNext, toSecondNext;  ///< The parts of its error that go to the right.
    std::int16_t error;
    std::uint8_t output;
};
using Outcomes = std::array<Outcome, greatestSum - leastSum + 1>;

/// The part of an error that a weight gives, cut off towards zero. In 16 bits: wide units have twice as many
/// of these, and errors times weights fit.
template <const auto& kernel>
std::int16_t PartOf(std::int16_t error, int weight) {
    const auto product = static_cast<std::int16_t>(error * weight);
    return static_cast<std::int16_t>(product / kernel.divisor);
}

template <const auto& kernel>
Outcomes OutcomesFor(int threshold) {
    Outcomes outcomes{};
    for (int sum = leastSum; sum <= greatestSum; ++sum) {
        const int value = ClampToByte(sum);
        const int output = value < threshold ? 0 : 255;
        const auto error = static_cast<std::int16_t>(value - output);
        outcomes[static_cast<std::size_t>(sum - leastSum)] = {PartOf<kernel>(error, kernel.toRight[0]),
                                                              PartOf<kernel>(error, kernel.toRight[1]), error,
                                                              static_cast<std::uint8_t>(output)};
    }
    return outcomes;
}

/// By error, from -255 on: how much of what has reached a pixel counts. Beyond one whole range more wouldn't
/// change a gray's sum once that is brought into range, so there it stops.
using Damped = std::array<std::ptrdiff_t, 2 * greatestError + 1>;

Damped DampedBy(int damping) {
    Damped damped{};
    for (int error = -greatestError; error <= greatestError; ++error)
        damped[static_cast<std::size_t>(error + greatestError)] = std::clamp(error * 10 / damping, -255, 255);
    return damped;
}

/// Adds to a row below, the number `index` of them, what the pixels of the present one give to it. Their
/// errors are preceded and followed by zeros as far as a kernel reaches.
template <const auto& kernel, std::size_t index>
void AddBelow(const std::int16_t* errors, std::int16_t* row, int width) {
    constexpr RowOfWeights weights = kernel.below[index];
    for (int x = 0; x < width; ++x) {
        // The first weight is that of what a pixel gives to the left: so its giver stands at the right.
        const int parts = PartOf<kernel>(errors[x + 2], weights[0]) +
                          PartOf<kernel>(errors[x + 1], weights[1]) + PartOf<kernel>(errors[x], weights[2]) +
                          PartOf<kernel>(errors[x - 1], weights[3]) +
                          PartOf<kernel>(errors[x - 2], weights[4]);
        row[x] = static_cast<std::int16_t>(row[x] + parts);
    }
}

template <const auto& kernel>
void Diffuse(FilterRun& run, int damping) {
    constexpr int meanTaken = 10;
    const int width = run.Width();
    const auto damped = DampedBy(damping);
    // Errors that have reached the present row and those below it, and those that leave the present one.
    constexpr std::size_t rowsBelow = kernel.below.size();
    std::array<std::vector<std::int16_t>, 1 + rowsBelow> reached;
    reached.fill(std::vector<std::int16_t>(static_cast<std::size_t>(width)));
    std::vector<std::int16_t> left(static_cast<std::size_t>(width) + 2 * furthestColumn);
    std::vector<std::uint8_t> grays(static_cast<std::size_t>(width)), outputs(grays.size());
    run.Reached(kernel.percentSet);
    const Outcomes outcomes = OutcomesFor<kernel>(MeanGray(run.source));
    run.Reached(meanTaken);

    for (int y = 0; y < run.Height(); ++y) {
        const std::uint8_t* from = run.source.Row(y);
        std::uint8_t *to = run.work.Row(y), *gray = grays.data(), *output = outputs.data();
        for (int x = 0; x < width; ++x)
            gray[x] = static_cast<std::uint8_t>(GrayOf(PixelAt(from, x)));

        const std::int16_t* arrived = reached[0].data();
        std::int16_t* errors = left.data() + furthestColumn;
        std::ptrdiff_t fromLast = 0, fromSecondLast = 0, nextFromSecondLast = 0;
        for (int x = 0; x < width; ++x) {
            // What is known before the last pixel goes into the starts of the tables: then each look waits
            // for nothing but the look before it.
            const std::ptrdiff_t* dampedFrom = damped.data() + greatestError + arrived[x] + fromSecondLast;
            const Outcome* outcomesFrom = outcomes.data() - leastSum + gray[x];
            const Outcome& outcome = outcomesFrom[dampedFrom[fromLast]];
            fromLast = outcome.toNext;
            fromSecondLast = std::exchange(nextFromSecondLast, outcome.toSecondNext);
            errors[x] = outcome.error;
            output[x] = outcome.output;
        }

        for (int x = 0; x < width; ++x)
            PutPixel(to, x, GrayPixel(output[x]));
        AddBelow<kernel, 0>(errors, reached[1].data(), width);
        if constexpr (rowsBelow > 1) AddBelow<kernel, 1>(errors, reached[2].data(), width);
        std::ranges::fill(reached.front(), std::int16_t{0});
        std::rotate(reached.begin(), reached.begin() + 1, reached.end());
        run.RowDone(y, meanTaken);
    }
}

template <const auto& kernel>
void DiffuseUnlessZero(FilterRun& run, std::int32_t damping) {
    if (damping != 0) WithVectorUnits(run.units, [=, &run] { Diffuse<kernel>(run, damping); });
}

}  // namespace

void FilterFloydDither(FilterRun& run, std::int32_t damping) {
    DiffuseUnlessZero<floyd>(run, damping);
}

void FilterBurkesDither(FilterRun& run, std::int32_t damping) {
    DiffuseUnlessZero<burkes>(run, damping);
}

void FilterStuckiDither(FilterRun& run, std::int32_t damping) {
    DiffuseUnlessZero<stucki>(run, damping);
}

}  // namespace coinlet
