#pragma once

#include "fuzz/reader.h"
#include "surface/codecs.h"

#include <algorithm>
#include <optional>

namespace coinlet::test {

/// What a decoder made of a file of so many bytes. Looks at every pixel, too: one outside its memory is one
/// that the sanitizers see.
inline Outcome Judged(const std::optional<Image>& image, std::size_t fileSize) {
    if (!image) return {};
    if (image->Empty()) return {true, "a picture of no pixels"};
    if (!IsWorthDecoding(image->Width(), image->Height(), fileSize))
        return {true, "a picture larger than may be"};
    const auto pixels = image->Shared()->Pixels();
    const bool opaque = std::all_of(pixels.begin(), pixels.end(),
                                    [](Pixel pixel) { return (pixel & spareByte) == spareByte; });
    return {true, opaque ? "" : "a spare byte that isn't 255"};
}

/// True if it can be written and read again within moments.
inline bool IsSmall(const Image& image) {
    constexpr long long pixels = 100'000;
    return static_cast<long long>(image.Width()) * image.Height() <= pixels;
}

/// A little-endian number of a file's header, which is there.
inline int HeaderNumber(std::span<const std::uint8_t> file, std::size_t place) {
    return file[place] | file[place + 1] << 8;
}

}  // namespace coinlet::test
