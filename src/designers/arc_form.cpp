#include "designers/arc_form.h"

#include "base/numbers.h"
#include "core/canvas_dialog.h"
#include "core/context.h"
#include "core/language.h"
#include "core/text_keys.h"
#include "designers/arc_form_layout.h"

#include <string>
#include <string_view>

namespace coinlet {

namespace {

struct ModeRow {
    std::string_view hintKey;
    int pointer;  ///< A cross where a press marks a place.
};
constexpr std::array<ModeRow, 5> modeRows{{
    {key::designArc, crossPointer},
    {key::triangleHelp, crossPointer},
    {key::circleHelp, defaultPointer},
    {key::curveHelp, defaultPointer},  // The form's own pointer tells the points.
    {key::polygonHelp, crossPointer},
}};

}  // namespace

ArcForm::ArcForm(Context& context)
    : Form(context.services.ForForms(), "ArcForm"),
      Segments(*this, Pic.surface, Layer, HScroll1),
      Curves(*this, Pic.surface, TMPres.surface, [this] { PictureWiped(); }),
      context_(context) {
    LayOutArcForm(*this);
    Option1.Bind(&OptionButton::Click, [this](int index) { Option1_Click(index); });
    Pic.MouseDown = [this](int button, int, float x, float y) { Pic_MouseDown(button, x, y); };
    Pic.MouseMove = [this](int button, int, float x, float y) { Pic_MouseMove(button, x, y); };
    Pic.MouseUp = [this](int, int, float, float) { Pic_MouseUp(); };
    HScroll1.Change = [this] { HScroll1_Change(); };
    HScroll1.Scroll = [this] { HScroll1_Change(); };
    ResetKnop.Click = [this] { ResetKnop_Click(); };
    ExportKnop.Click = [this] { ExportToCanvas(context_, *this, Pic.surface.Image()); };
    CancelKnop.Click = [this] { CloseDialog(context_, *this); };
}

void ArcForm::Form_Load() {
    Pic.surface.SetPicture(context_.main.Pic.surface.Image());
    InfoLabel.Caption = LookupInfoText(context_, modeRows[ArcMode].hintKey);
    Option1[ArcMode].SetFocus();
}

void ArcForm::Option1_Click(int index) {
    for (DrawingMode* mode : modes_)
        mode->Panel().Visible = false;
    Layer.Visible = false;
    ArcMode = static_cast<std::uint8_t>(index);
    const ModeRow& row = modeRows.at(ArcMode);
    Mode().Panel().Visible = true;
    Mode().Chosen();
    Pic.MousePointer = row.pointer;
    ShowHint(context_, row.hintKey);
    InfoLabel.Caption = context_.main.InfoLabel.Caption;
}

void ArcForm::Pic_MouseDown(int button, float x, float y) {
    Pic.surface.DrawWidth = HScroll1.Value();
    Pic.surface.ForeColor = black;
    Mode().Press(button, x, y);
}

void ArcForm::Pic_MouseMove(int button, float x, float y) {
    CorLabel.Caption = "X : " + FormatNumber(x) + ", Y : " + FormatNumber(y);
    Mode().Move(button, x, y);
}

void ArcForm::Pic_MouseUp() {
    Mode().Release();
}

// The label starts with its word spelled in full, and loses a letter when the slider is first moved.
void ArcForm::HScroll1_Change() {
    const int width = HScroll1.Value();
    Label3.Caption = "Line With (" + std::to_string(width) + ")";
    Mode().PenWidthChanged(width);
}

void ArcForm::ResetKnop_Click() {
    Segments.ResetSliders();
    Pic.surface.SetPicture(context_.main.Pic.surface.Image());
    TMPres.surface.SetPicture(Pic.surface.Image());
    PictureWiped();
}

void ArcForm::PictureWiped() {
    for (DrawingMode* mode : modes_)
        mode->PictureWiped();
}

}  // namespace coinlet
