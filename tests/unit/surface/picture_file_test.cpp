// A picture is what its first bytes say; what is no picture loads as none.
#include "support/temporary_folder.h"
#include "surface/codecs.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace coinlet {
namespace {

using test::TemporaryFolder;

Image Filled(int width, Colour colour) {
    return Image(Bitmap(width, 1, ToPixel(colour)));
}

/// Codecs whose pictures tell which of them was asked: a GIF is one pixel wide, a JPEG two.
class TellingCodecs final : public PictureCodecs {
public:
    std::optional<Image> DecodeGif(std::span<const std::uint8_t>) const override { return Filled(1, white); }
    std::optional<Image> DecodeJpeg(std::span<const std::uint8_t>) const override { return Filled(2, white); }
    std::optional<Bytes> EncodeJpeg(const Image&, int) const override { return std::nullopt; }
};

std::string FileOf(const Image& image) {
    const auto bytes = EncodeBmp(image);
    return bytes ? std::string(bytes->begin(), bytes->end()) : std::string();
}

TEST(DecodePicture, ChoosesByTheFirstBytes) {
    const TellingCodecs codecs;
    EXPECT_EQ(DecodePicture(AsBytes("GIF87a..."), codecs), Filled(1, white));
    EXPECT_EQ(DecodePicture(AsBytes("GIF89a..."), codecs), Filled(1, white));
    EXPECT_EQ(DecodePicture(AsBytes("\xFF\xD8\xFF\xE0"), codecs), Filled(2, white));
    EXPECT_EQ(DecodePicture(AsBytes(FileOf(Filled(3, white))), codecs), Filled(3, white));
    for (const char* text : {"", "G", "GIF88a", "GIF8", "gif89a", "\xFF\xD8", "BA", "\x89PNG\r\n", "hello"})
        EXPECT_FALSE(DecodePicture(AsBytes(text), codecs)) << text;
}

TEST(DecodePicture, KnowsMoreFormatsOfOtherPrograms) {
    class WebCodecs final : public PictureCodecs {
    public:
        std::optional<Image> DecodeGif(std::span<const std::uint8_t>) const override { return {}; }
        std::optional<Image> DecodeJpeg(std::span<const std::uint8_t>) const override { return {}; }
        std::optional<Image> DecodePng(std::span<const std::uint8_t>) const override {
            return Filled(3, white);
        }
        std::optional<Image> DecodeWebp(std::span<const std::uint8_t>) const override {
            return Filled(4, white);
        }
        std::optional<Bytes> EncodeJpeg(const Image&, int) const override { return {}; }
    };
    using namespace std::string_view_literals;
    const WebCodecs codecs;
    const auto png = AsBytes("\x89PNG\r\n\x1A\n..."sv), webp = AsBytes("RIFF\x04\0\0\0WEBPVP8 "sv);
    EXPECT_EQ(DecodeOfferedPicture(png, codecs), Filled(3, white));
    EXPECT_EQ(DecodeOfferedPicture(webp, codecs), Filled(4, white));
    EXPECT_EQ(DecodeOfferedPicture(AsBytes(FileOf(Filled(5, white))), codecs), Filled(5, white));
    EXPECT_FALSE(DecodePicture(png, codecs));
    for (const auto text : {"RIFF\x04\0\0\0WAVE"sv, "RIFF"sv, "RIFF\x04\0\0\0WEB"sv, "\x89PNG"sv, ""sv})
        EXPECT_FALSE(DecodeOfferedPicture(AsBytes(text), codecs)) << text;
    // Codecs that know neither.
    EXPECT_FALSE(DecodeOfferedPicture(png, TellingCodecs()));
    EXPECT_FALSE(DecodeOfferedPicture(webp, TellingCodecs()));
}

TEST(LoadPicture, DoesNotHeedTheExtension) {
    const TemporaryFolder folder;
    const TellingCodecs codecs;
    EXPECT_EQ(LoadPicture(folder.Write("bitmap.gif", FileOf(Filled(3, 0x123456))), codecs),
              Filled(3, 0x123456));
    EXPECT_EQ(LoadPicture(folder.Write("gif.jpg", "GIF89a"), codecs), Filled(1, white));
    EXPECT_EQ(LoadPicture(folder.Write("jpeg", "\xFF\xD8\xFF"), codecs), Filled(2, white));
}

TEST(LoadPicture, GivesNothingForWhatIsNoPicture) {
    const TemporaryFolder folder;
    const TellingCodecs codecs;
    folder.Write("text.bmp", "This is a text.");
    folder.Write("empty.bmp", "");
    fs::create_directory(folder / "folder.bmp");
    fs::create_symlink("gone", folder / "broken.bmp");
    ASSERT_EQ(::mkfifo((folder / "pipe.bmp").c_str(), 0600), 0);
    for (const char* name :
         {"text.bmp", "empty.bmp", "folder.bmp", "broken.bmp", "pipe.bmp", "missing.bmp", ""}) {
        EXPECT_FALSE(LoadPicture(folder / name, codecs)) << name;
    }
}

TEST(LoadPicture, LeavesAloneWhatIsLargerThanAnyPicture) {
    const TemporaryFolder folder;
    const auto path = folder.Write("picture.bmp", FileOf(Filled(2, 0x123456)));
    // 256 mebibytes of pixels and one for headers; what was never written takes no room on the disk.
    fs::resize_file(path, (std::uintmax_t{257} << 20) + 1);
    EXPECT_FALSE(LoadPicture(path, TellingCodecs()));
    fs::resize_file(path, std::uintmax_t{1} << 20);
    EXPECT_EQ(LoadPicture(path, TellingCodecs()), Filled(2, 0x123456));
}

/// How many bytes this process has read so far; nothing where the system doesn't count them.
std::optional<long long> BytesRead() {
    std::ifstream counters("/proc/self/io");
    std::string name;
    long long count = 0;
    while (counters >> name >> count)
        if (name == "rchar:") return count;
    return std::nullopt;
}

TEST(LoadPicture, ReadsNoMoreThanTheHeadOfWhatIsNoPicture) {
    const TemporaryFolder folder;
    const auto film = folder.Write("film.mkv", "no picture");
    fs::resize_file(film, std::uintmax_t{100} << 20);
    const auto before = BytesRead();
    if (!before) GTEST_SKIP() << "no counters here";
    EXPECT_FALSE(LoadPicture(film, TellingCodecs()));
    EXPECT_FALSE(LoadOfferedPicture(film, TellingCodecs()));
    EXPECT_LT(*BytesRead() - *before, 100'000);
}

TEST(LoadOfferedPicture, ReadsAllOfTheOtherFormats) {
    class WebCodecs final : public PictureCodecs {
    public:
        std::optional<Image> DecodeGif(std::span<const std::uint8_t>) const override { return {}; }
        std::optional<Image> DecodeJpeg(std::span<const std::uint8_t>) const override { return {}; }
        std::optional<Image> DecodePng(std::span<const std::uint8_t> bytes) const override {
            return Filled(static_cast<int>(bytes.size()), white);
        }
        std::optional<Image> DecodeWebp(std::span<const std::uint8_t> bytes) const override {
            return Filled(static_cast<int>(bytes.size()), black);
        }
        std::optional<Bytes> EncodeJpeg(const Image&, int) const override { return {}; }
    };
    using namespace std::string_view_literals;
    const TemporaryFolder folder;
    const WebCodecs codecs;
    const auto png = folder.Write("a.txt", "\x89PNG\r\n\x1A\n and the rest of it"sv);
    const auto webp = folder.Write("b", "RIFF\x04\0\0\0WEBPVP8 "sv);
    EXPECT_EQ(LoadOfferedPicture(png, codecs), Filled(27, white));
    EXPECT_EQ(LoadOfferedPicture(webp, codecs), Filled(16, black));
    EXPECT_EQ(LoadOfferedPicture(folder.Write("c", FileOf(Filled(5, 0x123456))), codecs),
              Filled(5, 0x123456));
    EXPECT_FALSE(LoadPicture(png, codecs));
    EXPECT_FALSE(LoadPicture(webp, codecs));
}

TEST(SavePicture, WritesWhatLoadPictureReads) {
    const TemporaryFolder folder;
    const Image image = Filled(7, 0xABCDEF);
    EXPECT_FALSE(SavePicture(image, folder / "design.pat"));
    EXPECT_EQ(LoadPicture(folder / "design.pat", TellingCodecs()), image);
    EXPECT_EQ(folder.Read("design.pat"), FileOf(image));
}

TEST(SavePicture, KeepsTheOldFileWhereThereIsNothingToWrite) {
    const TemporaryFolder folder;
    folder.Write("design.pat", "old content");
    EXPECT_EQ(SavePicture(Image(), folder / "design.pat"), std::errc::invalid_argument);
    EXPECT_EQ(folder.Read("design.pat"), "old content");
    EXPECT_EQ(SavePicture(Filled(1, white), folder / "missing" / "design.pat"),
              std::errc::no_such_file_or_directory);
}

}  // namespace
}  // namespace coinlet
