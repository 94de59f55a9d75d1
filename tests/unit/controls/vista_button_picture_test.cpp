// The picture and the caption of the button: where they stand, what is cut, which frame shows.

#include "button_form.h"

#include <gtest/gtest.h>

namespace coinlet {
namespace {

constexpr Colour red = RGB(250, 0, 0), blue = RGB(0, 0, 250), yellow = RGB(250, 250, 0);
constexpr Colour mask = RGB(0, 255, 0), inkColour = RGB(1, 2, 3);

/// A strip of plain frames side by side.
Image Strip(const std::vector<Colour>& frames, int frameWidth, int height) {
    Bitmap strip(static_cast<int>(frames.size()) * frameWidth, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < strip.Width(); ++x)
            strip.Row(y)[x] = ToPixel(frames[static_cast<std::size_t>(x / frameWidth)]);
    return Image(std::move(strip));
}

/// A picture whose pixel at (x, y) tells its own place.
Image Map(int width, int height) {
    Bitmap map(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            map.Row(y)[x] = ToPixel(RGB(x, y, 77));
    return Image(std::move(map));
}

struct PictureTest : testing::Test {
    PictureTest() {
        services.platform.ShowMain(form);
        form.Resize(60, 30);
        button.SetCaption("");
        button.SetForeColor(inkColour);
    }

    /// The smallest rectangle around the pixels of that colour.
    PixelRect Where(Colour colour) const {
        const Image face = button.Face().Image();
        PixelRect found;
        for (int y = 0; y < face.Height(); ++y)
            for (int x = 0; x < face.Width(); ++x)
                if (face.At(x, y) == colour) found = Union(found, {x, y, x + 1, y + 1});
        return found;
    }
    Colour At(int x, int y) const { return button.Face().Image().At(x, y); }

    test::TestServices services;
    test::ButtonForm form{services.ForForms()};
    VistaButton& button = form.OkKnop;
};

TEST_F(PictureTest, WithoutACaptionThePictureStandsInTheMiddle) {
    button.SetPicture(Strip({red, blue}, 10, 12));
    EXPECT_EQ(Where(red), (PixelRect{25, 9, 35, 21}));
    EXPECT_TRUE(Where(blue).Empty());
}

TEST_F(PictureTest, HalfPixelsGoToTheEvenColumnAndTheUpperRow) {
    button.SetPictures(1);
    button.SetPicture(Strip({red}, 11, 11));  // 24.5 and 9.5
    EXPECT_EQ(Where(red), (PixelRect{24, 9, 35, 20}));
    button.SetPicture(Strip({red}, 9, 9));  // 25.5 and 10.5
    EXPECT_EQ(Where(red), (PixelRect{26, 10, 35, 19}));
}

TEST_F(PictureTest, PictureAndCaptionAreCentredAsAPair) {
    button.SetPicture(Strip({red, blue}, 10, 10));
    button.SetCaption("AB");
    // (60 - 8 - 10 - 5) / 2 = 18.5. The text's rectangle runs from 10 + 8 to 57, its 8 columns in the middle.
    EXPECT_EQ(Where(red), (PixelRect{18, 10, 28, 20}));
    // The last column and row of a letter's cell have no ink.
    EXPECT_EQ(Where(inkColour), (PixelRect{33, 11, 40, 18}));
}

TEST_F(PictureTest, WithoutAPictureTheCaptionStandsBetweenTheEdges) {
    button.SetCaption("AB");
    EXPECT_EQ(Where(inkColour), (PixelRect{26, 11, 33, 18}));  // 3 + (54 - 8) / 2
}

TEST_F(PictureTest, ALongCaptionWraps) {
    button.SetCaption("ABCDEFGH IJK");  // 32 and 12 columns and a blank: 48 fit into 54
    EXPECT_EQ(Where(inkColour), (PixelRect{6, 11, 53, 18}));
    button.SetCaption("ABCDEFGHIJ KLMNO");  // 64 columns with the blank
    // Two lines of 8 rows from (30 - 16) / 2 on; the first has 40 columns.
    EXPECT_EQ(Where(inkColour), (PixelRect{10, 7, 49, 22}));
    // 60 columns are measured as one line in the button's 60, and stand in the 54 between its edges as two,
    // of which the second is cut.
    button.SetCaption("ABCDEFGHIJ KLMN");
    EXPECT_EQ(Where(inkColour), (PixelRect{10, 11, 49, 18}));
}

TEST_F(PictureTest, APictureIsCutThreePixelsFromEveryEdge) {
    button.SetPictures(1);
    button.SetUseMaskColor(false);
    button.SetPicture(Map(100, 50));
    // x = -20 and y = -10: columns 23 to 76 and rows 13 to 36 of the picture show.
    for (const auto& [x, y] : {std::pair{3, 3}, {56, 3}, {3, 26}, {56, 26}, {30, 15}})
        EXPECT_EQ(At(x, y), RGB(x + 20, y + 10, 77)) << x << ", " << y;
    for (const auto& [x, y] : {std::pair{2, 15}, {57, 15}, {30, 2}, {30, 27}})
        EXPECT_NE(Blue(At(x, y)), 77) << x << ", " << y;
}

TEST_F(PictureTest, ACaptionBesideACutPictureStartsAtItsLeft) {
    button.SetPictures(1);
    button.SetPicture(Strip({red}, 20, 10));
    button.SetCaption("ABCDEFGHI");
    // (60 - 36 - 20 - 5) / 2 = -0.5, to 0: 3 columns are cut, the text starts at 20 + 8 - 3. Of its nine
    // letters the last would begin at 57, where the text ends.
    EXPECT_EQ(Where(red), (PixelRect{3, 10, 20, 20}));
    EXPECT_EQ(Where(inkColour), (PixelRect{25, 11, 56, 18}));
}

TEST_F(PictureTest, AFrameThatIsCutAtTheLeftShowsItsRightPart) {
    button.SetUseMaskColor(false);
    button.SetPicture(Map(40, 10));
    button.SetCaption("ABCDEFGHI");
    button.SetEnabled(false);
    // The second of two frames of 20 columns, of which three are cut.
    EXPECT_EQ(At(3, 10), RGB(23, 0, 77));
    EXPECT_EQ(At(19, 19), RGB(39, 9, 77));
}

TEST_F(PictureTest, TheFrameTellsTheState) {
    button.SetPicture(Strip({red, blue}, 10, 10));
    EXPECT_FALSE(Where(red).Empty());
    button.SetEnabled(false);
    EXPECT_FALSE(Where(blue).Empty());
    EXPECT_TRUE(Where(red).Empty());
    button.SetEnabled(true);
    form.Enter(ButtonState::Pressed);
    EXPECT_FALSE(Where(red).Empty());
}

TEST_F(PictureTest, OneFrameServesEveryState) {
    button.SetPictures(1);
    button.SetPicture(Strip({red}, 10, 10));
    button.SetEnabled(false);
    EXPECT_EQ(Where(red), (PixelRect{25, 10, 35, 20}));
}

TEST_F(PictureTest, TheThirdFrameIsThatOfAPress) {
    button.LoadPictures(3);
    button.SetPicture(Strip({red, blue, yellow}, 10, 10));
    EXPECT_FALSE(Where(red).Empty());
    form.Enter(ButtonState::Hover);
    EXPECT_FALSE(Where(red).Empty());
    form.Enter(ButtonState::Pressed);
    EXPECT_EQ(Where(yellow), (PixelRect{25, 10, 35, 20}));
    button.SetEnabled(false);
    EXPECT_FALSE(Where(blue).Empty());
}

TEST_F(PictureTest, TheOffsetMovesThePictureOnPressOnly) {
    button.SetPicture(Strip({red, blue}, 10, 10));
    button.SetCaption("AB");
    button.SetPictureOffset(2);
    const PixelRect caption = Where(inkColour);
    EXPECT_EQ(Where(red), (PixelRect{18, 10, 28, 20}));
    form.Enter(ButtonState::Hover);
    EXPECT_EQ(Where(red), (PixelRect{18, 10, 28, 20}));
    form.Enter(ButtonState::Pressed);
    EXPECT_EQ(Where(red), (PixelRect{20, 12, 30, 22}));
    EXPECT_EQ(Where(inkColour), caption);
    button.PointerReleased(1, 0, 5, 5);
    EXPECT_EQ(Where(red), (PixelRect{18, 10, 28, 20}));
}

// The colours of a button's frame when hovered and disabled.
constexpr Colour hoverFrame = RGB(232, 245, 252), disabledFrame = RGB(173, 178, 181);

TEST_F(PictureTest, AHeldButtonThatThePointerIsDrawnOffKeepsThePictureOfThePress) {
    button.LoadPictures(3);
    button.SetPicture(Strip({red, blue, yellow}, 10, 10));
    button.SetPictureOffset(2);
    button.PointerPressed(1, 0, 5, 5);
    button.PointerMoved(1, 0, 200, 5);
    EXPECT_EQ(At(30, 0), hoverFrame);
    EXPECT_EQ(Where(yellow), (PixelRect{27, 12, 37, 22}));
    button.PointerReleased(1, 0, 200, 5);
    EXPECT_EQ(Where(red), (PixelRect{25, 10, 35, 20}));
}

TEST_F(PictureTest, AButtonDisabledWhileItIsHeldKeepsTheOffset) {
    button.LoadPictures(3);
    button.SetPicture(Strip({red, blue, yellow}, 10, 10));
    button.SetPictureOffset(2);
    button.PointerPressed(1, 0, 5, 5);
    button.SetEnabled(false);
    EXPECT_EQ(At(30, 0), disabledFrame);
    EXPECT_EQ(Where(blue), (PixelRect{27, 12, 37, 22}));
}

TEST_F(PictureTest, AnOffsetOutOfTheButtonShowsNoPicture) {
    button.SetPicture(Strip({red, blue}, 10, 10));
    form.Enter(ButtonState::Pressed);
    for (const int offset : {1000, -1000, 1 << 30, -(1 << 30)}) {
        button.SetPictureOffset(offset);
        EXPECT_TRUE(Where(red).Empty()) << offset;
    }
}

TEST_F(PictureTest, TheMaskColourLetsTheBodyShow) {
    const Colour body = At(30, 15);
    Bitmap picture(10, 10, ToPixel(mask));
    picture.Row(0)[0] = ToPixel(red);
    button.SetPictures(1);
    button.SetPicture(Image(picture.Clone()));
    EXPECT_EQ(Where(red), (PixelRect{25, 10, 26, 11}));
    EXPECT_TRUE(Where(mask).Empty());
    EXPECT_EQ(At(30, 15), body);
    button.SetUseMaskColor(false);
    EXPECT_EQ(Where(mask), (PixelRect{25, 10, 35, 20}));
    button.SetUseMaskColor(true);
    button.SetMaskColor(red);
    EXPECT_TRUE(Where(red).Empty());
    EXPECT_EQ(Where(mask), (PixelRect{25, 10, 35, 20}));
}

TEST_F(PictureTest, AStripOfNoFramesShowsNothing) {
    button.SetCaption("AB");
    const Image without = button.Face().Image();
    button.SetPicture(Strip({red, blue}, 10, 10));
    for (const int count : {0, -5}) {
        button.LoadPictures(count);
        EXPECT_EQ(button.Face().Image(), without) << count;
    }
}

TEST_F(PictureTest, TheEmptyPictureTakesThePictureAway) {
    const Image without = button.Face().Image();
    button.SetPicture(Strip({red, blue}, 10, 10));
    EXPECT_FALSE(button.Face().Image() == without);
    button.SetPicture({});
    EXPECT_EQ(button.Face().Image(), without);
    EXPECT_TRUE(button.Picture().Empty());
}

TEST_F(PictureTest, APictureOnAButtonOfNoSizeDoesNothing) {
    button.SetPicture(Strip({red, blue}, 10, 10));
    for (const auto& [width, height] : {std::pair{0, 0}, {1, 1}, {5, 5}, {6, 6}}) {
        form.Resize(width, height);
        EXPECT_TRUE(Where(red).Empty()) << width;
    }
    form.Resize(7, 7);
    EXPECT_EQ(Where(red), (PixelRect{3, 3, 4, 4}));
}

}  // namespace
}  // namespace coinlet
