// Where the picker of folders begins; what a picture shows that takes its time.

#include "tools/image_browser.h"

#include "core/language.h"
#include "support/world.h"

#include <gtest/gtest.h>
#include <new>
#include <string>
#include <vector>

namespace coinlet {
namespace {

class ImageBrowserTest : public testing::Test, protected test::World {
protected:
    ImageBrowser browser{context};
};

TEST_F(ImageBrowserTest, ThePickerBeginsInTheFolderInUse) {
    const std::string first = folder / "app", second = folder / "Pictures";
    fs::create_directories(folder / "app/Data");
    folder.Write("app/Data/English.txt", "006 Choose a folder with pictures\r\n");
    LoadLanguage(context, "English");
    session.ImageFolder = first;
    platform.folders = {second, ""};
    main.MapKnop.Click();
    EXPECT_EQ(session.ImageFolder, second);
    // Given up, it stays.
    main.MapKnop.Click();
    EXPECT_EQ(session.ImageFolder, second);
    EXPECT_EQ(platform.foldersOffered, (std::vector<std::string>{first, second}));
    // It says what is to be chosen.
    EXPECT_EQ(platform.prompts, std::vector<std::string>(2, "Choose a folder with pictures"));
}

/// There is no memory for the picture.
class NoMemory : public test::PlainCodecs {
public:
    explicit NoMemory(const Platform& platform) : platform_(platform) {}
    std::optional<Image> DecodeJpeg(std::span<const std::uint8_t>) const override {
        pointerMeanwhile = platform_.Screen.MousePointer;
        throw std::bad_alloc();
    }

    mutable int pointerMeanwhile = -1;

private:
    const Platform& platform_;
};

TEST_F(ImageBrowserTest, FaultTakesTheHourglassAway) {
    const NoMemory without(platform);
    const Services poor{folder / "app", platform,  fonts,   without,   clock,
                        desktop,        clipboard, printer, screenGrab};
    Context inNeed{poor, session, main, plaatjes};
    const ImageBrowser other(inNeed);
    session.ImageFolder = folder / "Pictures";
    folder.Write("Pictures/tag.jpg", "\xFF\xD8\xFF");
    main.List1.AddItem("tag.jpg");
    EXPECT_THROW(main.List1.SetListIndex(0), std::bad_alloc);
    EXPECT_EQ(without.pointerMeanwhile, hourglassPointer);
    EXPECT_EQ(platform.Screen.MousePointer, toolPointer);
}

}  // namespace
}  // namespace coinlet
