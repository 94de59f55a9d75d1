// GIFs: what is decoded is a legal picture, and as large as a logical screen that may be.
#include "media/gif.h"

#include "fuzz/judged_picture.h"
#include "fuzz/targets/targets.h"
#include "fuzz/toolkit.h"
#include "support/gif_bytes.h"

namespace coinlet::test {
namespace {

std::vector<Bytes> Gifs() {
    std::vector<std::uint8_t> indices;
    for (unsigned i = 0; i < 99; ++i)
        indices.push_back(i * i / 3 % 4);
    return {GifBytes{.width = 11, .height = 9, .frames = {{0, 0, 11, 9, indices}}}.File(),
            GifBytes{.width = 20, .height = 20, .frames = {{3, 5, 9, 11, indices, 2, true}}}.File(),
            GifBytes{.width = 9, .height = 9, .frames = {{4, 4, 9, 11, indices}, {0, 0, 11, 9, indices, 1}}}
                .File()};
}

/// A screen of no size, or one that is far larger than its frame, ends with the frame.
std::string FaultOfSize(std::span<const std::uint8_t> file, const Image& image) {
    constexpr std::size_t widthAt = 6, heightAt = 8;
    constexpr int usualScreen = 2000;
    const auto isScreen = [&](int side, std::size_t place) {
        const int told = HeaderNumber(file, place);
        return side == told || told == 0 || told > usualScreen;
    };
    return isScreen(image.Width(), widthAt) && isScreen(image.Height(), heightAt)
               ? ""
               : "another size than its logical screen";
}

Outcome Read(std::span<const std::uint8_t> file) {
    const auto image = DecodeGifBytes(file);
    Outcome outcome = Judged(image, file.size());
    if (image && outcome.wrong.empty()) outcome.wrong = FaultOfSize(file, *image);
    return outcome;
}

}  // namespace

Reader GifReader() {
    SilenceToolkit();
    return {"GIF", Gifs(), Read};
}

}  // namespace coinlet::test
