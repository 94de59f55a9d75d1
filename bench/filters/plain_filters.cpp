#include "plain_filters.h"

#include "plain_neighbourhood_filters.h"
#include "plain_pixels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace coinlet::bench {

namespace {

int GrayAt(const PixelArray& picture, int x, int y) {
    return (Channel(picture, 0, x, y) + Channel(picture, 1, x, y) + Channel(picture, 2, x, y)) / 3;
}

int MeanOf(const PixelArray& picture) {
    std::int64_t sum = 0;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x)
            sum += GrayAt(picture, x, y);
    }
    return static_cast<int>(sum / (std::int64_t{picture.Width()} * picture.Height()));
}

void PutGray(PixelArray& work, int x, int y, int value) {
    for (int channel = 0; channel < colourChannels; ++channel)
        Set(work, channel, x, y, value);
}

template <class Value>
void MapByTable(PixelArray& work, const PixelArray& source, Value value) {
    std::array<int, 256> table{};
    for (int i = 0; i < 256; ++i)
        table[static_cast<std::size_t>(i)] = value(i);
    Walk(work, 0,
         [&](int c, int x, int y) { return table[static_cast<std::size_t>(Channel(source, c, x, y))]; });
}

void SwapColours(PixelArray& work, const PixelArray& source) {
    for (int y = 0; y < work.Height(); ++y) {
        for (int x = 0; x < work.Width(); ++x) {
            const int blue = Channel(source, 0, x, y), green = Channel(source, 1, x, y),
                      red = Channel(source, 2, x, y);
            Set(work, 0, x, y, green);
            Set(work, 1, x, y, red);
            Set(work, 2, x, y, blue);
        }
    }
}

void Contrast(std::int32_t percent, PixelArray& work, const PixelArray& source) {
    const int mean = MeanOf(source);
    const double factor = static_cast<float>((percent + 100) / 100.0);
    std::array<int, 256> table{};
    for (int i = 0; i < 256; ++i)
        table[static_cast<std::size_t>(i)] = static_cast<int>(std::nearbyint(factor * (i - mean) + mean));
    const auto outside = [](int v) { return v < 0 || v > 255; };
    const auto deal = [](int& one, int& second, int& third) {
        const int lost = one - Clamp(one);
        second += lost / 2;
        third += lost / 2;
        one -= lost;
    };
    for (int y = 0; y < work.Height(); ++y) {
        for (int x = 0; x < work.Width(); ++x) {
            const auto moved = [&](int channel) {
                return table[static_cast<std::size_t>(Channel(source, channel, x, y))];
            };
            int b = moved(0), g = moved(1), r = moved(2);
            while (outside(b) || outside(g) || outside(r)) {
                if (b <= 0 && g <= 0 && r <= 0) {
                    b = g = r = 0;
                } else if (b >= 255 && g >= 255 && r >= 255) {
                    b = g = r = 255;
                } else {
                    deal(b, g, r);
                    deal(g, b, r);
                    deal(r, b, g);
                }
            }
            Set(work, 0, x, y, b);
            Set(work, 1, x, y, g);
            Set(work, 2, x, y, r);
        }
    }
}

void Saturation(std::int32_t percent, PixelArray& work, const PixelArray& source) {
    const double factor = static_cast<float>(percent / 100.0);
    for (int y = 0; y < work.Height(); ++y) {
        for (int x = 0; x < work.Width(); ++x) {
            const int gray = GrayAt(source, x, y);
            for (int c = 0; c < colourChannels; ++c) {
                const int v = Channel(source, c, x, y);
                Set(work, c, x, y, ClampRound(v + factor * (v - gray)));
            }
        }
    }
}

void Stretch(PixelArray& work, const PixelArray& source) {
    int lowest = 255, highest = 0;
    for (int y = 0; y < work.Height(); ++y) {
        for (int x = 0; x < work.Width(); ++x) {
            lowest = std::min(lowest, Channel(source, 1, x, y));
            highest = std::max(highest, Channel(source, 1, x, y));
        }
    }
    const double range = highest - lowest;
    Walk(work, 0,
         [&](int c, int x, int y) { return ClampRound((Channel(source, c, x, y) - lowest) * 255 / range); });
}

void Defuse(std::int32_t reach, PixelArray& work, RandomGenerator& random) {
    const double half = std::nearbyint(reach / 2.0);
    for (int y = 0; y < work.Height(); ++y) {
        for (int x = 0; x < work.Width(); ++x) {
            int dx = static_cast<int>(std::nearbyint(random.Next() * reach - half));
            int dy = static_cast<int>(std::nearbyint(random.Next() * reach - half));
            if (x + dx < 0 || x + dx >= work.Width()) dx = 0;
            if (y + dy < 0 || y + dy >= work.Height()) dy = 0;
            for (int c = 0; c < colourChannels; ++c)
                Set(work, c, x, y, Channel(work, c, x + dx, y + dy));
        }
    }
}

void Threshold(std::int32_t colour, PixelArray& work, const PixelArray& source) {
    for (int y = 0; y < work.Height(); ++y) {
        for (int x = 0; x < work.Width(); ++x) {
            bool below = true;
            for (int c = 0; c < colourChannels; ++c)
                below = below && Channel(source, c, x, y) < ColourChannel(colour, c);
            PutGray(work, x, y, below ? 0 : 255);
        }
    }
}

void SharpDither(PixelArray& work, const PixelArray& source) {
    const int threshold = MeanOf(source), width = work.Width(), height = work.Height();
    int carry = 0;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool inside = x > 0 && x < width - 1 && y > 0 && y < height - 1;
            int sum = 0;
            for (int c = 0; c < colourChannels; ++c) {
                const int v = Channel(source, c, x, y);
                sum += inside ? Clamp((10 * v - Ring(source, c, x, y)) / 2) : v;
            }
            const int value = Clamp(sum / 3 + carry), output = value < threshold ? 0 : 255;
            PutGray(work, x, y, output);
            carry = (value - output) / 4;
        }
    }
}

