// The button on screens whose pixels are finer than its own: every line is there, and what it carries is as
// fine as the screen.

#include "button_form.h"
#include "controls/fine_button.h"
#include "surface/finer_edition.h"

#include <cmath>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace coinlet {
namespace {

constexpr Colour mask = RGB(0, 255, 0), red = RGB(250, 0, 0);

struct FineButton : testing::Test {
    FineButton() {
        services.platform.ShowMain(form);
        form.Resize(70, 24);
        button.SetCaption("");
    }
    /// The face on that many pixels.
    Image FaceOn(int width, int height) const {
        Surface face(services.fonts, width, height);
        DrawFineButton(face, button);
        return face.Image();
    }

    test::TestServices services;
    test::ButtonForm form{services.ForForms()};
    VistaButton& button = form.OkKnop;
};

/// What was done to the button.
struct Situation {
    const char* name;
    void (*enter)(test::ButtonForm& form);
};
void PrintTo(const Situation& situation, std::ostream* out) {
    *out << situation.name;
}

const Situation situations[] = {
    {"nothing", [](test::ButtonForm& form) { form.Enter(ButtonState::Normal); }},
    {"pointed at", [](test::ButtonForm& form) { form.Enter(ButtonState::Hover); }},
    {"held", [](test::ButtonForm& form) { form.Enter(ButtonState::Pressed); }},
    {"focused", [](test::ButtonForm& form) { form.Enter(ButtonState::Focused); }},
    {"disabled", [](test::ButtonForm& form) { form.Enter(ButtonState::Disabled); }},
    {"held with the pointer drawn off it",
     [](test::ButtonForm& form) {
         form.OkKnop.PointerPressed(1, 0, 5, 5);
         form.OkKnop.PointerMoved(1, 0, 200, 5);
     }},
    {"held and left by the focus",
     [](test::ButtonForm& form) {
         form.OkKnop.PointerPressed(1, 0, 5, 5);
         form.Text1.SetFocus();
     }},
    {"disabled while it is held",
     [](test::ButtonForm& form) {
         form.OkKnop.PointerPressed(1, 0, 5, 5);
         form.OkKnop.SetEnabled(false);
     }},
};

struct FineButtonIn : FineButton, testing::WithParamInterface<Situation> {
    /// Three frames of 8 by 9 that differ in their colours, with a line through each that shows the body.
    FineButtonIn() {
        constexpr int frame = 8, height = 9;
        const std::vector<Colour> colours{red, RGB(0, 0, 250), RGB(250, 250, 0)};
        Bitmap strip(static_cast<int>(colours.size()) * frame, height);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < strip.Width(); ++x) {
                strip.Row(y)[x] =
                    ToPixel(x % frame == y ? mask : colours.at(static_cast<std::size_t>(x / frame)));
            }
        }
        button.LoadPictures(3);
        button.SetPicture(Image(std::move(strip)));
        button.SetPictureOffset(3);
    }
};
INSTANTIATE_TEST_SUITE_P(All, FineButtonIn, testing::ValuesIn(situations));

TEST_P(FineButtonIn, PixelByPixelIsTheButtonItself) {
    GetParam().enter(form);
    // Asked for nothing where the screen is no finer.
    HasFinerEdition(button.Picture(), [] {
        ADD_FAILURE();
        return Image();
    });
    for (const auto& [width, height] : {std::pair(70, 24), {7, 7}, {5, 30}, {2, 1}, {0, 0}}) {
        form.Resize(width, height);
        EXPECT_TRUE(FaceOn(width, height) == button.Face().Image()) << width << ", " << height;
    }
}

/// The frame's colour in each state, and those of the lines below its top and above its bottom.
struct FrameLines {
    ButtonState state;
    Colour frame, below, above;
};
constexpr FrameLines lineColours[] = {
    {ButtonState::Normal, RGB(112, 112, 112), RGB(252, 252, 252), RGB(243, 243, 243)},
    {ButtonState::Hover, RGB(232, 245, 252), RGB(60, 127, 177), RGB(220, 240, 251)},
    {ButtonState::Pressed, RGB(44, 98, 139), RGB(158, 176, 186), RGB(104, 179, 219)},
    {ButtonState::Focused, RGB(60, 127, 177), RGB(52, 213, 254), RGB(41, 206, 250)},
    {ButtonState::Disabled, RGB(173, 178, 181), RGB(252, 252, 252), RGB(252, 252, 252)},
};

