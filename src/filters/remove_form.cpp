#include "filters/remove_form.h"

#include "base/numbers.h"
#include "controls/hourglass.h"
#include "core/canvas_dialog.h"
#include "core/context.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/text_keys.h"
#include "filters/colour_removal.h"
#include "filters/remove_form_layout.h"
#include "filters/surface_walk.h"
#include "surface/screen_grab.h"

#include <string>

namespace coinlet {

namespace {

/// Changes row by row the part of a picture that a canvas has. No event is served until it is done.
template <class Change>
void ChangeRows(Surface& picture, const Change& change) {
    for (int y = 0; y < canvasSide; ++y) {
        change(RowToChange(picture, y, canvasSide));
        picture.Refresh();
    }
}

}  // namespace

RemoveForm::RemoveForm(Context& context)
    : Form(context.services.ForForms(), "RemoveForm"), context_(context) {
    LayOutRemoveForm(*this);
    Pic.MouseDown = [this](int button, int, float x, float y) { Pic_MouseDown(button, x, y); };
    Pic.MouseMove = [this](int, int, float x, float y) { Pic_MouseMove(x, y); };
    BWKnop.Click = [this] { BWKnop_Click(); };
    GrayKnop.Click = [this] { GrayKnop_Click(); };
    RGBKnop.Bind(&VistaButton::Click, [this](int index) { RGBKnop_Click(index); });
    Check2.Click = [this] { Check2_Click(); };
    LoepTimer.Tick = [this] { LoepTimer_Timer(); };
    ResetKnop.Click = [this] { CopyCanvas(context_, Pic.surface); };
    ExportKnop.Click = [this] { ExportToCanvas(context_, *this, Pic.surface.Image()); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
}

void RemoveForm::Form_Load() {
    Label2.Caption = LookupInfoText(context_, key::removalHelp);
    ShowColour(white);
    CopyCanvas(context_, Pic.surface);
    Check1.SetFocus();
}

void RemoveForm::Pic_MouseDown(int button, float x, float y) {
    if (button == leftButton) RemoveColor(Pic.surface.Point(x, y));
}

void RemoveForm::Pic_MouseMove(float x, float y) {
    ShowColour(Pic.surface.Point(x, y));
}

void RemoveForm::ShowColour(Colour colour) {
    ColorLabel.BackColor = colour;
    Label4.Caption = "RGB : " + std::to_string(Red(colour)) + "," + std::to_string(Green(colour)) + "," +
                     std::to_string(Blue(colour));
}

void RemoveForm::RemoveColor(Colour colour) {
    const Hourglass hourglass(GetPlatform());
    const auto wipe = WipesTheOthers() ? WipeOtherColours : WipeColour;
    ChangeRows(Pic.surface, [=](std::span<Pixel> row) { wipe(row, colour); });
}

void RemoveForm::BWKnop_Click() {
    const Hourglass hourglass(GetPlatform());
    ApplyBlackWhite(context_, Pic.surface);
}

void RemoveForm::GrayKnop_Click() {
    const Hourglass hourglass(GetPlatform());
    OnlyGray(context_, Pic.surface);
}

void RemoveForm::RGBKnop_Click(int index) {
    const Hourglass hourglass(GetPlatform());
    const auto channel = static_cast<Channel>(index);
    ChangeRows(Pic.surface, [channel](std::span<Pixel> row) { ClearChannel(row, channel); });
}

void RemoveForm::Check2_Click() {
    LoepTimer.Enabled = !LoepTimer.Enabled;
    if (!LoepTimer.Enabled) Picture1.surface.Cls();
}

void RemoveForm::LoepTimer_Timer() {
    constexpr double enlargement = 4;
    int x = 0, y = 0;
    context_.services.screenGrab.GetCursorPos(&x, &y);
    Surface& lens = Picture1.surface;
    lens.Cls();
    const int width = RoundHalfEven(lens.ScaleWidth() / enlargement);
    const int height = RoundHalfEven(lens.ScaleHeight() / enlargement);
    const int left = x - width / 2, top = y - height / 2;
    const Image seen = context_.services.screenGrab.Grab({left, top, left + width, top + height});
    lens.PaintPicture(seen, Rectangle{0, 0, lens.ScaleWidth(), lens.ScaleHeight()});
}

}  // namespace coinlet
