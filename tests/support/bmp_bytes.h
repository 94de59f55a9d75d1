#pragma once

#include "base/files.h"

#include <cstdint>
#include <initializer_list>
#include <utility>

namespace coinlet::test {

/// A bitmap file put together byte by byte, so that a test sees what stands in it.
struct BmpBytes {
    std::uint32_t headerSize = 40;
    std::int32_t width = 1, height = 1;
    std::uint16_t bits = 24;
    std::uint32_t compression = 0;
    std::uint32_t coloursUsed = 0;
    std::vector<std::uint32_t> masks{};     ///< Red, green, blue (and alpha), inside or behind the header.
    std::vector<std::uint32_t> palette{};   ///< 0xRRGGBB.
    Bytes gap{};                            ///< Between the palette and the pixels.
    std::optional<std::uint32_t> offset{};  ///< Of the pixels, if it is to be another than the true one.
    Bytes pixels{};

    Bytes File() const {
        Bytes file{'B', 'M'};
        const auto put = [&file](std::uint32_t number, int bytes) {
            for (int i = 0; i < bytes; ++i)
                file.push_back(static_cast<std::uint8_t>(number >> 8 * i));
        };
        const bool core = headerSize == 12;
        const std::size_t masksBehind = headerSize < 52 ? masks.size() * 4 : 0;
        const std::size_t start =
            14 + headerSize + masksBehind + palette.size() * (core ? 3 : 4) + gap.size();
        put(static_cast<std::uint32_t>(start + pixels.size()), 4);
        put(0, 4);
        put(offset.value_or(static_cast<std::uint32_t>(start)), 4);
        put(headerSize, 4);
        put(static_cast<std::uint32_t>(width), core ? 2 : 4);
        put(static_cast<std::uint32_t>(height), core ? 2 : 4);
        put(1, 2);
        put(bits, 2);
        if (headerSize >= 40) {
            put(compression, 4);
            put(0, 4);
            put(2835, 4);
            put(2835, 4);
            put(coloursUsed, 4);
            put(0, 4);
        }
        for (const auto mask : masks)
            put(mask, 4);
        while (file.size() < 14 + headerSize)
            file.push_back(0);
        for (const auto entry : palette)
            put(entry, core ? 3 : 4);
        file.insert(file.end(), gap.begin(), gap.end());
        file.insert(file.end(), pixels.begin(), pixels.end());
        return file;
    }
};

}  // namespace coinlet::test
