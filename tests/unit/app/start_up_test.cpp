// What the start puts on the window before the user sees it.
#include "app/application.h"
#include "core/main_form.h"
#include "support/block_fonts.h"
#include "support/world.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

TEST(StartUp, WritesTheHeaderOfTheSidePanel) {
    const test::TemporaryFolder folder;
    test::TestPlatform platform;
    test::BlockFonts fonts;
    test::PlainCodecs codecs;
    test::StillClock clock;
    test::PlainDesktop desktop{folder.Path()};
    test::NoClipboard clipboard;
    test::NoPrinter printer;
    test::NoScreenGrab screenGrab;
    Application program{
        {folder.Path(), platform, fonts, codecs, clock, desktop, clipboard, printer, screenGrab}};
    program.Start();

    // 29 letters of 8 points, each a block of 3 by 7 pixels in a cell of 4 by 8, from (4, 3) on.
    const Image header = program.GetContext().main.TopInfoPic.surface.Image();
    const Colour ground = header.At(0, 0);
    const auto isInk = [&](int x, int y) { return header.At(x, y) != ground; };
    for (const int left : {4, 4 + 28 * 4}) {
        EXPECT_TRUE(isInk(left, 3));
        EXPECT_TRUE(isInk(left + 2, 9));
        EXPECT_FALSE(isInk(left + 3, 3));
        EXPECT_FALSE(isInk(left, 2));
        EXPECT_FALSE(isInk(left, 10));
    }
    EXPECT_FALSE(isInk(4 + 29 * 4, 3));
    EXPECT_FALSE(isInk(4 + 9 * 4, 3)) << "a blank between two words";
}

}  // namespace
}  // namespace coinlet
