#include "controls/frame.h"
#include "shell/control_view.h"
#include "shell/device_pixels.h"
#include "shell/look.h"
#include "shell/outlines.h"
#include "shell/painted_widget.h"
#include "shell/qt_text.h"
#include "shell/views.h"

#include <string>

namespace coinlet {

namespace {

class FrameView : public ViewOf<Frame> {
public:
    FrameView(Frame& frame, PaintedWidget& widget, EventGate& gate) : ViewOf(frame, widget, gate) {
        widget.setFocusPolicy(Qt::NoFocus);
        widget.Paint = [this](QPainter& painter, const QRect&) { Paint(painter); };
    }

    void GatherOutlines() override { outlines_.Gather(model(), Widget()); }
    void Detach() override {
        outlines_.Clear();
        ViewOf::Detach();
    }

protected:
    void MirrorContent() override {
        const Frame& frame = model();
        const bool captionChanged = Differs(caption_, frame.Caption);
        if (captionChanged) UpdateAccessibleName();
        const bool fontChanged = Differs<FontProperties, FontProperties>(font_, frame);
        if (fontChanged) letters_ = ToQFont(font_);
        const Look look{frame.ForeColor, frame.BackColor, frame.Border};
        const bool lookChanged = Differs(look_, look);
        if (captionChanged || fontChanged || lookChanged) Widget().update();
        outlines_.Mirror(Widget());
    }
    std::string_view CaptionText() const override { return caption_; }

private:
    struct Look {
        Colour fore = black, back = white;
        bool border = true;
        friend bool operator==(const Look&, const Look&) = default;
    };

    void Paint(QPainter& painter) const {
        constexpr int captionLeft = 8;
        const QRect box = Widget().rect();
        const QString caption = ToQString(caption_);
        painter.setFont(letters_);
        const QFontMetrics metrics = painter.fontMetrics();
        const int captionHeight = caption.isEmpty() ? 0 : metrics.height();
        const QRect room(captionLeft - 3, 0, metrics.horizontalAdvance(caption) + 6, captionHeight);
        {
            DevicePixels screen(painter);
            screen.Fill(box, ToQColor(look_.back));
            if (look_.border) screen.Frame(box.adjusted(0, captionHeight / 2, 0, 0), ToQColor(edgeColour));
            if (!caption.isEmpty()) screen.Fill(room, ToQColor(look_.back));
        }
        if (!caption.isEmpty()) {
            painter.setPen(ToQColor(Widget().isEnabled() ? look_.fore : disabledTextColour));
            painter.drawText(room, Qt::AlignCenter, caption);
        }
        outlines_.Paint(painter);
    }

    std::string caption_;
    FontProperties font_{.FontName = {}};
    QFont letters_;
    Look look_;
    Outlines outlines_;
};

}  // namespace

ControlView* MakeFrameView(Control& control, QWidget& parent, EventGate& gate) {
    return new FrameView(static_cast<Frame&>(control), *new PaintedWidget(&parent), gate);
}

}  // namespace coinlet
