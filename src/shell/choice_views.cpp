// Check boxes and option buttons: a mark at the left, a caption beside it.

#include "controls/check_box.h"
#include "controls/text_lines.h"
#include "shell/accessible_controls.h"
#include "shell/control_view.h"
#include "shell/device_pixels.h"
#include "shell/focus_ring.h"
#include "shell/look.h"
#include "shell/painted_widget.h"
#include "shell/qt_text.h"
#include "shell/views.h"

#include <QPolygonF>

#include <algorithm>
#include <string>

namespace coinlet {

namespace {

void PaintTick(QPainter& painter, const QRectF& box) {
    painter.setPen(QPen(painter.pen().color(), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF corner = box.topLeft();
    painter.drawPolyline(
        QPolygonF{corner + QPointF(3, 6.5), corner + QPointF(5.5, 9), corner + QPointF(10, 3.5)});
}

void PaintDot(QPainter& painter, const QRectF& box) {
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(box.center(), 3, 3);
}

template <class Choice>
class ChoiceView : public ViewOf<Choice> {
public:
    ChoiceView(Choice& choice, PaintedWidget& widget, EventGate& gate, bool round)
        : ViewOf<Choice>(choice, widget, gate), round_(round) {
        widget.Paint = [this](QPainter& painter, const QRect&) { Paint(painter); };
    }

protected:
    void MirrorContent() override {
        const Choice& choice = this->model();
        const bool captionChanged = Differs(caption_, choice.Caption);
        if (captionChanged) this->UpdateAccessibleName();
        const bool fontChanged = Differs<FontProperties, FontProperties>(font_, choice);
        if (fontChanged) letters_ = ToQFont(font_);
        const Look look{choice.ForeColor, choice.BackColor, choice.Value(), choice.HasFocus()};
        const bool ticked = look_.value != look.value;
        const bool lookChanged = Differs(look_, look);
        if (captionChanged || fontChanged || lookChanged) this->Widget().update();
        if (ticked) AnnounceTick(this->Widget());
    }
    std::string_view CaptionText() const override { return caption_; }

private:
    struct Look {
        Colour fore = black, back = white;
        bool value = false, focused = false;
        friend bool operator==(const Look&, const Look&) = default;
    };

    void Paint(QPainter& painter) const {
        const QWidget& widget = this->Widget();
        DevicePixels(painter).Fill(widget.rect(), ToQColor(look_.back));
        PaintMark(painter, (widget.height() - toggleMark) / 2);

        painter.setFont(letters_);
        painter.setPen(ToQColor(widget.isEnabled() ? look_.fore : disabledTextColour));
        const QRect room = widget.rect().adjusted(toggleCaptionLeft, 0, 0, 0);
        const QString text = ToQString(caption_);
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, text);
        if (!look_.focused) return;
        // Where there is no caption, the mark has it.
        const QRect around = text.isEmpty()
                                 ? QRect(0, 0, toggleMark, widget.height())
                                 : painter.boundingRect(room, Qt::AlignLeft | Qt::AlignVCenter, text);
        PaintFocusRing(painter, around.adjusted(-4, -2, 4, 2).intersected(widget.rect()));
    }

    /// At the left, `top` pixels from the upper edge; its outline lies on whole pixels of the screen.
    void PaintMark(QPainter& painter, int top) const {
        DevicePixels screen(painter);
        const QRect place = screen.Of(QRect(0, top, toggleMark, toggleMark));
        const int thickness = screen.Thickness(1);
        const double half = thickness / 2.0;
        const QRectF outline = QRectF(place).adjusted(half, half, -half, -half);
        painter.setRenderHint(QPainter::Antialiasing);
        const bool enabled = this->Widget().isEnabled();
        painter.setPen(QPen(ToQColor(edgeColour), thickness));
        painter.setBrush(ToQColor(enabled ? fieldColour : disabledFieldColour));
        if (round_) {
            painter.drawEllipse(outline);
        } else {
            constexpr double corner = 1.5;
            painter.drawRoundedRect(outline, corner * thickness, corner * thickness);
        }
        if (!look_.value) return;
        painter.translate(place.topLeft());
        painter.scale(place.width() / double{toggleMark}, place.height() / double{toggleMark});
        painter.setPen(ToQColor(fieldTextColour));
        const QRectF box(0.5, 0.5, toggleMark - 1, toggleMark - 1);
        if (round_) {
            PaintDot(painter, box);
        } else {
            PaintTick(painter, box);
        }
    }

    bool round_;
    std::string caption_;
    FontProperties font_{.FontName = {}};
    QFont letters_;
    Look look_;
};

}  // namespace

ControlView* MakeCheckBoxView(Control& control, QWidget& parent, EventGate& gate) {
    return new ChoiceView<CheckBox>(static_cast<CheckBox&>(control), *new PaintedWidget(&parent), gate,
                                    false);
}

ControlView* MakeOptionButtonView(Control& control, QWidget& parent, EventGate& gate) {
    return new ChoiceView<OptionButton>(static_cast<OptionButton&>(control), *new PaintedWidget(&parent),
                                        gate, true);
}

}  // namespace coinlet
