// Letters of captions and of samples, where a font was added under the captions' own name.

#include "controls/label.h"

#include "controls/fine_button.h"
#include "controls/form.h"
#include "controls/text_box.h"
#include "controls/text_lines.h"
#include "controls/vista_button.h"
#include "support/test_platform.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

/// Fonts to which one was added whose letters are twice as wide and high as those that were there.
class DoubledFonts : public test::BlockFonts {
public:
    TextExtent Measure(const FontSpec& font, std::string_view text) const override {
        return BlockFonts::Measure(Doubled(font), text);
    }
    TextMask Render(const FontSpec& font, std::string_view text, Edges edges, double angle) const override {
        return BlockFonts::Render(Doubled(font), text, edges, angle);
    }
    const FontEngine& Installed() const override { return installed_; }

private:
    static FontSpec Doubled(FontSpec font) {
        font.size *= 2;
        return font;
    }
    test::BlockFonts installed_;
};

struct LabelTest : testing::Test {
    test::TestPlatform platform;
    DoubledFonts fonts;
    Form form{{platform, fonts}, "Sample"};
};

TEST_F(LabelTest, ACaptionIsMeasuredInTheLettersOfCaptions) {
    Label label(form, "Label1");
    label.AutoSize = true;
    label.Caption = "abc";
    label.FontSize = 10;
    EXPECT_EQ(label.PixelWidth(), 15);
    EXPECT_EQ(label.PixelHeight(), 10);
}

TEST_F(LabelTest, ASampleIsMeasuredAsItIsDrawn) {
    Label label(form, "Label1");
    label.AutoSize = true;
    label.Sample = true;
    label.Caption = "abc";
    label.FontSize = 10;
    EXPECT_EQ(label.PixelWidth(), 30);
    EXPECT_EQ(label.PixelHeight(), 20);
}

TEST_F(LabelTest, AButtonHasTheLettersOfCaptions) {
    VistaButton button(form, "Knop");
    button.Move(0, 0, 600, 450);
    button.SetCaption("a");
    FontProperties font;
    font.FontSize = 8;
    button.SetFont(font);
    int ink = 0;
    const Surface& face = button.Face();
    for (int y = 0; y < face.PixelHeight(); ++y)
        for (int x = 0; x < face.PixelWidth(); ++x)
            ink += face.Point(x, y) == black ? 1 : 0;
    // One block of 3 by 7.
    EXPECT_EQ(ink, 21);
}

TEST_F(LabelTest, AButtonOnTheScreenLeavesRoomForTheLettersOfCaptions) {
    VistaButton button(form, "Knop");
    button.Move(0, 0, 600, 450);
    button.SetCaption("a");
    FontProperties font;
    font.FontSize = 8;
    button.SetFont(font);
    EXPECT_EQ(CaptionOf(button).lineHeight, 8);
    button.SetPictures(1);
    button.SetPicture(Image(Bitmap(10, 10, ToPixel(white))));
    Surface face(fonts, 40, 30);
    DrawFineButton(face, button);
    // The picture begins at (40 - 4 - 10 - 5) / 2.
    EXPECT_NE(face.Point(9, 15), white);
    EXPECT_EQ(face.Point(10, 15), white);
    EXPECT_EQ(face.Point(19, 15), white);
    EXPECT_NE(face.Point(20, 15), white);
}

TEST_F(LabelTest, AFieldIsWrappedInTheLettersOfCaptions) {
    TextBox box(form, "Text1");
    box.MultiLine = true;
    box.FontSize = 8;
    // Room for ten letters of 4 pixels.
    const int frames = 2 * (textBoxFrame + textBoxMargin);
    box.Move(0, 0, (40 + frames) * 15, 600);
    box.SetText("abcdefghijk");
    EXPECT_EQ(DisplayedLines(box), (std::vector<std::string>{"abcdefghij", "k"}));
}

}  // namespace
}  // namespace coinlet
