#pragma once

namespace coinlet {

class Control;
class ControlView;
class EventGate;
}  // namespace coinlet

class QWidget;

namespace coinlet {

// One maker a kind of control. Each makes a hidden widget in `parent` and the view that belongs to it. The
// control must be of that kind.

ControlView* MakeLabelView(Control& control, QWidget& parent, EventGate& gate);
ControlView* MakeTextBoxView(Control& control, QWidget& parent, EventGate& gate);
ControlView* MakeCheckBoxView(Control& control, QWidget& parent, EventGate& gate);
ControlView* MakeOptionButtonView(Control& control, QWidget& parent, EventGate& gate);
ControlView* MakeScrollBarView(Control& control, QWidget& parent, EventGate& gate);
ControlView* MakeListBoxView(Control& control, QWidget& parent, EventGate& gate);
ControlView* MakeComboBoxView(Control& control, QWidget& parent, EventGate& gate);
ControlView* MakePictureBoxView(Control& control, QWidget& parent, EventGate& gate);
ControlView* MakeFrameView(Control& control, QWidget& parent, EventGate& gate);
ControlView* MakeButtonView(Control& control, QWidget& parent, EventGate& gate);

/// The view of a control of any kind, or nullptr for the kinds that their container paints: shapes and lines.
ControlView* MakeView(Control& control, QWidget& parent, EventGate& gate);

}  // namespace coinlet
