// A stored design, 700 by 500 pixels, into the bytes of a bitmap file and back, and through a file.
#include "support/temporary_folder.h"
#include "surface/codecs.h"

#include <benchmark/benchmark.h>

namespace coinlet {
namespace {

Image Design() {
    Bitmap bitmap(700, 500);
    Pixel colour = 0;
    for (Pixel& pixel : bitmap.Pixels())
        pixel = spareByte | (colour += 40503);
    return Image(std::move(bitmap));
}

/// Nobody asks these for a GIF or a JPEG.
class NoCodecs final : public PictureCodecs {
public:
    std::optional<Image> DecodeJpeg(std::span<const std::uint8_t>) const override { return std::nullopt; }
    std::optional<Image> DecodeGif(std::span<const std::uint8_t>) const override { return std::nullopt; }
    std::optional<Bytes> EncodeJpeg(const Image&, int) const override { return std::nullopt; }
};

void EncodeDesign(benchmark::State& state) {
    const Image design = Design();
    for ([[maybe_unused]] auto run : state)
        benchmark::DoNotOptimize(EncodeBmp(design));
}
BENCHMARK(EncodeDesign)->Unit(benchmark::kMicrosecond);

void DecodeDesign(benchmark::State& state) {
    const Bytes bytes = EncodeBmp(Design()).value_or(Bytes());
    for ([[maybe_unused]] auto run : state)
        benchmark::DoNotOptimize(DecodeBmp(bytes));
}
BENCHMARK(DecodeDesign)->Unit(benchmark::kMicrosecond);

void SaveDesign(benchmark::State& state) {
    const test::TemporaryFolder folder;
    const Image design = Design();
    for ([[maybe_unused]] auto run : state)
        if (SavePicture(design, folder / "design.pat")) state.SkipWithError("the design can't be written");
}
BENCHMARK(SaveDesign)->Unit(benchmark::kMicrosecond)->UseRealTime();

void LoadDesign(benchmark::State& state) {
    const test::TemporaryFolder folder;
    if (SavePicture(Design(), folder / "design.pat")) state.SkipWithError("the design can't be written");
    const NoCodecs codecs;
    for ([[maybe_unused]] auto run : state)
        benchmark::DoNotOptimize(LoadPicture(folder / "design.pat", codecs));
}
BENCHMARK(LoadDesign)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace coinlet
