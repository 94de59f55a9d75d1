#include "slow_filters.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace coinlet::test {

namespace {

long long Round(double value) {
    const double down = std::floor(value), rest = value - down;
    const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(down, 2) != 0);
    return static_cast<long long>(up ? down + 1 : down);
}

int Clamp(long long value) {
    if (value < 0) return 0;
    if (value > 255) return 255;
    return static_cast<int>(value);
}

int ClampRound(double value) {
    if (value > 1000) return 255;
    if (value < -1000) return 0;
    return Clamp(Round(value));
}

int ChannelOf(std::int32_t colour, int channel) {
    const auto bits = static_cast<std::uint32_t>(colour);
    if (channel == 1) return static_cast<int>((bits & 0xFF0000u) >> 16);
    if (channel == 2) return static_cast<int>((bits & 0xFF00u) >> 8);
    return static_cast<int>(bits & 0xFFu);
}

int GrayAt(const Picture& p, int x, int y) {
    return (p(1, x, y) + p(2, x, y) + p(3, x, y)) / 3;
}

int MeanOf(const Picture& p) {
    long long sum = 0, count = 0;
    for (int y = 1; y <= p.H; ++y)
        for (int x = 1; x <= p.W; ++x) {
            sum += GrayAt(p, x, y);
            ++count;
        }
    return count == 0 ? 0 : static_cast<int>(sum / count);
}

long long Ring(const Picture& p, int c, int x, int y) {
    long long sum = 0;
    for (int dy = -1; dy <= 1; ++dy)
        for (int dx = -1; dx <= 1; ++dx)
            if (dx != 0 || dy != 0) sum += p(c, x + dx, y + dy);
    return sum;
}

void Gray3(Picture& p, int x, int y, int value) {
    for (int c = 1; c <= 3; ++c)
        p(c, x, y) = value;
}

template <class Rule>
void Everywhere(const Picture& p, Rule rule) {
    for (int y = 1; y <= p.H; ++y)
        for (int x = 1; x <= p.W; ++x)
            rule(x, y);
}

template <class Rule>
void Inside(const Picture& p, Rule rule, int border = 1) {
    for (int y = 1 + border; y <= p.H - border; ++y)
        for (int x = 1 + border; x <= p.W - border; ++x)
            for (int c = 1; c <= 3; ++c)
                rule(c, x, y);
}

void Convolve(int number, std::int32_t parameter, const Picture& source, Picture& work) {
    const long long P = parameter;
    if ((number == 1 && P + 8 == 0) || (number == 6 && P + 1 == 0)) return;
    Inside(source, [&](int c, int x, int y) {
        const Picture& s = source;
        const Picture& w = work;
        const int C = ChannelOf(parameter, c);
        long long value = 0;
        switch (number) {
            case 1:
                value = (w(c, x, y) * (P + 24) - 2 * Ring(w, c, x, y)) / (P + 8);
                break;
            case 3:
                value = Ring(w, c, x, y) / 8;
                break;
            case 5:
                value = (w(c, x - 1, y) + w(c, x, y) + w(c, x, y - 1) + w(c, x, y + 1) + w(c, x + 1, y)) / 5;
                break;
            case 6:
                value = (w(c, x, y) * (P + 9) - Ring(w, c, x, y)) / (P + 1);
                break;
            case 7:
                value = 8 * s(c, x, y) - Ring(s, c, x, y) + C;
                break;
            case 9:
                for (int dy = -1; dy <= 1; ++dy)
                    value += s(c, x - 1, y + dy) - s(c, x + 1, y + dy);
                value += C;
                break;
            case 11:
                for (int dy = -1; dy <= 1; ++dy)
                    value += s(c, x + 1, y + dy) - s(c, x - 1, y + dy);
                value += C;
                break;
            case 13: {
                const int E = 2 * s(c, x - 1, y - 1) + s(c, x - 1, y) + s(c, x, y - 1) - s(c, x, y + 1) -
                              s(c, x + 1, y) - 2 * s(c, x + 1, y + 1);
                value = (s(c, x, y) + E) / 2 + 50;
                break;
            }
            default:
                break;
        }
        work(c, x, y) = Clamp(value);
    });
}

void Diagonal(bool forward, std::int32_t parameter, Picture& work) {
    for (int y = 1; y <= work.H - 1; ++y)
        for (int x = 1; x <= work.W - 1; ++x)
            for (int c = 1; c <= 3; ++c) {
                const int here = work(c, x, y), there = work(c, x + 1, y + 1);
                const int difference = forward ? there - here : here - there;
                work(c, x, y) = Clamp(std::abs(difference + ChannelOf(parameter, c)));
            }
}

void Pixelize(long long P, const Picture& source, Picture& work) {
    if (P < 1) return;
    Everywhere(source, [&](int x, int y) {
        const long long left = (x - 1) / P * P + 1, top = (y - 1) / P * P + 1;
        for (int c = 1; c <= 3; ++c) {
            long long sum = 0, count = 0;
            for (long long row = top; row < top + P && row <= source.H; ++row)
                for (long long column = left; column < left + P && column <= source.W; ++column) {
                    sum += source(c, static_cast<int>(column), static_cast<int>(row));
                    ++count;
                }
            work(c, x, y) = static_cast<int>(sum / count);
        }
    });
}

