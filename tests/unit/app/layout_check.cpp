#include "unit/app/layout_check.h"

#include "base/font.h"
#include "base/text.h"
#include "controls/check_box.h"
#include "controls/frame.h"
#include "controls/label.h"
#include "controls/picture_box.h"
#include "controls/text_box.h"
#include "controls/text_lines.h"
#include "controls/vista_button.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace coinlet::test {

namespace {

/// A place on the form, in twips.
struct Place {
    double left, top, right, bottom;

    double Height() const { return bottom - top; }
    bool Holds(const Place& other) const {
        return left <= other.left && top <= other.top && right >= other.right && bottom >= other.bottom;
    }
    bool Meets(const Place& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
};

/// In the units of its container.
Place PlaceOf(const Control& control) {
    return {control.Left(), control.Top(), control.Left() + control.Width(),
            control.Top() + control.Height()};
}

/// The container as the control that it is; nullptr for the form.
const Control* AsControl(const Container& container) {
    return dynamic_cast<const Control*>(&container);
}

Place PlaceOnForm(const Control& control) {
    const double twips = twipsPerPixel / control.Parent().ChildUnitsPerPixel();
    const Place own = PlaceOf(control);
    Place place{own.left * twips, own.top * twips, own.right * twips, own.bottom * twips};
    if (const Control* around = AsControl(control.Parent())) {
        const Place outer = PlaceOnForm(*around);
        place = {place.left + outer.left, place.top + outer.top, place.right + outer.left,
                 place.bottom + outer.top};
    }
    return place;
}

/// The part of it that its containers show.
Place SeenOnForm(const Control& control) {
    Place seen = PlaceOnForm(control);
    for (const Control* around = AsControl(control.Parent()); around; around = AsControl(around->Parent())) {
        const Place outer = PlaceOnForm(*around);
        seen = {std::max(seen.left, outer.left), std::max(seen.top, outer.top),
                std::min(seen.right, outer.right), std::min(seen.bottom, outer.bottom)};
    }
    return seen;
}

std::string Called(const Control& control, const std::string& when) {
    std::ostringstream name;
    name << control.OwnerForm().Name() << "." << control.Name();
    if (control.Index() != noIndex) name << "(" << control.Index() << ")";
    name << " " << when;
    return name.str();
}

std::vector<const Control*> ControlsOf(const Form& form) {
    std::vector<const Control*> controls;
    for (const Element* element : form.Elements())
        if (const auto* control = dynamic_cast<const Control*>(element)) controls.push_back(control);
    return controls;
}

bool IsDecoration(const Control& control) {
    return control.Kind() == ControlKind::Shape || control.Kind() == ControlKind::Line;
}

bool IsKeptFromSight(const Control& control) {
    return !control.Visible && control.Left() == 0 && control.Top() == 0;
}

bool IsGround(const Control& control) {
    const auto* board = dynamic_cast<const PictureBox*>(&control);
    if (board != nullptr) return !board->LinesToRead().empty();
    const auto* label = dynamic_cast<const Label*>(&control);
    return label != nullptr && TrimBlanks(label->Caption).empty();
}

/// The lines of a text that may have line ends.
std::vector<std::string> LinesOf(const std::string& text, int width, const FontSpec& font,
                                 const FontEngine& fonts) {
    std::vector<std::string> lines;
    std::istringstream paragraphs(text);
    for (std::string paragraph; std::getline(paragraphs, paragraph);) {
        if (paragraph.ends_with('\r')) paragraph.pop_back();
        for (std::string& line : WrapLine(paragraph, width, font, fonts))
            lines.push_back(std::move(line));
    }
    return lines;
}

/// The text fits a room of that many pixels, wrapped between words where it may be wrapped.
void ExpectFits(const std::string& text, int width, int height, const FontSpec& font, const FontEngine& fonts,
                const std::string& called) {
    if (TrimBlanks(text).empty()) return;
    const auto lines = LinesOf(text, width, font, fonts);
    EXPECT_LE(std::ssize(lines) * fonts.Measure(font, "X").height, height)
        << called << " cuts \"" << text << '"';
    for (const std::string& line : lines)
        EXPECT_LE(fonts.Measure(font, TrimBlanks(line)).width, width) << called << " cuts \"" << line << '"';
    // A word that is wider than a line goes on in the next one.
    std::istringstream words(text);
    for (std::string word; words >> word;)
        EXPECT_LE(fonts.Measure(font, word).width, width) << called << " breaks \"" << word << '"';
}

void ExpectWholeOn(const Label& label, const std::string& text, const std::string& called) {
    if (label.AutoSize) return;
    constexpr int borderRoom = 2;
    const int edges = label.Border ? 2 * borderRoom : 0;
    ExpectFits(text, label.PixelWidth() - edges, label.PixelHeight() - edges, label.CurrentFont(),
               label.OwnerForm().Fonts(), called);
}

void ExpectWholeOn(const ToggleControl& toggle, const std::string& called) {
    const FontEngine& fonts = toggle.OwnerForm().Fonts();
    const TextExtent extent = fonts.Measure(toggle.CurrentFont(), toggle.Caption);
    EXPECT_LE(toggleCaptionLeft + extent.width, toggle.PixelWidth()) << called;
    EXPECT_LE(extent.height, toggle.PixelHeight()) << called;
}

void ExpectWholeOn(const VistaButton& button, const std::string& called) {
    // A picture stands before the caption, with room around both.
    constexpr int margin = 2, behindPicture = 8;
    const bool pictured = !button.Picture().Empty();
    const int before = pictured ? button.Picture().Width() / button.Pictures() + behindPicture : margin;
    ExpectFits(button.Caption(), button.PixelWidth() - before - margin, button.PixelHeight() - 2 * margin,
               button.Font().CurrentFont(), button.OwnerForm().Fonts(), called);
}

void ExpectWholeOn(const TextBox& box, const std::string& called) {
    const FontEngine& fonts = box.OwnerForm().Fonts();
    const auto lines = std::ssize(DisplayedLines(box));
    EXPECT_LE(lines * fonts.Measure(box.CurrentFont(), "X").height,
              box.PixelHeight() - 2 * (textBoxFrame + textBoxMargin))
        << called;
}

}  // namespace

void ExpectInside(const Form& form, const std::string& when) {
    for (const Control* control : ControlsOf(form)) {
        const Control* around = AsControl(control->Parent());
        if (IsKeptFromSight(*control) || dynamic_cast<const PictureBox*>(around) != nullptr) continue;
        // The edge of a picture may lie on the border of the form.
        const double slack = IsDecoration(*control) ? twipsPerPixel : 0;
        const double width = around ? around->Width() : form.Width;
        const double height = around ? around->Height() : form.Height;
        const Place room{-slack, -slack, width + slack, height + slack};
        EXPECT_TRUE(room.Holds(PlaceOf(*control))) << Called(*control, when) << " leaves its container";
    }
}

void ExpectApart(const Form& form, const std::string& when) {
    const auto controls = ControlsOf(form);
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const Control& front = *controls[i];
        if (!front.Shown() || IsDecoration(front)) continue;
        for (std::size_t j = 0; j < i; ++j) {
            const Control& behind = *controls[j];
            if (&behind.Parent() != &front.Parent() || !behind.Shown() || IsDecoration(behind)) continue;
            if (dynamic_cast<const PictureBox*>(AsControl(front.Parent())) != nullptr) continue;
            const Place upper = PlaceOf(front), lower = PlaceOf(behind);
            if (!upper.Meets(lower) || (IsGround(behind) && lower.Holds(upper))) continue;
            ADD_FAILURE() << Called(front, when) << " covers " << behind.Name();
        }
    }
}

