// Names of files without their extension.

#include "base/file_name.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

TEST(WithoutExtension, CutsFourCharacters) {
    EXPECT_EQ(WithoutExtension("Animals.ttf"), "Animals");
    EXPECT_EQ(WithoutExtension("a.b.pat"), "a.b");
    EXPECT_EQ(WithoutExtension(".ttf"), "");
    EXPECT_EQ(WithoutExtension("ttf"), "");
    EXPECT_EQ(WithoutExtension(""), "");
}

}  // namespace
}  // namespace coinlet
