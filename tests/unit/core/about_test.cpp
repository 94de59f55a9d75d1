// The About text on the board behind the canvas: where its lines stand.
#include "core/about.h"

#include "core/main_layout.h"
#include "support/world.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace coinlet {
namespace {

class AboutTest : public testing::Test, protected test::World {
protected:
    AboutTest() { LayOutMain(main); }

    void Write(const std::string& text) {
        fs::create_directories(folder / "app/Data");
        folder.Write("app/Data/About.inf", text);
    }
    const std::vector<PrintedLine>& Lines() {
        PrintAboutText(context);
        return main.LabelPic.LinesToRead();
    }
};

// Twips on the board are a fifteenth in pixels: 480 from the left, lines 255 apart, the credits from 6690 on.
constexpr int left = 480 / 15, firstLine = 480 / 15, lineHeight = 255 / 15, firstCredit = 6690 / 15;
constexpr int credits = 4;

TEST_F(AboutTest, LinesOfTheFileStandBelowOneAnother) {
    Write("The first.\r\n\r\n  The third.\r\n");
    const auto& lines = Lines();
    ASSERT_EQ(lines.size(), 3U + credits);
    const std::vector<std::string> texts{"The first.", "", "  The third."};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(lines[i].text, texts[i]);
        EXPECT_EQ(lines[i].x, left) << i;
        EXPECT_EQ(lines[i].y, firstLine + lineHeight * static_cast<int>(i)) << i;
    }
}

TEST_F(AboutTest, CreditsStandAtTheFootInYellow) {
    for (const bool hasFile : {false, true}) {
        if (hasFile) Write("A line.\r\n");
        main.LabelPic.surface.Cls();
        const auto& lines = Lines();
        ASSERT_EQ(lines.size(), static_cast<std::size_t>(credits + (hasFile ? 1 : 0)));
        const std::vector<std::string> beginnings{
            "Designer.....: ", "Website.....: ", "E-mail........: ", "Translator...: "};
        for (int i = 0; i < credits; ++i) {
            const PrintedLine& line = lines[lines.size() - credits + static_cast<std::size_t>(i)];
            const std::string& beginning = beginnings[static_cast<std::size_t>(i)];
            EXPECT_TRUE(line.text.starts_with(beginning)) << line.text;
            EXPECT_GT(line.text.size(), beginning.size());
            EXPECT_EQ(line.x, left) << line.text;
            EXPECT_EQ(line.y, firstCredit + lineHeight * i) << line.text;
            EXPECT_EQ(line.colour, RGB(255, 255, 0)) << line.text;
        }
    }
}

}  // namespace
}  // namespace coinlet