struct Scaled : FineButton, testing::WithParamInterface<std::tuple<double, int, int>> {
    double Scale() const { return std::get<0>(GetParam()); }
    /// A screen has a pixel more or less for it, as its place is rounded.
    int PixelsFor(int length) const {
        const double exact = length * Scale();
        return static_cast<int>(std::get<2>(GetParam()) == 0 ? std::floor(exact) : std::ceil(exact));
    }
};
INSTANTIATE_TEST_SUITE_P(All, Scaled,
                         testing::Combine(testing::Values(1.0, 1.25, 1.5, 1.75, 2.0, 2.25, 3.0),
                                          testing::Range(0, 5), testing::Values(0, 1)));

TEST_P(Scaled, EveryLineOfTheFrameIsThere) {
    const FrameLines& colours = lineColours[std::get<1>(GetParam())];
    form.Enter(colours.state);
    for (const int buttonWidth : {70, 71}) {
        form.Resize(buttonWidth, 27);
        const int width = PixelsFor(buttonWidth), height = PixelsFor(27);
        const Image face = FaceOn(width, height);
        // One line ends where the next begins, with halves rounded up.
        const auto end = [&](int lines, int pixels, int length) {
            return static_cast<int>(std::floor(lines * double(pixels) / length + 0.5));
        };
        const int frame = end(1, height, 27), second = end(2, height, 27);
        ASSERT_GE(frame, 1);
        ASSERT_GT(second, frame);
        // Between the corners and what the pressed look has beside them.
        for (int x = end(12, width, buttonWidth); x < width - end(12, width, buttonWidth); ++x) {
            for (int y = 0; y < second; ++y) {
                EXPECT_EQ(face.At(x, y), y < frame ? colours.frame : colours.below) << x << ", " << y;
                EXPECT_EQ(face.At(x, height - 1 - y), y < frame ? colours.frame : colours.above)
                    << x << ", " << y << " from below";
            }
        }
        const int side = end(1, width, buttonWidth);
        ASSERT_GE(side, 1);
        for (int y = end(4, height, 27); y < height - end(4, height, 27); ++y) {
            for (int x = 0; x < side; ++x) {
                EXPECT_EQ(face.At(x, y), colours.frame) << x << ", " << y;
                EXPECT_EQ(face.At(width - 1 - x, y), colours.frame) << x << " from the right, " << y;
            }
            EXPECT_NE(face.At(side, y), colours.frame) << y;
            EXPECT_NE(face.At(width - 1 - side, y), colours.frame) << y;
        }
    }
}

TEST_P(Scaled, BothSidesAreMirrorImages) {
    form.Enter(lineColours[std::get<1>(GetParam())].state);
    const int width = PixelsFor(70), height = PixelsFor(24);
    const Image face = FaceOn(width, height);
    // The lower press marks are at the left alone.
    for (int y = 0; y < height / 2; ++y) {
        for (int x = 0; x < width / 2; ++x)
            EXPECT_EQ(face.At(x, y), face.At(width - 1 - x, y)) << x << ", " << y;
    }
}

TEST_P(Scaled, CornersAreCutByAPixelOfTheButton) {
    const int width = PixelsFor(70), height = PixelsFor(24);
    const Surface face(services.fonts, width, height);
    const PixelRect uncut = UncutPart(face, button);
    EXPECT_GE(uncut.left, 1);
    EXPECT_LE(uncut.left, static_cast<int>(std::ceil(Scale())));
    EXPECT_EQ(uncut.left, width - uncut.right);
    EXPECT_GE(uncut.top, 1);
    EXPECT_EQ(uncut.top, height - uncut.bottom);
}

/// A strip of one frame, so many times as large as `pattern`, which is one pixel a letter: # is red, + is
/// half of it at the left, a blank is masked.
Image Strip(const std::vector<std::string>& pattern, int times) {
    Bitmap strip(static_cast<int>(pattern[0].size()) * times, static_cast<int>(pattern.size()) * times,
                 ToPixel(mask));
    for (int y = 0; y < strip.Height(); ++y) {
        for (int x = 0; x < strip.Width(); ++x) {
            const char letter =
                pattern[static_cast<std::size_t>(y / times)][static_cast<std::size_t>(x / times)];
            if (letter == '#' || (letter == '+' && x % times < times / 2)) strip.Row(y)[x] = ToPixel(red);
        }
    }
    return Image(std::move(strip));
}

