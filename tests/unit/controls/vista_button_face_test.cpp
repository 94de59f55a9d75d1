// The whole face of the button in each state, against a slow drawing of the rules on a plain grid of colours.

#include "button_form.h"
#include "controls/fine_button.h"

#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace coinlet {
namespace {

// Body (G) and lines (C): red, green, blue when normal, hovered, pressed, focused, disabled.
constexpr const char* colourTable = R"(
G0 242,242,242 234,246,253 228,243,251 236,245,250 244,244,244
G1 235,235,235 217,240,252 196,229,246 230,242,248 244,244,244
G2 221,221,221 190,230,253 152,209,239 206,231,244 244,244,244
G3 207,207,207 167,217,245 104,179,219 187,219,237 244,244,244
G4 251,251,251 249,253,254 176,195,206 52,213,254 252,252,252
G5 250,250,250 245,251,254 154,186,203 51,212,253 252,252,252
G6 246,246,246 239,249,254 120,170,197 56,210,252 252,252,252
G7 243,243,243 233,246,253 85,146,181 42,207,250 252,252,252
C0 112,112,112 232,245,252 44,98,139 60,127,177 173,178,181
C1 252,252,252 60,127,177 158,176,186 52,213,254 252,252,252
C2 144,144,144 250,253,254 57,89,113 160,190,212 183,187,190
C3 119,119,119 102,147,181 46,96,134 86,143,186 175,180,183
C4 135,136,136 66,131,179 51,86,113 158,188,211 177,181,184
C5 145,145,145 88,138,175 58,104,138 50,146,195 192,195,198
C6 232,232,232 105,157,195 134,157,171 44,199,243 241,242,242
C7 117,117,117 223,235,243 44,95,134 83,142,185 174,179,182
C8 234,234,234 62,128,178 134,157,171 45,200,244 242,242,243
C9 250,250,250 225,237,244 186,203,213 107,223,253 251,251,251
C10 112,112,112 247,251,254 44,98,139 60,127,177 173,178,181
C11 252,252,252 62,128,178 170,188,199 52,213,254 252,252,252
C12 134,134,134 249,253,254 75,117,147 155,187,210 176,181,184
C13 117,117,117 87,138,175 46,100,140 81,140,184 174,179,182
C14 136,136,136 62,128,178 71,110,140 158,188,211 177,182,185
C15 143,143,143 90,139,176 47,100,138 50,145,194 192,195,198
C16 228,228,228 100,155,195 99,172,211 37,197,242 243,243,244
C17 117,117,117 212,231,243 45,97,136 83,142,185 174,179,182
C18 226,226,226 62,129,178 85,146,181 37,196,241 242,242,243
C19 236,236,236 211,230,242 109,181,220 84,210,247 251,251,251
C20 243,243,243 220,240,251 104,179,219 41,206,250 252,252,252
)";

using ColourTable = std::map<std::string, std::vector<Colour>>;

ColourTable ReadColourTable() {
    ColourTable table;
    std::istringstream lines(colourTable);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string name;
        if (!(fields >> name)) continue;
        for (int state = 0; state < 5; ++state) {
            int red = 0, green = 0, blue = 0;
            char comma = 0;
            fields >> red >> comma >> green >> comma >> blue;
            table[name].push_back(RGB(red, green, blue));
        }
    }
    return table;
}

int HalfToEven(int doubled) {
    const int down = doubled >= 0 ? doubled / 2 : -((1 - doubled) / 2);
    return doubled % 2 == 0 || down % 2 == 0 ? down : down + 1;
}

/// A grid of colours on which each rule of the button is one plain loop.
class PlainFace {
public:
    PlainFace(int width, int height, ButtonState state, Colour backColor)
        : W(width), H(height), state_(static_cast<std::size_t>(state)), backColor_(backColor) {}

    Colour At(int x, int y) const {
        const auto found = pixels_.find({x, y});
        return found == pixels_.end() ? backColor_ : found->second;
    }