void Extremes(int number, const Picture& source, Picture& work) {
    Inside(source, [&](int c, int x, int y) {
        int lowest = 255, highest = 0;
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx) {
                lowest = std::min(lowest, source(c, x + dx, y + dy));
                highest = std::max(highest, source(c, x + dx, y + dy));
            }
        work(c, x, y) = number == 25 ? highest : number == 26 ? lowest : source(c, x, y) - lowest;
    });
}

void Aquarel(const Picture& source, Picture& work) {
    struct Start {
        int column, row;
    };
    Inside(
        source,
        [&](int c, int x, int y) {
            int limit = 99999;
            for (const Start start : {Start{x - 2, y - 2}, Start{x, y - 2}, Start{x - 2, y}, Start{x, y}}) {
                int sum = 0;
                for (int row = start.row; row <= start.row + 2; ++row)
                    for (int column = start.column; column <= start.column + 2; ++column)
                        sum += source(c, column, row);
                const int mean = sum / 9;
                int spread = 0;
                for (int row = start.row; row <= start.row + 2; ++row)
                    for (int column = start.column; column <= start.column + 2; ++column)
                        spread += std::abs(source(c, column, row) - mean);
                if (spread < limit) {
                    limit = spread;
                    work(c, x, y) = mean;
                }
            }
        },
        2);
}

void Defuse(std::int32_t P, Picture& work, RandomGenerator& random) {
    const long long half = Round(P / 2.0);
    Everywhere(work, [&](int x, int y) {
        long long dx = Round(random.Next() * P - static_cast<double>(half));
        long long dy = Round(random.Next() * P - static_cast<double>(half));
        if (x + dx < 1 || x + dx > work.W) dx = 0;
        if (y + dy < 1 || y + dy > work.H) dy = 0;
        for (int c = 1; c <= 3; ++c)
            work(c, x, y) = work(c, static_cast<int>(x + dx), static_cast<int>(y + dy));
    });
}