struct FinePictureOfButton : FineButton {
    FinePictureOfButton() {
        form.Resize(20, 20);
        button.SetPictures(1);
        button.SetNoBackground(true);
        button.SetBackColor(RGB(50, 100, 200));
        // 4 by 2, so in the middle from (8, 9) on.
        button.SetPicture(Strip({"#  #", " ## "}, 1));
    }
};

TEST_F(FinePictureOfButton, IsAsFineAsTheScreen) {
    HasFinerEdition(button.Picture(), [] { return Strip({"+  #", " ## "}, 6); });
    Image face = FaceOn(40, 40);
    EXPECT_EQ(face.At(16, 18), red);
    EXPECT_EQ(face.At(16, 19), red);
    EXPECT_EQ(face.At(17, 18), RGB(50, 100, 200)) << "what the small picture has no pixel for";
    EXPECT_EQ(face.At(23, 19), red);
    EXPECT_EQ(face.At(24, 19), RGB(50, 100, 200));
    EXPECT_EQ(face.At(18, 20), red);
    EXPECT_EQ(face.At(21, 21), red);
    EXPECT_EQ(face.At(18, 19), RGB(50, 100, 200));
    // Half of the middle one of three pixels.
    face = FaceOn(60, 60);
    EXPECT_EQ(face.At(24, 27), red);
    EXPECT_EQ(face.At(25, 28), RGB(150, 50, 100));
    EXPECT_EQ(face.At(26, 29), RGB(50, 100, 200));
}

// 20 by 20 with a picture of 2 by 2, which stands from (9, 9) on and is moved by 4.
TEST_F(FinePictureOfButton, IsThatOfAPressWhileTheButtonIsHeld) {
    button.LoadPictures(3);
    button.SetPicture(Strip({"    ##", "    ##"}, 1));
    HasFinerEdition(button.Picture(), [] { return Strip({"    ##", "    ##"}, 6); });
    button.SetPictureOffset(4);
    for (const int times : {1, 2, 3}) {
        const auto isShown = [&] {
            const Image face = FaceOn(20 * times, 20 * times);
            return face.At(13 * times, 13 * times) == red && face.At(15 * times - 1, 15 * times - 1) == red &&
                   face.At(13 * times - 1, 13 * times) != red && face.At(13 * times, 15 * times) != red;
        };
        EXPECT_FALSE(isShown()) << times;
        button.PointerPressed(1, 0, 5, 5);
        EXPECT_TRUE(isShown()) << times;
        button.PointerMoved(1, 0, 200, 5);
        EXPECT_EQ(button.State(), ButtonState::Hover);
        EXPECT_TRUE(isShown()) << times;
        button.PointerReleased(1, 0, 200, 5);
        EXPECT_FALSE(isShown()) << times;
    }
}

TEST_F(FinePictureOfButton, WithoutAFineOneItsPixelsAreBlocks) {
    const Image face = FaceOn(40, 40);
    for (const int x : {16, 17, 22, 23}) {
        for (const int y : {18, 19})
            EXPECT_EQ(face.At(x, y), red) << x << ", " << y;
    }
    for (int x = 18; x < 22; ++x)
        EXPECT_EQ(face.At(x, 21), red);
    EXPECT_EQ(face.At(18, 19), RGB(50, 100, 200));
}

TEST_F(FinePictureOfButton, OneOfAnotherShapeIsPassedOver) {
    for (const Image& wrong : {Image(), Strip({"####"}, 6), Strip({"###", "###"}, 6), Strip({"#"}, 1)}) {
        HasFinerEdition(button.Picture(), [wrong] { return wrong; });
        EXPECT_EQ(FaceOn(40, 40).At(18, 19), RGB(50, 100, 200));
        EXPECT_EQ(FaceOn(40, 40).At(17, 19), red);
    }
}

TEST_F(FinePictureOfButton, GoesWithTheNextPicture) {
    HasFinerEdition(button.Picture(), [] { return Strip({"+  #", " ## "}, 6); });
    button.SetPicture(Strip({"#  #", " ## "}, 1));
    EXPECT_EQ(FaceOn(40, 40).At(17, 18), red);
}

