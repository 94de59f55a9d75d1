// From a bitmap file to a JPEG file, also when the writing fails.
#include "store/bmp_to_jpeg.h"

#include "support/failing_step.h"
#include "support/world.h"

#include <gtest/gtest.h>
#include <string>

namespace coinlet {
namespace {

/// The bytes of a bitmap file of 2 by 1 pixels and an older export.
class Export {
public:
    Export() {
        const test::BlockFonts fonts;
        Surface surface(fonts, 2, 1);
        surface.PSet(1, 0, RGB(1, 2, 3));
        source = EncodeBmp(surface.Image()).value();
        folder.Write("old.jpg", "old export");
    }

    test::TemporaryFolder folder;
    test::PlainCodecs codecs;
    Bytes source;
};

TEST(BmpToJpeg, WritesThePictureInThatQuality) {
    const Export world;
    BmpToJpeg(world.source, world.folder / "old.jpg", 37, world.codecs);
    EXPECT_EQ(world.folder.Read("old.jpg"), "%" + std::string(world.source.begin(), world.source.end()));
}

TEST(BmpToJpeg, LeavesWhatStoodThereIfTheSourceIsNoPicture) {
    const Export world;
    BmpToJpeg(AsBytes("BM"), world.folder / "old.jpg", 100, world.codecs);
    BmpToJpeg({}, world.folder / "old.jpg", 100, world.codecs);
    EXPECT_EQ(world.folder.Read("old.jpg"), "old export");
}

class BmpToJpegFails : public testing::TestWithParam<test::Step> {};
INSTANTIATE_TEST_SUITE_P(AtEachStep, BmpToJpegFails,
                         testing::Values(test::Step::Open, test::Step::Write, test::Step::Flush,
                                         test::Step::Close, test::Step::Rename));

TEST_P(BmpToJpegFails, AndLeavesTheOldOneOrNone) {
    const Export world;
    for (const char* name : {"old.jpg", "new.jpg"}) {
        test::FailingStep calls(GetParam());
        BmpToJpeg(world.source, world.folder / name, 100, world.codecs, calls);
    }
    EXPECT_EQ(world.folder.Read("old.jpg"), "old export");
    EXPECT_EQ(world.folder.Count(), 1);
}

}  // namespace
}  // namespace coinlet
