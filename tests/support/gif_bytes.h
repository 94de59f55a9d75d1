#pragma once

#include "base/files.h"

#include <algorithm>
#include <cstdint>

namespace coinlet::test {

/// A GIF put together byte by byte, with a palette of four colours and one frame or more.
struct GifBytes {
    struct Frame {
        int left = 0, top = 0, width = 1, height = 1;
        std::vector<std::uint8_t> indices{};  ///< 0 to 3, in the order of the file.
        int transparent = -1;                 ///< The index that is; -1 for none.
        bool interlaced = false;
    };

    int width = 1, height = 1;
    std::uint8_t background = 0;
    std::vector<std::uint32_t> palette{0x000000, 0xFF0000, 0x00FF00, 0x0000FF};  ///< Four times 0xRRGGBB.
    std::vector<Frame> frames{};

    Bytes File() const {
        Bytes file{'G', 'I', 'F', '8', '9', 'a'};
        Put16(file, {width, height});
        file.insert(file.end(), {0x91, background, 0});  // a palette of 2^(1 + 1)
        for (const auto colour : palette) {
            for (const int shift : {16, 8, 0})
                file.push_back(static_cast<std::uint8_t>(colour >> shift));
        }
        for (const Frame& frame : frames) {
            if (frame.transparent >= 0) {
                const auto index = static_cast<std::uint8_t>(frame.transparent);
                file.insert(file.end(), {0x21, 0xF9, 4, 1, 0, 0, index, 0});
            }
            file.push_back(0x2C);
            Put16(file, {frame.left, frame.top, frame.width, frame.height});
            file.push_back(frame.interlaced ? 0x40 : 0);
            PutPixels(file, frame.indices);
        }
        file.push_back(0x3B);
        return file;
    }

private:
    static void Put16(Bytes& file, std::initializer_list<int> numbers) {
        for (const int number : numbers) {
            file.push_back(static_cast<std::uint8_t>(number));
            file.push_back(static_cast<std::uint8_t>(number >> 8));
        }
    }

    /// Codes of three bits. The reader's table is emptied after every two pixels, before codes get longer, so
    /// that each pixel is its own code.
    static void PutPixels(Bytes& file, const std::vector<std::uint8_t>& indices) {
        constexpr unsigned bits = 3, clear = 4, end = 5;
        Bytes data;
        unsigned pending = 0, count = 0;
        const auto put = [&](unsigned code) {
            pending |= code << count;
            for (count += bits; count >= 8; count -= 8, pending >>= 8)
                data.push_back(static_cast<std::uint8_t>(pending));
        };
        for (std::size_t i = 0; i < indices.size(); ++i) {
            if (i % 2 == 0) put(clear);
            put(indices[i]);
        }
        put(end);
        if (count > 0) data.push_back(static_cast<std::uint8_t>(pending));

        file.push_back(bits - 1);
        constexpr std::size_t largestBlock = 255;
        for (std::size_t at = 0; at < data.size(); at += largestBlock) {
            const std::size_t size = std::min(largestBlock, data.size() - at);
            file.push_back(static_cast<std::uint8_t>(size));
            const auto from = data.begin() + static_cast<std::ptrdiff_t>(at);
            file.insert(file.end(), from, from + static_cast<std::ptrdiff_t>(size));
        }
        file.push_back(0);
    }
};

}  // namespace coinlet::test
