#include "base/file_reading.h"
#include "surface/codecs.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace coinlet {

namespace {

/// No file of a picture that may be made is larger: its pixels, and room for the headers.
constexpr std::size_t largestFile = maximumPictureBytes + (std::size_t{1} << 20);

using Decode = std::optional<Image> (*)(std::span<const std::uint8_t>, const PictureCodecs&);
struct Format {
    std::string_view firstBytes;
    Decode decode;
};
constexpr std::array<Format, 4> formats{{
    {"BM", [](std::span<const std::uint8_t> bytes, const PictureCodecs&) { return DecodeBmp(bytes); }},
    {"GIF87a", [](std::span<const std::uint8_t> bytes,
                  const PictureCodecs& codecs) { return codecs.DecodeGif(bytes); }},
    {"GIF89a", [](std::span<const std::uint8_t> bytes,
                  const PictureCodecs& codecs) { return codecs.DecodeGif(bytes); }},
    {"\xFF\xD8\xFF", [](std::span<const std::uint8_t> bytes,
                        const PictureCodecs& codecs) { return codecs.DecodeJpeg(bytes); }},
}};

bool StartsWith(std::span<const std::uint8_t> bytes, std::string_view start) {
    const auto wanted = AsBytes(start);
    return bytes.size() >= wanted.size() && std::equal(wanted.begin(), wanted.end(), bytes.begin());
}

const Format* FormatOf(std::span<const std::uint8_t> bytes) {
    const auto* format = std::find_if(formats.begin(), formats.end(), [&](const Format& candidate) {
        return StartsWith(bytes, candidate.firstBytes);
    });
    return format == formats.end() ? nullptr : format;
}

bool IsPng(std::span<const std::uint8_t> bytes) {
    return StartsWith(bytes, "\x89PNG\r\n\x1A\n");
}

bool IsWebp(std::span<const std::uint8_t> bytes) {
    constexpr std::size_t afterLength = 8;  // A RIFF file says its length before it says what it is.
    return StartsWith(bytes, "RIFF") && bytes.size() > afterLength &&
           StartsWith(bytes.subspan(afterLength), "WEBP");
}

/// The bytes of a file that is a picture as far as its first ones tell; other files are read no further.
template <class IsPicture>
std::optional<Bytes> ReadPicture(const fs::path& path, IsPicture isPicture) {
    constexpr std::size_t head = 12;
    const auto start = ReadStart(path, head);
    return start && isPicture(std::span(start->bytes)) ? ReadFile(path, largestFile) : std::nullopt;
}

}  // namespace

std::size_t BytesWorthDecoding(std::size_t fileSize) {
    constexpr std::size_t smallFile = 1'000'000, mostPixelsOfSmallFile = 24'000'000;
    return fileSize >= smallFile ? maximumPictureBytes : mostPixelsOfSmallFile * sizeof(Pixel);
}

bool IsWorthDecoding(long long width, long long height, std::size_t fileSize) {
    return IsPictureSize(width, height) &&
           static_cast<std::size_t>(width * height) * sizeof(Pixel) <= BytesWorthDecoding(fileSize);
}

std::optional<Image> DecodePicture(std::span<const std::uint8_t> bytes, const PictureCodecs& codecs) {
    const Format* format = FormatOf(bytes);
    return format ? format->decode(bytes, codecs) : std::nullopt;
}

std::optional<Image> DecodeOfferedPicture(std::span<const std::uint8_t> bytes, const PictureCodecs& codecs) {
    if (IsPng(bytes)) return codecs.DecodePng(bytes);
    if (IsWebp(bytes)) return codecs.DecodeWebp(bytes);
    return DecodePicture(bytes, codecs);
}

std::optional<Image> LoadPicture(const fs::path& path, const PictureCodecs& codecs) {
    const auto bytes =
        ReadPicture(path, [](std::span<const std::uint8_t> head) { return FormatOf(head) != nullptr; });
    return bytes ? DecodePicture(*bytes, codecs) : std::nullopt;
}

std::optional<Image> LoadOfferedPicture(const fs::path& path, const PictureCodecs& codecs) {
    const auto bytes = ReadPicture(path, [](std::span<const std::uint8_t> head) {
        return FormatOf(head) != nullptr || IsPng(head) || IsWebp(head);
    });
    return bytes ? DecodeOfferedPicture(*bytes, codecs) : std::nullopt;
}

std::error_code SavePicture(const Image& image, const fs::path& path, FileCalls& calls) {
    const auto bytes = EncodeBmp(image);
    return bytes ? ReplaceFile(path, *bytes, calls) : std::make_error_code(std::errc::invalid_argument);
}

}  // namespace coinlet
