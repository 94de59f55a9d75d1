#pragma once

#include "base/files.h"
#include "surface/image.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <system_error>

namespace coinlet {

/// A picture is decoded if it can be made at all and if its file isn't far too small for it: no file below a
/// megabyte has more than 24 million pixels but to cost time and memory. `width` and `height` are what its
/// header says, `fileSize` is in bytes. To be asked before anything is decoded.
bool IsWorthDecoding(long long width, long long height, std::size_t fileSize);
/// The memory that pictures worth decoding take, in bytes, for readers that make their picture before they
/// tell its size.
std::size_t BytesWorthDecoding(std::size_t fileSize);

/// Decodes and encodes the picture formats that libraries serve.
class PictureCodecs {
public:
    virtual ~PictureCodecs() = default;
    /// A JPEG, or nothing if its header is broken, if it isn't worth decoding, or if it goes over its pixels
    /// more often than a file of its size has reason to. One that is cut short loads as far as it goes.
    virtual std::optional<Image> DecodeJpeg(std::span<const std::uint8_t> bytes) const = 0;
    /// The first frame of a GIF on its logical screen, transparent pixels white; under the same rules.
    virtual std::optional<Image> DecodeGif(std::span<const std::uint8_t> bytes) const = 0;
    /// A PNG, or a WebP, under the same rules, on white. Codecs that don't know them read none.
    virtual std::optional<Image> DecodePng(std::span<const std::uint8_t>) const { return {}; }
    virtual std::optional<Image> DecodeWebp(std::span<const std::uint8_t>) const { return {}; }
    /// A JPEG of that quality (1 to 100) with full colour resolution; nothing for the empty picture.
    virtual std::optional<Bytes> EncodeJpeg(const Image& image, int quality) const = 0;
};

/// A Windows bitmap in memory: 1, 4, 8, 16, 24 or 32 bits a pixel, plain, run-length (RLE4, RLE8) or with bit
/// fields, either row order, any of the headers from 12 to 124 bytes. The fourth byte of 32 bits is ignored.
/// Missing pixels at the end of a file that is cut short are black, pixels that run-lengths skip too. Nothing
/// for a broken header, a size of 0, or a picture that isn't worth decoding.
std::optional<Image> DecodeBmp(std::span<const std::uint8_t> bytes);
/// A Windows bitmap of 24 bits a pixel, uncompressed, bottom row first. Nothing for the empty picture.
std::optional<Bytes> EncodeBmp(const Image& image);

/// A picture from the bytes of a file: what its first bytes say it is, BMP, GIF or JPEG, whatever it is
/// called.
std::optional<Image> DecodePicture(std::span<const std::uint8_t> bytes, const PictureCodecs& codecs);
/// The same for what comes from other programs, which like PNG and WebP as well.
std::optional<Image> DecodeOfferedPicture(std::span<const std::uint8_t> bytes, const PictureCodecs& codecs);
/// A picture from a file. Nothing if it can't be read, is no regular file, or holds no picture.
std::optional<Image> LoadPicture(const std::filesystem::path& path, const PictureCodecs& codecs);
std::optional<Image> LoadOfferedPicture(const std::filesystem::path& path, const PictureCodecs& codecs);
/// Writes an image as a 24-bit bitmap, replacing the file whole or not at all.
[[nodiscard]] std::error_code SavePicture(const Image& image, const std::filesystem::path& path,
                                          FileCalls& calls = SystemFileCalls());

}  // namespace coinlet
