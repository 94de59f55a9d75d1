#pragma once

#include "filters/pixel_array.h"

#include <cmath>
#include <cstdint>

namespace coinlet::bench {

// What the plain rules of the filters are written in.

inline int Channel(const PixelArray& picture, int channel, int x, int y) {
    return picture.Row(y)[x * pixelBytes + channel];
}

inline void Set(PixelArray& picture, int channel, int x, int y, int value) {
    picture.Row(y)[x * pixelBytes + channel] = static_cast<std::uint8_t>(value);
}

inline int Clamp(int value) {
    return value < 0 ? 0 : value > 255 ? 255 : value;
}

inline int ClampRound(double value) {
    return Clamp(static_cast<int>(std::nearbyint(value)));
}

inline int ColourChannel(std::int32_t colour, int channel) {
    return colour >> (16 - 8 * channel) & 0xFF;
}

inline int Ring(const PixelArray& picture, int channel, int x, int y) {
    int sum = -Channel(picture, channel, x, y);
    for (int row = y - 1; row <= y + 1; ++row) {
        for (int column = x - 1; column <= x + 1; ++column)
            sum += Channel(picture, channel, column, row);
    }
    return sum;
}

/// Gives each channel but those of a border value(channel, x, y).
template <class Value>
void Walk(PixelArray& work, int border, Value value) {
    for (int y = border; y < work.Height() - border; ++y) {
        for (int x = border; x < work.Width() - border; ++x) {
            for (int channel = 0; channel < colourChannels; ++channel)
                Set(work, channel, x, y, value(channel, x, y));
        }
    }
}

}  // namespace coinlet::bench
