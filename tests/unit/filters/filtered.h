#pragma once

#include "filters/filter_run.h"
#include "filters/filter_table.h"
#include "slow_filters.h"

#include <utility>
#include <vector>

namespace coinlet::test {

/// Notes what a filter tells of its progress.
class NotedPace : public FilterPace {
public:
    void Reached(int percent) override { percents.push_back(percent); }
    void RowShown(int row, int last) override { rows.emplace_back(row, last); }

    std::vector<int> percents;
    std::vector<std::pair<int, int>> rows;
};

/// Runs a filter of the product on a picture, without a surface.
inline Picture Filtered(int number, std::int32_t parameter, const Picture& picture, RandomGenerator& random,
                        NotedPace& pace, VectorUnits units = WidestVectorUnits()) {
    PixelArray work(picture.W, picture.H), source(picture.W, picture.H);
    for (PixelArray* array : {&work, &source}) {
        for (int y = 0; y < picture.H; ++y) {
            for (int x = 0; x < picture.W; ++x) {
                for (int c = 0; c < 4; ++c) {
                    array->Row(y)[4 * x + c] =
                        static_cast<std::uint8_t>(c == 3 ? 255 : picture(c + 1, x + 1, y + 1));
                }
            }
        }
    }
    FilterRun run(work, source, random, pace, units);
    if (const NumberedFilter* filter = FindFilter(number)) filter->apply(run, parameter);
    Picture result(picture.W, picture.H);
    for (int y = 0; y < picture.H; ++y) {
        for (int x = 0; x < picture.W; ++x) {
            for (int c = 0; c < 3; ++c)
                result(c + 1, x + 1, y + 1) = work.Row(y)[4 * x + c];
        }
    }
    return result;
}

inline Picture Filtered(int number, std::int32_t parameter, const Picture& picture) {
    RandomGenerator random;
    NotedPace pace;
    return Filtered(number, parameter, picture, random, pace);
}

/// A picture of one flat colour.
inline Picture Flat(int width, int height, int blue, int green, int red) {
    Picture picture(width, height);
    for (int y = 1; y <= height; ++y) {
        for (int x = 1; x <= width; ++x) {
            picture(1, x, y) = blue;
            picture(2, x, y) = green;
            picture(3, x, y) = red;
        }
    }
    return picture;
}

}  // namespace coinlet::test
