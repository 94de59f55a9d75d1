// JPEGs: what is decoded is a legal picture, and can be written as one of the same size.
#include "media/jpeg.h"

#include "fuzz/judged_picture.h"
#include "fuzz/targets/targets.h"

#include <turbojpeg.h>

namespace coinlet::test {
namespace {

/// A JPEG as other programs write them.
Bytes Foreign(TJPF pixels, TJSAMP sampling, int flags) {
    constexpr int width = 21, height = 18, quality = 70;
    std::vector<unsigned char> bytes(static_cast<std::size_t>(width * height * tjPixelSize[pixels]));
    std::uint32_t value = 0;
    for (unsigned char& byte : bytes)
        byte = static_cast<unsigned char>((value += 40503) >> 8);
    const tjhandle codec = tjInitCompress();
    unsigned char* buffer = nullptr;
    unsigned long size = 0;
    tjCompress2(codec, bytes.data(), width, 0, height, pixels, &buffer, &size, sampling, quality, flags);
    Bytes file(buffer, buffer + size);
    tjFree(buffer);
    tjDestroy(codec);
    return file;
}

std::vector<Bytes> Jpegs() {
    Bitmap bitmap(19, 13);
    Pixel colour = 0;
    for (Pixel& pixel : bitmap.Pixels())
        pixel = spareByte | (colour += 40503);
    const Image image(std::move(bitmap));
    std::vector<Bytes> files{Foreign(TJPF_GRAY, TJSAMP_GRAY, 0), Foreign(TJPF_CMYK, TJSAMP_444, 0),
                             Foreign(TJPF_RGB, TJSAMP_420, TJFLAG_PROGRESSIVE),
                             Foreign(TJPF_RGB, TJSAMP_411, 0)};
    for (const int quality : {5, 60, 100})
        if (auto bytes = EncodeJpegBytes(image, quality)) files.push_back(*std::move(bytes));
    return files;
}

std::string FaultOfCopy(const Image& image, int quality) {
    const auto written = EncodeJpegBytes(image, quality);
    if (!written) return "it can't be written";
    const auto again = DecodeJpegBytes(*written);
    if (!again) return "it can't be read again";
    return again->Width() == image.Width() && again->Height() == image.Height()
               ? ""
               : "another size when it is written and read again";
}

Outcome Read(std::span<const std::uint8_t> file) {
    const auto image = DecodeJpegBytes(file);
    Outcome outcome = Judged(image, file.size());
    // Any quality is taken; those that there aren't count as the nearest.
    if (image && outcome.wrong.empty() && IsSmall(*image)) outcome.wrong = FaultOfCopy(*image, file.back());
    return outcome;
}

}  // namespace

Reader JpegReader() {
    return {"JPEG", Jpegs(), Read};
}

}  // namespace coinlet::test
