// Where sticks and cards are mounted.

#include "base/mounts.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

TEST(RemovablePlaces, AreTheMountsBelowMediaAndRunMedia) {
    EXPECT_EQ(
        RemovablePlaces("/dev/sda1 / ext4 rw 0 0\n"
                        "/dev/sdb1 /run/media/user/old\\040disk vfat rw 0 0\n"
                        "/dev/sdc1 /media/user/STICK vfat rw 0 0\n"
                        "tmpfs /media tmpfs rw 0 0\n"
                        "/dev/sdd1 /run/mediaplayer ext4 rw 0 0\n"
                        "/dev/sdc1 /media/user/STICK vfat rw 0 0\n"
                        "broken\n"
                        "\n"
                        "x /run/media/cut\\04 vfat\n"),
        (std::vector<std::string>{"/media/user/STICK", "/run/media/cut\\04", "/run/media/user/old disk"}));
    EXPECT_EQ(RemovablePlaces(""), std::vector<std::string>{});
}

}  // namespace
}  // namespace coinlet
