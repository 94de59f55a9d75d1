// Pictures from anywhere: what a click on a camera's picture costs beside the decoder alone, in time and in
// memory; its sizes and a step of a scroll bar; a folder of 10,000 files.

#include "libraries/dialog_form.h"
#include "media/media_codecs.h"
#include "support/world.h"

#include <turbojpeg.h>

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <string>

namespace coinlet {
namespace {

constexpr int cameraWidth = 6000, cameraHeight = 4000;  // 24 megapixels
constexpr double decodedBytes = 4.0 * cameraWidth * cameraHeight;

/// Soft shades with a grain, as a camera sees them.
Bytes CameraPicture() {
    Bitmap bitmap(cameraWidth, cameraHeight);
    std::uint32_t grain = 1;
    for (int y = 0; y < cameraHeight; ++y) {
        for (int x = 0; x < cameraWidth; ++x) {
            grain = grain * 1664525U + 1013904223U;
            const int noise = static_cast<int>(grain >> 28U);
            bitmap.Row(y)[x] =
                ToPixel(RGB((x / 25 + noise) % 256, (y / 17 + noise) % 256, (x + y) / 50 + noise));
        }
    }
    const tjhandle codec = tjInitCompress();
    unsigned char* buffer = nullptr;
    unsigned long size = 0;
    tjCompress2(codec, reinterpret_cast<const unsigned char*>(bitmap.Row(0)), cameraWidth, 0, cameraHeight,
                TJPF_BGRX, &buffer, &size, TJSAMP_420, 92, 0);
    Bytes bytes(buffer, buffer + size);
    tjFree(buffer);
    tjDestroy(codec);
    return bytes;
}

/// The dialog over a folder of the user's.
class Import : test::World {
public:
    explicit Import(const std::function<void(const fs::path&)>& fill) {
        fill(folder / "Pictures");
        dialog_ = std::make_unique<DialogForm>(mediaContext_);
        platform.ShowMain(*dialog_);
        dialog_->Dir1.UserActivates();
    }
    DialogForm& Dialog() { return *dialog_; }

private:
    MediaCodecs mediaCodecs_;
    Services mediaServices_{folder / "app", platform,  fonts,   mediaCodecs_, clock,
                            desktop,        clipboard, printer, screenGrab};
    Context mediaContext_{mediaServices_, session, main, plaatjes};
    std::unique_ptr<DialogForm> dialog_;
};

void WriteCameraPicture(const fs::path& folder) {
    const Bytes bytes = CameraPicture();
    std::ofstream(folder / "IMG_0001.JPG", std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}
Import& CameraImport() {
    static Import import(WriteCameraPicture);
    return import;
}

/// The most memory in use since the last call, in bytes.
double PeakMemory() {
    std::ifstream status("/proc/self/status");
    double kilobytes = 0;
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmHWM:")) kilobytes = std::stod(line.substr(line.find_first_of("0123456789")));
    std::ofstream("/proc/self/clear_refs") << 5;
    return kilobytes * 1024;
}

void DecoderAlone(benchmark::State& state) {
    const Bytes bytes = CameraPicture();
    for ([[maybe_unused]] auto _ : state) {
        const tjhandle codec = tjInitDecompress();
        const auto pixels = std::make_unique_for_overwrite<unsigned char[]>(std::size_t(decodedBytes));
        tjDecompress2(codec, bytes.data(), bytes.size(), pixels.get(), cameraWidth, 0, cameraHeight,
                      TJPF_BGRA, TJFLAG_ACCURATEDCT);
        tjDestroy(codec);
        benchmark::DoNotOptimize(pixels.get());
    }
}
BENCHMARK(DecoderAlone)->Unit(benchmark::kMillisecond);

void ClickToShown(benchmark::State& state) {
    DialogForm& dialog = CameraImport().Dialog();
    PeakMemory();
    for ([[maybe_unused]] auto _ : state)
        dialog.List1.UserPicks(0);
    // From the second click on the former picture is still there until the new one is.
    state.counters["peak_in_pictures"] = PeakMemory() / decodedBytes;
}
BENCHMARK(ClickToShown)->Unit(benchmark::kMillisecond);

void TwiceTheSize(benchmark::State& state) {
    DialogForm& dialog = CameraImport().Dialog();
    dialog.List1.UserPicks(0);
    PeakMemory();
    for ([[maybe_unused]] auto _ : state)
        dialog.SizePic[8].Click();
    state.counters["peak_in_pictures"] = PeakMemory() / decodedBytes;
}
BENCHMARK(TwiceTheSize)->Unit(benchmark::kMillisecond);

void ScrollStepAtTwiceTheSize(benchmark::State& state) {
    DialogForm& dialog = CameraImport().Dialog();
    dialog.List1.UserPicks(0);
    dialog.SizePic[8].Click();
    constexpr int steps = 1000;
    int step = 0;
    for ([[maybe_unused]] auto _ : state)
        dialog.VScroll1.SetValue(dialog.VScroll1.Max() / steps * (++step % steps));
}
BENCHMARK(ScrollStepAtTwiceTheSize)->Unit(benchmark::kMillisecond);

void FolderOf10000Files(benchmark::State& state) {
    Import import([](const fs::path& folder) {
        for (int i = 0; i < 10000; ++i)
            std::ofstream(folder / ("IMG_2026_" + std::to_string(i * 7919 % 10000) + ".jpg"));
    });
    for ([[maybe_unused]] auto _ : state)
        import.Dialog().Dir1.UserActivates();
    if (import.Dialog().List1.ListCount() != 10000) state.SkipWithError("files are missing");
}
BENCHMARK(FolderOf10000Files)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace coinlet
