// What the start puts on the window before the user sees it.
#include "app/application.h"
#include "base/files.h"
#include "core/main_form.h"
#include "support/block_fonts.h"
#include "support/world.h"
#include "surface/codecs.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace coinlet {
namespace {

class StartUpTest : public ::testing::Test {
protected:
    StartUpTest() { fs::create_directories(folder / "app/Ontwerpen"); }

    /// The program that runs now; one that ran before is gone.
    MainForm& Start() {
        program.reset();
        program =
            std::make_unique<Application>(Services{folder / "app", platform, fonts, codecs, clock, desktop,
                                                   clipboard, printer, screenGrab, folder / "state"});
        program->Start();
        return program->GetContext().main;
    }
    std::vector<std::string> Designs() const { return ListFiles(folder / "app/Ontwerpen", "*.pat"); }

    test::TemporaryFolder folder;
    test::TestPlatform platform;
    test::BlockFonts fonts;
    test::PlainCodecs codecs;
    test::StillClock clock;
    test::PlainDesktop desktop{folder.Path()};
    test::NoClipboard clipboard;
    test::NoPrinter printer;
    test::NoScreenGrab screenGrab;
    std::unique_ptr<Application> program;
};

TEST_F(StartUpTest, PutsTheWorkBackThatTheLastProgramLost) {
    Start().Pic.surface.Line(10, 10, 200, 10, black);
    program->SettleForEnd();
    EXPECT_TRUE(Designs().empty());
    Start();
    ASSERT_EQ(Designs().size(), 1U);
    const auto design = DecodeBmp(ReadFile(folder / "app/Ontwerpen" / Designs()[0]).value());
    ASSERT_TRUE(design);
    EXPECT_EQ(design->At(100, 10), black);
    Start();
    EXPECT_EQ(Designs().size(), 1U);
}

TEST_F(StartUpTest, PutsTheWorkBackOfAProgramThatWasKilledWhenItKnewOfItsEnd) {
    const fs::path state = folder / "state", killed = folder / "killed";
    for (const bool knew : {false, true}) {
        Start().Pic.surface.Line(10, 10, 200, 10, black);
        if (knew) program->PrepareForEnd();
        // What a kill leaves: a program that ends by itself would tidy up.
        fs::create_directories(state);
        fs::copy(state, killed, fs::copy_options::recursive);
        program.reset();
        fs::remove_all(state);
        fs::rename(killed, state);
        Start();
        EXPECT_EQ(Designs().size(), knew ? 1U : 0U);
    }
}

TEST_F(StartUpTest, WritesTheHeaderOfTheSidePanel) {
    // 29 letters of 8 points, each a block of 3 by 7 pixels in a cell of 4 by 8, from (4, 3) on.
    const Image header = Start().TopInfoPic.surface.Image();
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