    void DrawBody() {
        const int M = H * 10 / 22;
        Gradient(2, 2, W - 2, M, Of("G0"), Of("G1"));
        Gradient(2, M, W - 2, H - 2, Of("G2"), Of("G3"));
        Gradient(1, 3, 2, M, Of("G4"), Of("G5"));
        Gradient(W - 2, 3, W - 1, M, Of("G4"), Of("G5"));
        Gradient(1, M, 2, H - 3, Of("G6"), Of("G7"));
        Gradient(W - 2, M, W - 1, H - 3, Of("G6"), Of("G7"));
        if (state_ == 2) DrawPressMarks();
        if (state_ == 3) DrawGlow(M);
    }

    void DrawFrame() {
        Box(0, 0, W - 1, H - 1, Of("C0"));
        Box(3, 1, W - 4, 1, Of("C1"));
        Box(3, H - 2, W - 4, H - 2, Of("C20"));
        const std::vector<std::pair<int, int>> top = {{1, 0}, {2, 0}, {0, 1}, {1, 1}, {2, 1},
                                                      {0, 2}, {1, 2}, {2, 2}, {0, 3}, {1, 3}};
        const std::vector<std::pair<int, int>> bottom = {{1, 1}, {2, 1}, {0, 2}, {1, 2},
                                                         {2, 2}, {0, 3}, {1, 3}, {2, 3}};
        for (const bool right : {false, true})
            for (std::size_t i = 0; i < top.size(); ++i)
                Put(right ? W - 1 - top[i].first : top[i].first, top[i].second,
                    Of("C" + std::to_string(2 + i)));
        for (const bool right : {false, true})
            for (std::size_t i = 0; i < bottom.size(); ++i)
                Put(right ? W - 1 - bottom[i].first : bottom[i].first, H - bottom[i].second,
                    Of("C" + std::to_string(12 + i)));
    }

    /// A word of `letters` letters of the font of blocks at 8.25 points: cells of 4 by 8 pixels, each with a
    /// block of 3 by 7.
    void DrawWord(int letters, Colour colour) {
        const int width = 4 * letters, top = HalfToEven(H - 8), bottom = HalfToEven(H + 8);
        const int spare = W - 6 - width;
        const int left = 3 + (spare >= 0 ? spare / 2 : -((1 - spare) / 2));
        for (int y = top; y < std::min(top + 7, bottom); ++y)
            for (int x = std::max(left, 3); x < std::min(left + width, W - 3); ++x)
                if ((x - left) % 4 != 3) Put(x, y, colour);
    }

private:
    Colour Of(const std::string& name) const {
        static const ColourTable table = ReadColourTable();
        return table.at(name)[state_];
    }
    void Put(int x, int y, Colour colour) {
        if (x >= 0 && y >= 0 && x < W && y < H) pixels_[{x, y}] = colour;
    }
    void Gradient(int x1, int y1, int x2, int y2, Colour first, Colour last) {
        if (y2 < y1) std::swap(first, last);  // a vertex keeps its colour where it lies
        const int top = std::min(y1, y2), rows = std::abs(y2 - y1);
        for (int i = 0; i < rows; ++i) {
            const auto mixed = [&](int a, int b) {
                return (a * 256 * (rows - i) + b * 256 * i) / rows / 256;
            };
            for (int x = std::min(x1, x2); x < std::max(x1, x2); ++x)
                Put(x, top + i,
                    RGB(mixed(Red(first), Red(last)), mixed(Green(first), Green(last)),
                        mixed(Blue(first), Blue(last))));
        }
    }
    void Box(int x1, int y1, int x2, int y2, Colour colour) {
        for (int x = std::min(x1, x2); x <= std::max(x1, x2); ++x)
            for (int y = std::min(y1, y2); y <= std::max(y1, y2); ++y)
                if (x == x1 || x == x2 || y == y1 || y == y2) Put(x, y, colour);
    }
    void DrawPressMarks() {
        Box(3, 1, 6, 1, RGB(151, 170, 180));
        Box(3, 2, 6, 2, RGB(220, 237, 246));
        Box(7, 1, 10, 1, RGB(157, 175, 185));
        Box(W - 4, 1, W - 7, 1, RGB(151, 170, 180));
        Box(W - 4, 2, W - 7, 2, RGB(220, 237, 246));
        Box(W - 8, 1, W - 11, 1, RGB(157, 175, 185));
        Box(3, H - 2, 6, H - 2, RGB(99, 172, 211));
        Box(3, H - 3, 6, H - 3, RGB(109, 181, 220));
        Box(7, H - 2, 10, H - 2, RGB(104, 178, 218));
        Put(2, 3, RGB(220, 237, 245));
        Put(W - 3, 3, RGB(220, 237, 245));
    }
    void DrawGlow(int M) {
        Box(3, 2, W - 4, 2, RGB(166, 233, 251));
        Box(3, H - 3, W - 4, H - 3, RGB(132, 213, 239));
        Gradient(2, 3, 3, M, RGB(165, 232, 251), RGB(161, 230, 249));
        Gradient(W - 2, 3, W - 3, M, RGB(165, 232, 251), RGB(161, 230, 249));
        Gradient(2, M, 3, H - 3, RGB(146, 222, 245), RGB(133, 213, 240));
        Gradient(W - 2, M, W - 3, H - 3, RGB(146, 222, 245), RGB(133, 213, 240));
    }