/// By arrays over the whole picture: an error is kept where it is to count.
void Diffuse(int number, std::int32_t P, const Picture& source, Picture& work) {
    if (P == 0) return;
    struct Part {
        int dx, dy, weight;
    };
    std::vector<Part> parts;
    int divisor = 0;
    if (number == 21) {
        parts = {{1, 0, 7}, {-1, 1, 3}, {0, 1, 5}, {1, 1, 1}};
        divisor = 16;
    } else if (number == 22) {
        parts = {{1, 0, 8}, {2, 0, 4}, {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {1, 1, 4}, {2, 1, 2}};
        divisor = 32;
    } else {
        parts = {{1, 0, 8}, {2, 0, 4},  {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {1, 1, 4},
                 {2, 1, 2}, {-2, 2, 1}, {-1, 2, 2}, {0, 2, 4},  {1, 2, 2}, {2, 2, 1}};
        divisor = 42;
    }
    const int T = MeanOf(source);
    Picture errors(source.W, source.H);  // in channel 1
    Everywhere(source, [&](int x, int y) {
        const int value = Clamp(static_cast<long long>(errors(1, x, y)) * 10 / P + GrayAt(source, x, y));
        const int output = value < T ? 0 : 255;
        Gray3(work, x, y, output);
        for (const Part& part : parts)
            if (source.Contains(x + part.dx, y + part.dy))
                errors(1, x + part.dx, y + part.dy) += (value - output) * part.weight / divisor;
    });
}

void SharpDither(const Picture& source, Picture& work) {
    const int T = MeanOf(source);
    int carry = 0;
    Everywhere(source, [&](int x, int y) {
        int sum = 0;
        for (int c = 1; c <= 3; ++c) {
            if (x > 1 && x < source.W && y > 1 && y < source.H)
                sum += Clamp((10 * source(c, x, y) - Ring(source, c, x, y)) / 2);
            else
                sum += source(c, x, y);
        }
        const int value = Clamp(sum / 3 + carry);
        const int output = value < T ? 0 : 255;
        Gray3(work, x, y, output);
        carry = (value - output) / 4;
    });
}

void OrderedDither(const Picture& source, Picture& work) {
    Everywhere(source, [&](int x, int y) {
        static constexpr int M[4][4] = {{1, 9, 3, 11}, {13, 5, 15, 7}, {4, 12, 2, 10}, {16, 8, 14, 6}};
        const int a = (x - 1) % 4, b = (y - 1) % 4;
        Gray3(work, x, y, GrayAt(source, x, y) / 16 + 1 < M[a][b] ? 0 : 255);
    });
}

void SwapColours(int order, const Picture& source, Picture& work) {
    Everywhere(source, [&](int x, int y) {
        const int b = source(1, x, y), g = source(2, x, y), r = source(3, x, y);
        const auto put = [&](int red, int green, int blue) {
            work(1, x, y) = blue;
            work(2, x, y) = green;
            work(3, x, y) = red;
        };
        if (order == 1) put(b, r, g);
        if (order == 2) put(g, b, r);
        if (order == 3) put(r, b, g);
        if (order == 4) put(b, g, r);
        if (order == 5) put(g, r, b);
    });
}

void Contrast(std::int32_t P, const Picture& source, Picture& work) {
    const int M = MeanOf(source);
    const auto factor = static_cast<float>((P + 100.0) / 100.0);
    Everywhere(source, [&](int x, int y) {
        const auto moved = [&](int c) {
            const double product = static_cast<double>(factor) * (source(c, x, y) - M) + M;
            return Round(std::clamp(product, -2147483648.0, 2147483647.0));
        };
        const Trio out = SlowSpread({moved(1), moved(2), moved(3)});
        work(1, x, y) = static_cast<int>(out.B);
        work(2, x, y) = static_cast<int>(out.G);
        work(3, x, y) = static_cast<int>(out.R);
    });
}

void Stretch(const Picture& source, Picture& work) {
    int L = 255, U = 0;
    Everywhere(source, [&](int x, int y) {
        L = std::min(L, source(2, x, y));
        U = std::max(U, source(2, x, y));
    });
    if (U <= L) return;
    Everywhere(source, [&](int x, int y) {
        for (int c = 1; c <= 3; ++c)
            work(c, x, y) = ClampRound((source(c, x, y) - L) * 255.0 / (U - L));
    });
}

void PointFilter(int number, std::int32_t P, const Picture& source, Picture& work, RandomGenerator& random) {
    Everywhere(source, [&](int x, int y) {
        const int gray = GrayAt(source, x, y);
        bool below = true;
        for (int c = 1; c <= 3; ++c) {
            const int v = source(c, x, y);
            const auto factor = static_cast<float>((P + 100.0) / 100.0), f = static_cast<float>(P / 100.0);
            below = below && v < ChannelOf(P, c);
            if (number == 2) work(c, x, y) = 255 - v;
            if (number == 12) work(c, x, y) = gray;
            if (number == 14) work(c, x, y) = ClampRound(static_cast<double>(factor) * v);
            if (number == 29) work(c, x, y) = ClampRound(random.Next() * (2.0 * P + 1) - P + v);
            if (number == 30) work(c, x, y) = ClampRound(v + static_cast<double>(f) * (v - gray));
            if (number == 31 && P != 0)
                work(c, x, y) = ClampRound(std::pow(v / 255.0, 1 / static_cast<double>(f)) * 255);
        }
        if (number == 18) Gray3(work, x, y, below ? 0 : 255);
    });
}

}  // namespace

Trio SlowSpread(Trio colour) {
    auto& [B, G, R] = colour;
    const auto inRange = [](long long v) { return v >= 0 && v <= 255; };
    const auto deal = [](long long& one, long long& second, long long& third) {
        if (one < 0) {
            const long long half = one / 2;
            second += half;
            third += half;
            one = 0;
        } else if (one > 255) {
            const long long half = (one - 255) / 2;
            second += half;
            third += half;
            one = 255;
        }
    };
    do {
        if (B <= 0 && G <= 0 && R <= 0) {
            B = G = R = 0;
        } else if (B >= 255 && G >= 255 && R >= 255) {
            B = G = R = 255;
        } else {
            deal(B, G, R);
            deal(G, B, R);
            deal(R, B, G);
        }
    } while (!(inRange(B) && inRange(G) && inRange(R)));
    return colour;
}

Picture SlowFilter(int number, std::int32_t parameter, const Picture& source, RandomGenerator& random) {
    Picture work = source;
    switch (number) {
        case 1:
        case 3:
        case 5:
        case 6:
        case 7:
        case 9:
        case 11:
        case 13:
            Convolve(number, parameter, source, work);
            break;
        case 4:
            Defuse(parameter, work, random);
            break;
        case 8:
        case 10:
            Diagonal(number == 10, parameter, work);
            break;
        case 15:
            Pixelize(parameter, source, work);
            break;
        case 16:
            SwapColours(parameter, source, work);
            break;
        case 17:
            Contrast(parameter, source, work);
            break;
        case 19:
            SharpDither(source, work);
            break;
        case 20:
            OrderedDither(source, work);
            break;
        case 21:
        case 22:
        case 23:
            Diffuse(number, parameter, source, work);
            break;
        case 24:
            Aquarel(source, work);
            break;
        case 25:
        case 26:
        case 27:
            Extremes(number, source, work);
            break;
        case 28:
            Stretch(source, work);
            break;
        case 2:
        case 12:
        case 14:
        case 18:
        case 29:
        case 30:
        case 31:
            PointFilter(number, parameter, source, work, random);
            break;
        default:
            break;
    }
    return work;
}

}  // namespace coinlet::test