TEST_F(FinePictureOfButton, WithoutAMaskItCoversAll) {
    button.SetUseMaskColor(false);
    HasFinerEdition(button.Picture(), [] { return Strip({"#  #", " ## "}, 6); });
    const Image face = FaceOn(40, 40);
    EXPECT_EQ(face.At(18, 19), mask);
    EXPECT_EQ(face.At(15, 19), RGB(50, 100, 200));
    EXPECT_EQ(face.At(24, 19), RGB(50, 100, 200));
}

// Half of seven columns is nearly four: the second frame would go on by one column beyond the strip.
TEST_F(FinePictureOfButton, WhatAStripLacksOfItsLastFrameLeavesTheGround) {
    button.SetPictures(2);
    button.SetPicture(Strip({"    ###"}, 1));
    button.SetEnabled(false);
    for (const int times : {1, 2, 3}) {
        const Image face = FaceOn(20 * times, 20 * times);
        const int y = 9 * times;
        EXPECT_EQ(face.At(8 * times, y), red);
        EXPECT_EQ(face.At(11 * times - 1, y), red);
        EXPECT_EQ(face.At(11 * times, y), RGB(50, 100, 200));
        EXPECT_EQ(face.At(12 * times - 1, y), RGB(50, 100, 200));
    }
}

TEST_F(FinePictureOfButton, IsCutWhereTheSmallOneIs) {
    // 30 wide on a button of 20: from 3 to 17, its columns 8 to 22 show.
    std::string row(30, ' ');
    row[8] = row[21] = '#';
    row[7] = row[22] = '#';
    button.SetPicture(Strip({row}, 1));
    HasFinerEdition(button.Picture(), [row] { return Strip({row}, 6); });
    for (const int times : {1, 2}) {
        const Image face = FaceOn(20 * times, 20 * times);
        const int y = 9 * times;
        EXPECT_EQ(face.At(3 * times, y), red);
        EXPECT_EQ(face.At(16 * times, y), red);
        EXPECT_EQ(face.At(3 * times - 1, y), RGB(50, 100, 200));
        EXPECT_EQ(face.At(17 * times, y), RGB(50, 100, 200));
        EXPECT_EQ(face.At(4 * times, y), RGB(50, 100, 200));
    }
}

// The blocks of the font are 4 by 8 at this size.
struct CaptionOfButton : FineButton {
    CaptionOfButton() { form.Resize(50, 40); }
};

TEST_F(CaptionOfButton, IsInTheMiddle) {
    button.SetCaption("Fill");
    button.SetForeColor(red);
    const ButtonCaption caption = CaptionOf(button);
    EXPECT_EQ(caption.lines, std::vector<std::string>{"Fill"});
    EXPECT_EQ(caption.left, 3);
    EXPECT_EQ(caption.right, 47);
    EXPECT_EQ(caption.lineHeight, 8);
    EXPECT_EQ(caption.top, 16);
    EXPECT_TRUE(caption.centred);
    EXPECT_EQ(caption.colour, red);
}

TEST_F(CaptionOfButton, IsCutIntoLinesBetweenWords) {
    button.SetCaption("Fill the shape");
    // 44 pixels are eleven letters.
    const ButtonCaption caption = CaptionOf(button);
    EXPECT_EQ(caption.lines, (std::vector<std::string>{"Fill the", "shape"}));
    EXPECT_EQ(caption.top, 12);
}

TEST_F(CaptionOfButton, StandsBesideThePictureOrBehindOneThatIsCut) {
    button.SetPictures(1);
    button.SetPicture(Strip({"##########"}, 1));
    button.SetCaption("Fill");
    ButtonCaption caption = CaptionOf(button);
    EXPECT_EQ(caption.left, 18);
    EXPECT_TRUE(caption.centred);
    // 40 + 10 + 5 are 5 too many: the picture begins at -2, of which 5 are lost.
    button.SetCaption("Fill shape");
    caption = CaptionOf(button);
    EXPECT_EQ(caption.left, 13);
    EXPECT_FALSE(caption.centred);
}

TEST_F(CaptionOfButton, IsGreyWhenDisabled) {
    button.SetCaption("Fill");
    button.SetForeColor(red);
    button.SetEnabled(false);
    EXPECT_EQ(CaptionOf(button).colour, RGB(131, 131, 131));
}

TEST_F(CaptionOfButton, IsNoPartOfTheFineFace) {
    const Image without = FaceOn(100, 80);
    button.SetCaption("Fill");
    EXPECT_TRUE(FaceOn(100, 80) == without);
}

}  // namespace
}  // namespace coinlet
