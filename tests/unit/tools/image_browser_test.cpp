// Where the picker of folders begins.

#include "tools/image_browser.h"

#include "support/world.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

class ImageBrowserTest : public testing::Test, protected test::World {
protected:
    ImageBrowser browser{context};
};

TEST_F(ImageBrowserTest, ThePickerBeginsInTheFolderInUse) {
    const std::string first = folder / "app", second = folder / "Pictures";
    session.ImageFolder = first;
    platform.folders = {second, ""};
    main.MapKnop.Click();
    EXPECT_EQ(session.ImageFolder, second);
    // Given up, it stays.
    main.MapKnop.Click();
    EXPECT_EQ(session.ImageFolder, second);
    EXPECT_EQ(platform.foldersOffered, (std::vector<std::string>{first, second}));
}

}  // namespace
}  // namespace coinlet
