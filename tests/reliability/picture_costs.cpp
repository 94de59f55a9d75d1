// picture_costs [PATIENCE]
//
// What it costs to read pictures that are made to cost much: none of a file below a megabyte may take more
// than 300 ms of the processor, or 300 MB above what the program held before; and a camera's picture of 50
// million pixels loads all the same. Each is read in a process of its own. Prints a table; exit status 1 if
// something cost too much, or if a picture that is none of these was refused. With PATIENCE times may be so
// many times as long, for machines that are slow.

#include "media/media_codecs.h"
#include "support/bmp_bytes.h"
#include "support/gif_bytes.h"
#include "support/jpeg_scans.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>

#include <turbojpeg.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace coinlet::test {
namespace {

constexpr std::size_t megabyte = 1000000;
constexpr double mostMilliseconds = 300, mostMegabytes = 300;

/// A kilobyte of /proc/self/status.
std::size_t Status(const std::string& key) {
    std::ifstream file("/proc/self/status");
    for (std::string word; file >> word;) {
        if (word != key + ":") continue;
        std::size_t kilobytes = 0;
        file >> kilobytes;
        return kilobytes;
    }
    throw std::runtime_error("the system doesn't tell " + key);
}

struct Cost {
    double milliseconds = 0, megabytes = 0;
    int width = 0, height = 0;  ///< 0: refused.
};

Cost ReadHere(const Bytes& file) {
    std::ofstream("/proc/self/clear_refs") << 5;  // The highest mark begins anew.
    const std::size_t before = Status("VmRSS");
    const std::clock_t begin = std::clock();
    const auto picture = DecodeOfferedPicture(file, MediaCodecs());
    Cost cost;
    cost.milliseconds = 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    cost.megabytes = (static_cast<double>(Status("VmHWM")) - static_cast<double>(before)) / 1024;
    if (picture) {
        cost.width = picture->Width();
        cost.height = picture->Height();
    }
    return cost;
}

/// In a process of its own, so that nothing is left of the one before.
Cost Read(const Bytes& file) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
    const pid_t child = ::fork();
    if (child == 0) {
        Cost cost = ReadHere(file);
        const auto written = ::write(ends[1], &cost, sizeof cost);
        ::_exit(written == static_cast<ssize_t>(sizeof cost) ? 0 : 1);
    }
    ::close(ends[1]);
    Cost cost;
    const auto got = ::read(ends[0], &cost, sizeof cost);
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    if (got != static_cast<ssize_t>(sizeof cost) || status != 0)
        throw std::runtime_error("the reader crashed");
    return cost;
}

// --- Pictures that cost much -------------------------------------------------------------------------------

/// A JPEG of stripes, of so much noise that it has some size.
Bytes Jpeg(int width, int height, bool progressive, int noise) {
    const auto columns = static_cast<std::size_t>(width);
    std::vector<unsigned char> pixels(columns * static_cast<std::size_t>(height));
    std::uint32_t dice = 1;
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        dice = dice * 1664525U + 1013904223U;
        const auto thrown = noise > 0 ? static_cast<int>(dice >> 16U) % noise : 0;
        pixels[i] =
            static_cast<unsigned char>(noise > 0 ? static_cast<int>(i % columns / 64 % 64) + thrown : 9);
    }
    const std::unique_ptr<void, int (*)(tjhandle)> codec(tjInitCompress(), tjDestroy);
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    if (tjCompress2(codec.get(), pixels.data(), width, 0, height, TJPF_GRAY, &bytes, &size, TJSAMP_GRAY, 85,
                    progressive ? TJFLAG_PROGRESSIVE : 0) != 0)
        throw std::runtime_error("no JPEG");
    Bytes file(bytes, bytes + size);
    tjFree(bytes);
    return file;
}

Bytes Png(int width, int height) {
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    if (!picture.save(&file, "PNG")) throw std::runtime_error("no PNG");
    return {file.data().begin(), file.data().end()};
}

struct Picture {
    std::string name;
    Bytes file;
    bool mustLoad = false;
};

std::vector<Picture> Pictures() {
    std::vector<Picture> pictures;
    for (const auto& [width, height] : {std::pair{16384, 8192}, {6000, 4000}}) {
        const std::string size = std::to_string(width) + " x " + std::to_string(height);
        for (const std::uint16_t bits : std::array<std::uint16_t, 3>{1, 8, 24}) {
            pictures.push_back(
                {"BMP " + size + ", " + std::to_string(bits) + " bits, header alone",
                 BmpBytes{.width = width, .height = height, .bits = bits, .palette = {0, 1}}.File()});
        }
        pictures.push_back({"BMP " + size + ", run-lengths", BmpBytes{.width = width,
                                                                      .height = height,
                                                                      .bits = 8,
                                                                      .compression = 1,
                                                                      .palette = {0, 1},
                                                                      .pixels = Bytes(900000, 0xFF)}
                                                                 .File()});
        pictures.push_back({"GIF " + size + ", no frame", GifBytes{.width = width, .height = height}.File()});
        pictures.push_back(
            {"GIF " + size + ", small frame",
             GifBytes{.width = width, .height = height, .frames = {{0, 0, 1, 1, {1}}}}.File()});
        const Bytes jpeg = Jpeg(width, height, true, 0);
        for (const int scans : {0, 4, 10, 40, 480}) {
            const Bytes file = WithFurtherScans(jpeg, scans);
            if (file.size() < megabyte)
                pictures.push_back({"JPEG " + size + ", " + std::to_string(scans) + " scans more", file});
        }
        pictures.push_back({"JPEG " + size + ", one scan", Jpeg(width, height, false, 0)});
        pictures.push_back({"PNG " + size, Png(width, height)});
    }
    pictures.push_back({"GIF 8192 x 8192, no frame", GifBytes{.width = 8192, .height = 8192}.File()});
    const Bytes usual = Jpeg(1000, 1000, true, 0);
    for (const int scans : {100, 240, 480}) {
        pictures.push_back(
            {"JPEG 1000 x 1000, " + std::to_string(scans) + " scans more", WithFurtherScans(usual, scans)});
    }
    pictures.push_back({"JPEG 8688 x 5792, a camera's", Jpeg(8688, 5792, false, 40), true});
    return pictures;
}

bool Run(double patience) {
    bool isGood = true;
    std::printf("%-46s %10s %14s %8s %8s\n", "picture", "bytes", "read as", "ms", "MB");
    for (const Picture& picture : Pictures()) {
        const Cost cost = Read(picture.file);
        const bool isSmall = picture.file.size() < megabyte;
        const bool isCheap =
            cost.milliseconds <= mostMilliseconds * patience && cost.megabytes <= mostMegabytes;
        const bool isFine = (!isSmall || isCheap) && (!picture.mustLoad || cost.width > 0);
        const std::string outcome =
            cost.width > 0 ? std::to_string(cost.width) + " x " + std::to_string(cost.height) : "refused";
        std::printf("%-46s %10zu %14s %8.0f %8.0f%s\n", picture.name.c_str(), picture.file.size(),
                    outcome.c_str(), cost.milliseconds, cost.megabytes, isFine ? "" : "  fault");
        isGood = isGood && isFine;
    }
    return isGood;
}

}  // namespace
}  // namespace coinlet::test

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication toolkit(argc, argv);
    try {
        return coinlet::test::Run(argc > 1 ? std::atof(argv[1]) : 1) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& fault) {
        std::printf("fault: %s\n", fault.what());
        return EXIT_FAILURE;
    }
}