void OrderedDither(PixelArray& work, const PixelArray& source) {
    static constexpr int limits[4][4] = {{1, 9, 3, 11}, {13, 5, 15, 7}, {4, 12, 2, 10}, {16, 8, 14, 6}};
    for (int y = 0; y < work.Height(); ++y) {
        for (int x = 0; x < work.Width(); ++x)
            PutGray(work, x, y, GrayAt(source, x, y) / 16 + 1 < limits[x % 4][y % 4] ? 0 : 255);
    }
}

struct Tap {
    int column, row, weight;
};

void Diffuse(const std::vector<Tap>& taps, int divisor, int damping, PixelArray& work,
             const PixelArray& source) {
    constexpr int greatest = 255, rows = 3;
    const int width = work.Width(), height = work.Height(), threshold = MeanOf(source);
    std::vector<std::vector<int>> parts;
    for (const Tap& tap : taps) {
        parts.emplace_back();
        for (int error = -greatest; error <= greatest; ++error)
            parts.back().push_back(error * tap.weight / divisor);
    }
    std::vector<std::vector<int>> errors(rows, std::vector<int>(static_cast<std::size_t>(width)));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int arrived = errors[0][static_cast<std::size_t>(x)] * 10 / damping;
            const int value = Clamp(arrived + GrayAt(source, x, y)), output = value < threshold ? 0 : 255;
            const int error = value - output + greatest;
            PutGray(work, x, y, output);
            for (std::size_t k = 0; k < taps.size(); ++k) {
                const int column = x + taps[k].column;
                if (column < 0 || column >= width || y + taps[k].row >= height) continue;
                errors[static_cast<std::size_t>(taps[k].row)][static_cast<std::size_t>(column)] +=
                    parts[k][static_cast<std::size_t>(error)];
            }
        }
        std::rotate(errors.begin(), errors.begin() + 1, errors.end());
        std::fill(errors.back().begin(), errors.back().end(), 0);
    }
}

const std::vector<Tap> floyd{{1, 0, 7}, {-1, 1, 3}, {0, 1, 5}, {1, 1, 1}};
const std::vector<Tap> burkes{{1, 0, 8}, {2, 0, 4}, {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {1, 1, 4}, {2, 1, 2}};
const std::vector<Tap> stucki{{1, 0, 8}, {2, 0, 4},  {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {1, 1, 4},
                              {2, 1, 2}, {-2, 2, 1}, {-1, 2, 2}, {0, 2, 4},  {1, 2, 2}, {2, 2, 1}};

}  // namespace

void PlainFilter(FilterNumber number, std::int32_t parameter, PixelArray& work, const PixelArray& source,
                 RandomGenerator& random) {
    switch (number) {
        case FilterNumber::Sharpen:
        case FilterNumber::Blur:
        case FilterNumber::Smooth:
        case FilterNumber::Edge:
        case FilterNumber::Contour:
        case FilterNumber::Relief:
        case FilterNumber::GradientBack:
        case FilterNumber::GradientForward:
            return PlainConvolution(number, parameter, work, source);
        case FilterNumber::DiagonalBack:
            return PlainDiagonal(1, parameter, work);
        case FilterNumber::DiagonalForward:
            return PlainDiagonal(-1, parameter, work);
        case FilterNumber::Erode:
        case FilterNumber::Dilate:
        case FilterNumber::Connection:
            return PlainExtremes(number, work, source);
        case FilterNumber::Aquarel:
            return PlainAquarel(work, source);
        case FilterNumber::Pixelize:
            return PlainPixelize(parameter, work, source);
        case FilterNumber::Negative:
            return Walk(work, 0, [&](int c, int x, int y) { return 255 - Channel(source, c, x, y); });
        case FilterNumber::Grayscale:
            return Walk(work, 0, [&](int, int x, int y) { return GrayAt(source, x, y); });
        case FilterNumber::Brightness: {
            const double factor = static_cast<float>((parameter + 100) / 100.0);
            return MapByTable(work, source, [factor](int v) { return ClampRound(factor * v); });
        }
        case FilterNumber::Gamma: {
            const double exponent = 1 / double{static_cast<float>(parameter / 100.0)};
            return MapByTable(work, source,
                              [exponent](int v) { return ClampRound(std::pow(v / 255.0, exponent) * 255); });
        }
        case FilterNumber::SwapColours:
            return SwapColours(work, source);
        case FilterNumber::Contrast:
            return Contrast(parameter, work, source);
        case FilterNumber::Saturation:
            return Saturation(parameter, work, source);
        case FilterNumber::Stretch:
            return Stretch(work, source);
        case FilterNumber::Defuse:
            return Defuse(parameter, work, random);
        case FilterNumber::AddNoise:
            return Walk(work, 0, [&](int c, int x, int y) {
                return ClampRound(random.Next() * (2.0 * parameter + 1) - parameter +
                                  Channel(source, c, x, y));
            });
        case FilterNumber::Threshold:
            return Threshold(parameter, work, source);
        case FilterNumber::SharpDither:
            return SharpDither(work, source);
        case FilterNumber::OrderedDither:
            return OrderedDither(work, source);
        case FilterNumber::FloydDither:
            return Diffuse(floyd, 16, parameter, work, source);
        case FilterNumber::BurkesDither:
            return Diffuse(burkes, 32, parameter, work, source);
        case FilterNumber::StuckiDither:
            return Diffuse(stucki, 42, parameter, work, source);
    }
}

}  // namespace coinlet::bench
