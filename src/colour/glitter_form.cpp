#include "colour/glitter_form.h"

#include "base/numbers.h"
#include "base/program_folders.h"
#include "colour/glitter_form_layout.h"
#include "core/context.h"
#include "core/dialog.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/text_keys.h"
#include "surface/codecs.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string_view>

namespace coinlet {

namespace {

constexpr std::string_view chartFile = "Glitter.bak";

/// A place or a length in whole pixels; out of range it is the nearest there is.
std::int16_t Pixels(double value) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(RoundHalfEven(value), Limits::min(), Limits::max()));
}

/// How far a chart can be moved behind its frame. One that fits can't be moved at all.
std::int16_t Pan(double chart, double frame) {
    return Pixels(std::max(chart - frame, 0.0));
}

/// Where a drag takes the chart: it stops where an edge of the chart meets that of the frame.
std::int16_t SlideTo(double place, std::int16_t pan) {
    return static_cast<std::int16_t>(std::clamp<int>(RoundHalfEven(place), -pan, 0));
}

}  // namespace

GlitterForm::GlitterForm(Context& context)
    : Form(context.services.ForForms(), "GlitterForm"), context_(context) {
    LayOutGlitterForm(*this);
    SlidePic.MouseDown = [this](int, int, float x, float y) { SlidePic_MouseDown(x, y); };
    SlidePic.MouseMove = [this](int button, int, float x, float y) { SlidePic_MouseMove(button, x, y); };
    HScroll.Change = [this] { HScroll_Change(); };
    HScroll.Scroll = [this] { HScroll_Change(); };
    VScroll.Change = [this] { VScroll_Change(); };
    VScroll.Scroll = [this] { VScroll_Change(); };
    ExitKnop.Click = [this] { CloseDialog(context_, *this); };
}

void GlitterForm::Form_Load() {
    Label1.Caption = LookupInfoText(context_, key::glitterHelp);
    VScroll.SetFocus();
    const fs::path file = context_.services.applicationFolder / program_folder::data / chartFile;
    const auto chart = LoadPicture(file, context_.services.codecs);
    if (!chart) return;
    SlidePic.surface.SetPicture(*chart);
    panWidth_ = Pan(SlidePic.Width(), PicCont.surface.ScaleWidth());
    panHeight_ = Pan(SlidePic.Height(), PicCont.surface.ScaleHeight());
    HScroll.SetMax(panWidth_);
    VScroll.SetMax(panHeight_);
}

void GlitterForm::SlidePic_MouseDown(float x, float y) {
    grabX_ = Pixels(x);
    grabY_ = Pixels(y);
}

void GlitterForm::SlidePic_MouseMove(int button, float x, float y) {
    if (button != leftButton) return;
    // The chart moves under the pointer, so x and y stay near the grab.
    slideLeft_ = SlideTo(x - grabX_ + SlidePic.Left(), panWidth_);
    slideTop_ = SlideTo(y - grabY_ + SlidePic.Top(), panHeight_);
    SlidePic.Move(slideLeft_, slideTop_);
    HScroll.SetValue(std::abs(slideLeft_));
    VScroll.SetValue(std::abs(slideTop_));
}

void GlitterForm::HScroll_Change() {
    SlidePic.SetLeft(0.0 - HScroll.Value());
    slideLeft_ = Pixels(SlidePic.Left());
}

void GlitterForm::VScroll_Change() {
    SlidePic.SetTop(0.0 - VScroll.Value());
    slideTop_ = Pixels(SlidePic.Top());
}

}  // namespace coinlet
