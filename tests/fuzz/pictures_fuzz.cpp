// Pictures that are damaged or hostile: none crashes a decoder, and what is decoded is a legal picture.
#include "fuzz/harness.h"
#include "fuzz/judged_picture.h"
#include "fuzz/targets/targets.h"
#include "media/media_codecs.h"

int main(int argc, char** argv) {
    using namespace coinlet;
    std::vector<test::Reader> readers{test::BmpReader(), test::GifReader(), test::JpegReader()};
    // What a file is, its first bytes say, which may be those of another format.
    std::vector<Bytes> all;
    for (const test::Reader& reader : readers)
        all.insert(all.end(), reader.files.begin(), reader.files.end());
    readers.push_back({"picture", all, [](std::span<const std::uint8_t> file) {
                           return test::Judged(DecodePicture(file, MediaCodecs()), file.size());
                       }});
    constexpr std::size_t usualRounds = 15000;
    return test::Fuzz(readers, usualRounds, argc, argv);
}
