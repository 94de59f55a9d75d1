// The command that runs a filter of the program on a surface.

#include "unit/player/script_player.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

TEST(FilterCommand, HandsSurfaceNumberAndParameterToTheProgram) {
    test::ScriptPlayer player;
    EXPECT_EQ(player.Play("filter Main.Pic 31 200\npixel Main.Pic 0 0 31,200,0\n"), test::passed);
}

TEST(FilterCommand, FailsOnWhatIsNoSurfaceAndOnWhatIsNoNumber) {
    test::ScriptPlayer player;
    EXPECT_EQ(player.Play("filter Plaatjes.Img 2 0\n"),
              test::Failed("1: no form Plaatjes is open, only Main"));
    EXPECT_EQ(player.Play("filter Main.HScroll1 2 0\n"), test::Failed("1: Main.HScroll1 is no surface"));
    EXPECT_EQ(player.Play("filter Main.Pic two 0\n"), test::Failed("1: no number: \"two\""));
}

}  // namespace
}  // namespace coinlet