void ExpectTextsWhole(const Form& form, const std::string& when) {
    for (const Control* control : ControlsOf(form)) {
        if (!control->Shown()) continue;
        const std::string called = Called(*control, when);
        if (const auto* label = dynamic_cast<const Label*>(control))
            ExpectWholeOn(*label, label->Caption, called);
        if (const auto* toggle = dynamic_cast<const ToggleControl*>(control)) ExpectWholeOn(*toggle, called);
        if (const auto* button = dynamic_cast<const VistaButton*>(control)) ExpectWholeOn(*button, called);
        const auto* box = dynamic_cast<const TextBox*>(control);
        if (box != nullptr && box->Locked && box->MultiLine && !box->VerticalScroll)
            ExpectWholeOn(*box, called);
    }
}

void ExpectReadingOrder(const Form& form, const std::string& when) {
    const Control* before = nullptr;
    for (const Control* control : form.TabOrder()) {
        if (!control->StopsTab()) continue;
        if (before != nullptr) {
            const Place last = SeenOnForm(*before), next = SeenOnForm(*control);
            // Two in one row may stand a little higher or lower than each other.
            const double row = std::min(last.Height(), next.Height()) / 2;
            EXPECT_TRUE(next.top >= last.top + row || next.left >= last.right)
                << Called(*control, when) << " comes after " << before->Name();
        }
        before = control;
    }
}

void ExpectWhole(const Label& label, const std::string& text, const std::string& when) {
    ExpectWholeOn(label, text, Called(label, when));
}

}  // namespace coinlet::test
