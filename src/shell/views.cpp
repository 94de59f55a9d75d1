#include "shell/views.h"

#include "controls/control.h"

#include <algorithm>
#include <iterator>

namespace coinlet {

namespace {

struct Maker {
    ControlKind kind;
    ControlView* (*make)(Control& control, QWidget& parent, EventGate& gate);
};

constexpr Maker makers[] = {
    {ControlKind::Label, MakeLabelView},         {ControlKind::TextBox, MakeTextBoxView},
    {ControlKind::CheckBox, MakeCheckBoxView},   {ControlKind::OptionButton, MakeOptionButtonView},
    {ControlKind::ScrollBar, MakeScrollBarView}, {ControlKind::ListBox, MakeListBoxView},
    {ControlKind::ComboBox, MakeComboBoxView},   {ControlKind::PictureBox, MakePictureBoxView},
    {ControlKind::Frame, MakeFrameView},         {ControlKind::Button, MakeButtonView},
};

}  // namespace

ControlView* MakeView(Control& control, QWidget& parent, EventGate& gate) {
    const auto* maker = std::find_if(std::begin(makers), std::end(makers),
                                     [&](const Maker& entry) { return entry.kind == control.Kind(); });
    return maker == std::end(makers) ? nullptr : maker->make(control, parent, gate);
}

}  // namespace coinlet
