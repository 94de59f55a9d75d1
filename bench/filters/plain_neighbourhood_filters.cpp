#include "plain_neighbourhood_filters.h"

#include "plain_pixels.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace coinlet::bench {

void PlainConvolution(FilterNumber number, std::int32_t parameter, PixelArray& work,
                      const PixelArray& source) {
    const auto slope = [&](int channel, int x, int y) {
        int sum = 0;
        for (int row = y - 1; row <= y + 1; ++row)
            sum += Channel(source, channel, x - 1, row) - Channel(source, channel, x + 1, row);
        return sum;
    };
    switch (number) {
        case FilterNumber::Sharpen:
            return Walk(work, 1, [&](int c, int x, int y) {
                return Clamp((Channel(work, c, x, y) * (parameter + 24) - 2 * Ring(work, c, x, y)) /
                             (parameter + 8));
            });
        case FilterNumber::Edge:
            return Walk(work, 1, [&](int c, int x, int y) {
                return Clamp((Channel(work, c, x, y) * (parameter + 9) - Ring(work, c, x, y)) /
                             (parameter + 1));
            });
        case FilterNumber::Blur:
            return Walk(work, 1, [&](int c, int x, int y) { return Ring(work, c, x, y) / 8; });
        case FilterNumber::Smooth:
            return Walk(work, 1, [&](int c, int x, int y) {
                return (Channel(work, c, x - 1, y) + Channel(work, c, x, y) + Channel(work, c, x, y - 1) +
                        Channel(work, c, x, y + 1) + Channel(work, c, x + 1, y)) /
                       5;
            });
        case FilterNumber::Contour:
            return Walk(work, 1, [&](int c, int x, int y) {
                return Clamp(8 * Channel(source, c, x, y) - Ring(source, c, x, y) +
                             ColourChannel(parameter, c));
            });
        case FilterNumber::Relief:
            return Walk(work, 1, [&](int c, int x, int y) {
                const int light = 2 * Channel(source, c, x - 1, y - 1) + Channel(source, c, x - 1, y) +
                                  Channel(source, c, x, y - 1) - Channel(source, c, x, y + 1) -
                                  Channel(source, c, x + 1, y) - 2 * Channel(source, c, x + 1, y + 1);
                return Clamp((Channel(source, c, x, y) + light) / 2 + 50);
            });
        case FilterNumber::GradientBack:
            return Walk(work, 1, [&](int c, int x, int y) {
                return Clamp(slope(c, x, y) + ColourChannel(parameter, c));
            });
        default:
            return Walk(work, 1, [&](int c, int x, int y) {
                return Clamp(ColourChannel(parameter, c) - slope(c, x, y));
            });
    }
}

void PlainDiagonal(int sign, std::int32_t parameter, PixelArray& work) {
    for (int y = 0; y < work.Height() - 1; ++y) {
        for (int x = 0; x < work.Width() - 1; ++x) {
            for (int c = 0; c < colourChannels; ++c) {
                const int difference = Channel(work, c, x, y) - Channel(work, c, x + 1, y + 1);
                Set(work, c, x, y, Clamp(std::abs(sign * difference + ColourChannel(parameter, c))));
            }
        }
    }
}

void PlainExtremes(FilterNumber number, PixelArray& work, const PixelArray& source) {
    Walk(work, 1, [&](int c, int x, int y) {
        int lowest = 255, highest = 0;
        for (int row = y - 1; row <= y + 1; ++row) {
            for (int column = x - 1; column <= x + 1; ++column) {
                lowest = std::min(lowest, Channel(source, c, column, row));
                highest = std::max(highest, Channel(source, c, column, row));
            }
        }
        if (number == FilterNumber::Erode) return lowest;
        return number == FilterNumber::Dilate ? highest : Channel(source, c, x, y) - lowest;
    });
}

void PlainAquarel(PixelArray& work, const PixelArray& source) {
    Walk(work, 2, [&](int c, int x, int y) {
        int least = 99'999, result = 0;
        for (int block = 0; block < 4; ++block) {
            const int left = block % 2 == 0 ? x - 2 : x, top = block < 2 ? y - 2 : y;
            int sum = 0, spread = 0;
            for (int row = top; row < top + 3; ++row) {
                for (int column = left; column < left + 3; ++column)
                    sum += Channel(source, c, column, row);
            }
            const int mean = sum / 9;
            for (int row = top; row < top + 3; ++row) {
                for (int column = left; column < left + 3; ++column)
                    spread += std::abs(Channel(source, c, column, row) - mean);
            }
            if (spread < least) {
                least = spread;
                result = mean;
            }
        }
        return result;
    });
}

void PlainPixelize(int side, PixelArray& work, const PixelArray& source) {
    std::array<int, colourChannels> means{};
    for (int y = 0; y < work.Height(); ++y) {
        for (int x = 0; x < work.Width(); ++x) {
            if (x % side == 0) {
                std::array<int, colourChannels> sums{};
                int count = 0;
                for (int row = y / side * side; row < std::min((y / side + 1) * side, work.Height()); ++row) {
                    for (int column = x; column < std::min(x + side, work.Width()); ++column, ++count) {
                        for (int c = 0; c < colourChannels; ++c)
                            sums[static_cast<std::size_t>(c)] += Channel(source, c, column, row);
                    }
                }
                for (std::size_t c = 0; c < means.size(); ++c)
                    means[c] = sums[c] / count;
            }
            for (int c = 0; c < colourChannels; ++c)
                Set(work, c, x, y, means[static_cast<std::size_t>(c)]);
        }
    }
}

}  // namespace coinlet::bench
