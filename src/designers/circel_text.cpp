#include "designers/circel_text.h"

#include "base/font.h"
#include "base/numbers.h"
#include "base/program.h"
#include "base/text.h"
#include "controls/number_list.h"
#include "core/canvas_dialog.h"
#include "core/context.h"
#include "core/font_sample.h"
#include "core/language.h"
#include "core/letter_outline.h"
#include "core/main_form.h"
#include "core/text_keys.h"
#include "designers/circel_text_layout.h"
#include "designers/rotated_text.h"

#include <cmath>
#include <string>
#include <vector>

namespace coinlet {

namespace {

constexpr int centre = canvasSide / 2;
/// Not pi to the last digit, on purpose: the places of the letters depend on it.
constexpr double nearlyPi = 3.14159625;
constexpr double halfTurn = 180, quarterTurn = 90;

constexpr NumberList distances{0, 10, 1, 2}, radii{100, 200, 5, 185}, sizes{20, 120, 2, 30};

double Radians(double degrees) {
    return degrees / halfTurn * nearlyPi;
}

}  // namespace

CircelText::CircelText(Context& context)
    : Form(context.services.ForForms(), "CircelText"), context_(context) {
    LayOutCircelText(*this);
    Check1.Click = [this] { Check1_Click(); };
    Combo4.Change = [this] { Combo4_Change(); };
    Combo4.Click = [this] { Combo4_Change(); };
    DrawKnop.Click = [this] { DrawKnop_Click(); };
    ExportKnop.Click = [this] { ExportToCanvas(context_, *this, Pic.surface.Image()); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
    DefaultButton = &DrawKnop;
}

void CircelText::Form_Load() {
    Text1.SetText(std::string(programTitle));
    Label8.Caption = LookupInfoText(context_, key::curvedTextHelp);
    FillWithNumbers(Combo1, distances);
    FillWithNumbers(Combo2, radii);
    FillWithNumbers(Combo3, sizes);
    for (const std::string& family : context_.services.fonts.Families())
        Combo4.AddItem(family);
    Combo4.SetText(std::string(standardFontName));
    Label9.BackColor = context_.main.ColorLabel.BackColor;
    CopyCanvas(context_, Pic.surface);
    Text1.SetFocus();
}

float CircelText::LetterSize() const {
    return Single(Val(Combo3.Text()));
}

Colour CircelText::InkColour() const {
    return TextIsInFillColour() ? context_.main.ColorLabel.BackColor : black;
}

void CircelText::Check1_Click() {
    Label9.Visible = TextIsInFillColour();
}

void CircelText::Combo4_Change() {
    ShowFontSample(FontLabel, Combo4.Text());
}

void CircelText::DrawKnop_Click() {
    DrawCurvedText(TextIsOnTop());
}

// The angle grows clockwise from 3 o'clock. A text on top starts with its first letter at 9 o'clock, since
// its radius is negative, and stands on the circle; one at the bottom starts with its last letter at 3
// o'clock and hangs into the circle.
void CircelText::DrawCurvedText(bool onTop) {
    Surface& picture = Pic.surface;
    picture.Cls();
    picture.FontName = Combo4.Text();
    picture.FontSize = LetterSize();
    picture.ForeColor = InkColour();
    picture.FontBold = Check3.Value();
    picture.FontItalic = Check4.Value();
    CopyCanvas(context_, picture);

    const std::vector<std::string> letters = Graphemes(Text1.Text());
    const std::size_t count = letters.size();
    const double step = ExtraSpacing() * (picture.FontSize / 10) + 2;  // degrees
    const double radius = onTop ? -Radius() : Radius();
    for (std::size_t i = 0; i < count; ++i) {
        const std::string& letter = onTop ? letters[i] : letters[count - 1 - i];
        const double height = picture.TextHeight(letter), halfWidth = picture.TextWidth(letter) / 2;
        const double turned = step * static_cast<double>(i);
        const double outward = Radians(turned), along = Radians(turned + quarterTurn);
        // The corner that a letter hangs by is at its head, which on top lies outside.
        const double distance = onTop ? radius - height : radius;
        DrawGlyph(letter, quarterTurn - turned,
                  std::nearbyint(std::cos(outward) * distance + std::cos(along) * halfWidth + centre),
                  std::nearbyint(std::sin(outward) * distance + std::sin(along) * halfWidth + centre));
    }
}

void CircelText::DrawGlyph(std::string_view glyph, double rotation, double x, double y) {
    Surface& picture = Pic.surface;
    const int degrees = RoundHalfEven(rotation);
    const auto draw = [&](double atX, double atY) {
        DrawRotatedText(glyph, degrees, RoundHalfEven(atX), RoundHalfEven(atY), picture);
    };
    picture.ForeColor = InkColour();
    if (LettersAreOpen()) {
        for (const LetterOffset& offset : letterOutline)
            draw(x + offset.x, y + offset.y);
        picture.ForeColor = white;
    }
    draw(x, y);
}

}  // namespace coinlet
