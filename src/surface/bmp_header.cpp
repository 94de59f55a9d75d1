#include "surface/bmp_header.h"

#include "surface/image.h"

#include <algorithm>

namespace coinlet::bmp {

namespace {

using File = std::span<const std::uint8_t>;

/// Headers have grown over the years; the first 40 bytes of all but the oldest are alike. 16 and 64 are the
/// short and the long form of the second OS/2 one.
constexpr std::array<std::uint32_t, 8> headerSizes{12, 16, 40, 52, 56, 64, 108, 124};
constexpr std::uint32_t firstWithMasks = 52;
constexpr std::uint32_t longOs2Header = 64;

/// A depth and the compression that it may have.
struct Coding {
    unsigned bits;
    Compression compression;

    friend bool operator==(const Coding&, const Coding&) = default;
};
constexpr std::array<Coding, 12> codings{{{1, Compression::None},
                                          {4, Compression::None},
                                          {8, Compression::None},
                                          {16, Compression::None},
                                          {24, Compression::None},
                                          {32, Compression::None},
                                          {4, Compression::RunLength4},
                                          {8, Compression::RunLength8},
                                          {16, Compression::BitFields},
                                          {32, Compression::BitFields},
                                          {16, Compression::BitFieldsWithAlpha},
                                          {32, Compression::BitFieldsWithAlpha}}};

bool HasBitFields(const Header& header) {
    return header.compression == Compression::BitFields ||
           header.compression == Compression::BitFieldsWithAlpha;
}

/// The size and coding; false if they are none that a picture can have.
bool ReadShape(File info, std::uint32_t headerSize, Header& header) {
    long long width = 0, height = 0;
    if (headerSize == coreHeaderSize) {
        width = Read<std::uint16_t>(info, 4);
        height = Read<std::uint16_t>(info, 6);
        header.bits = Read<std::uint16_t>(info, 10);
    } else {
        width = Read<std::int32_t>(info, 4);
        height = Read<std::int32_t>(info, 8);
        header.bits = Read<std::uint16_t>(info, 14);
        if (headerSize >= infoHeaderSize)
            header.compression = static_cast<Compression>(Read<std::uint32_t>(info, 16));
        header.topDown = height < 0;
        height = header.topDown ? -height : height;
    }
    if (width == 0 || height == 0 || !IsPictureSize(width, height)) return false;
    header.width = static_cast<int>(width);
    header.height = static_cast<int>(height);

    // There the number 3 stands for a coding of faxes.
    if (headerSize == longOs2Header && HasBitFields(header)) return false;
    return std::find(codings.begin(), codings.end(), Coding{header.bits, header.compression}) !=
           codings.end();
}

/// Sets the masks and returns how many bytes they take behind a header that has no room for them.
std::size_t ReadMasks(File info, std::uint32_t headerSize, Header& header) {
    if (HasBitFields(header)) {
        constexpr std::size_t masks = 40;  // from the start of the header, be it inside or behind it
        header.redMask = Read<std::uint32_t>(info, masks);
        header.greenMask = Read<std::uint32_t>(info, masks + 4);
        header.blueMask = Read<std::uint32_t>(info, masks + 8);
        if (headerSize >= firstWithMasks) return 0;
        return header.compression == Compression::BitFieldsWithAlpha ? 16 : 12;
    }
    if (header.bits == 16) {
        header.redMask = 0x7C00;
        header.greenMask = 0x03E0;
        header.blueMask = 0x001F;
    }
    return 0;
}

void ReadPalette(File entries, std::size_t entrySize, std::size_t count, Header& header) {
    count = std::min({count, header.palette.size(), entries.size() / entrySize});
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint8_t* entry = entries.data() + i * entrySize;
        header.palette[i] = ToPixel(RGB(entry[2], entry[1], entry[0]));
    }
}

}  // namespace

std::optional<Header> ReadHeader(File file) {
    if (file.size() < fileHeaderSize + coreHeaderSize || file[0] != 'B' || file[1] != 'M')
        return std::nullopt;
    const File info = file.subspan(fileHeaderSize);
    const auto headerSize = Read<std::uint32_t>(info, 0);
    if (std::find(headerSizes.begin(), headerSizes.end(), headerSize) == headerSizes.end() ||
        info.size() < headerSize)
        return std::nullopt;

    Header header;
    header.palette.fill(ToPixel(black));
    if (!ReadShape(info, headerSize, header)) return std::nullopt;
    const std::size_t masksBehind = ReadMasks(info, headerSize, header);
    if (info.size() < headerSize + masksBehind) return std::nullopt;

    // A palette is a must up to 8 bits; deeper pictures may bring one as a hint, which is passed over.
    const std::size_t paletteStart = fileHeaderSize + headerSize + masksBehind;
    const std::size_t entrySize = headerSize == coreHeaderSize ? 3 : 4;
    const std::size_t mostEntries = header.bits <= 8 ? std::size_t{1} << header.bits : 0;
    std::size_t entries = headerSize >= infoHeaderSize ? Read<std::uint32_t>(info, 32) : 0;
    if (mostEntries > 0) entries = entries == 0 ? mostEntries : std::min(entries, mostEntries);

    std::size_t pixelStart = Read<std::uint32_t>(file, 10);
    if (pixelStart < paletteStart || pixelStart > file.size()) {  // It can't be meant; they follow at once.
        pixelStart = paletteStart + entries * entrySize;
        if (pixelStart > file.size()) pixelStart = mostEntries > 0 ? file.size() : paletteStart;
    }
    ReadPalette(file.subspan(paletteStart, pixelStart - paletteStart), entrySize,
                std::min(entries, mostEntries), header);
    header.pixels = file.subspan(pixelStart);
    return header;
}

}  // namespace coinlet::bmp