    int W, H;
    std::size_t state_;
    Colour backColor_;
    std::map<std::pair<int, int>, Colour> pixels_;
};

void ExpectFace(const VistaButton& button, const PlainFace& expected, int width, int height) {
    const Image face = button.Face().Image();
    ASSERT_EQ(face.Width(), width);
    ASSERT_EQ(face.Height(), height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            ASSERT_EQ(face.At(x, y), expected.At(x, y)) << "at " << x << ", " << y;
}

constexpr ButtonState allStates[] = {ButtonState::Normal, ButtonState::Hover, ButtonState::Pressed,
                                     ButtonState::Focused, ButtonState::Disabled};
constexpr std::pair<int, int> allSizes[] = {{70, 24}, {20, 20}, {97, 11}, {12, 40}, {5, 5},  {4, 9},
                                            {9, 4},   {3, 3},   {2, 2},   {1, 1},   {1, 30}, {30, 1},
                                            {7, 6},   {0, 0},   {0, 9},   {9, 0}};

struct FaceTest : testing::TestWithParam<ButtonState> {
    test::TestServices services;
    test::ButtonForm form{services.ForForms()};
    VistaButton& button = form.OkKnop;
    FaceTest() { services.platform.ShowMain(form); }
};

TEST_P(FaceTest, EveryPixelOfEverySize) {
    form.Enter(GetParam());
    ASSERT_EQ(button.State(), GetParam());
    button.SetCaption("AB");
    button.SetForeColor(RGB(10, 20, 30));
    for (const auto& [width, height] : allSizes) {
        SCOPED_TRACE(std::to_string(width) + " x " + std::to_string(height));
        form.Resize(width, height);
        PlainFace expected(width, height, GetParam(), RGB(240, 240, 240));
        expected.DrawBody();
        expected.DrawWord(2, GetParam() == ButtonState::Disabled ? RGB(131, 131, 131) : RGB(10, 20, 30));
        expected.DrawFrame();
        ExpectFace(button, expected, width, height);
    }
}

TEST_P(FaceTest, AFlatButtonShowsItsBodyOnHoverAndPressAlone) {
    form.Enter(GetParam());
    button.SetNoBackground(true);
    button.SetBackColor(RGB(220, 220, 190));
    button.SetCaption("ABC");
    const bool body = GetParam() == ButtonState::Hover || GetParam() == ButtonState::Pressed;
    PlainFace expected(70, 24, GetParam(), RGB(220, 220, 190));
    if (body) expected.DrawBody();
    expected.DrawWord(3, GetParam() == ButtonState::Disabled ? RGB(131, 131, 131) : black);
    if (body) expected.DrawFrame();
    ExpectFace(button, expected, 70, 24);
}

INSTANTIATE_TEST_SUITE_P(States, FaceTest, testing::ValuesIn(allStates));

TEST(Face, TheFourCornersAreCut) {
    test::TestServices services;
    test::ButtonForm form(services.ForForms());
    const PixelRect uncut = UncutPart(form.OkKnop.Face(), form.OkKnop);
    std::vector<std::pair<int, int>> cut;
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 70; ++x) {
            if ((x < uncut.left || x >= uncut.right) && (y < uncut.top || y >= uncut.bottom))
                cut.emplace_back(x, y);
        }
    }
    EXPECT_EQ(cut, (std::vector<std::pair<int, int>>{{0, 0}, {69, 0}, {0, 23}, {69, 23}}));
}

}  // namespace
}  // namespace coinlet
