#include "controls/form.h"
#include "controls/label.h"
#include "shell/control_view.h"
#include "shell/device_pixels.h"
#include "shell/look.h"
#include "shell/painted_widget.h"
#include "shell/qt_text.h"
#include "shell/views.h"

#include <string>

namespace coinlet {

namespace {

class LabelView : public ViewOf<Label> {
public:
    LabelView(Label& label, PaintedWidget& widget, EventGate& gate) : ViewOf(label, widget, gate) {
        widget.setFocusPolicy(label.KeysPress() ? Qt::TabFocus : Qt::NoFocus);
        widget.Paint = [this](QPainter& painter, const QRect&) { Paint(painter); };
    }

protected:
    void MirrorContent() override {
        const Label& label = model();
        const bool captionChanged = Differs(caption_, label.Caption);
        if (captionChanged) UpdateAccessibleName();
        FontProperties font = label;
        // A name may stand for another font once one was added.
        if (label.Sample) font.FontName = label.OwnerForm().Fonts().KnownAs(label.FontName);
        const bool fontChanged = Differs(font_, font);
        sizeIsStale_ = !label.AutoSize || !autoSize_ || captionChanged || fontChanged;
        const Look look{label.ForeColor, label.BackColor, label.Transparent, label.Border,
                        label.Alignment, label.WordWrap,  label.AutoSize,    label.Margin};
        const bool lookChanged = Differs(look_, look);
        autoSize_ = label.AutoSize;
        if (fontChanged) letters_ = ToQFont(font_);
        if (captionChanged || fontChanged || lookChanged) Widget().update();
    }
    std::string_view CaptionText() const override { return caption_; }
    /// Measuring a text takes longer than all else here; its size changes only with the text.
    bool SizeIsStale() override { return sizeIsStale_; }

private:
    struct Look {
        Colour fore = black, back = white;
        bool transparent = true, border = false;
        Alignment alignment = Alignment::Left;
        bool wordWrap = true, autoSize = false;
        int margin = 0;
        friend bool operator==(const Look&, const Look&) = default;
    };

    void Paint(QPainter& painter) const {
        const QRect box = Widget().rect();
        {
            DevicePixels screen(painter);
            if (!look_.transparent) screen.Fill(box, ToQColor(look_.back));
            if (look_.border) screen.Frame(box, ToQColor(edgeColour));
        }
        painter.setFont(letters_);
        painter.setPen(ToQColor(Widget().isEnabled() ? look_.fore : disabledTextColour));
        const int sidewise = look_.alignment == Alignment::Left    ? Qt::AlignLeft
                             : look_.alignment == Alignment::Right ? Qt::AlignRight
                                                                   : Qt::AlignHCenter;
        int flags = sidewise | Qt::AlignTop | Qt::TextExpandTabs;
        if (look_.autoSize) flags |= Qt::TextDontClip;
        if (look_.wordWrap && !look_.autoSize) flags |= Qt::TextWordWrap;
        const int margin = look_.autoSize ? 0 : look_.margin + (look_.border ? 2 : 0);
        painter.drawText(box.adjusted(margin, margin, -margin, -margin), flags,
                         ToQString(caption_).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    }

    std::string caption_;
    FontProperties font_{.FontName = {}};
    QFont letters_;
    Look look_;
    bool autoSize_ = false;
    bool sizeIsStale_ = true;
};

}  // namespace

ControlView* MakeLabelView(Control& control, QWidget& parent, EventGate& gate) {
    return new LabelView(static_cast<Label&>(control), *new PaintedWidget(&parent), gate);
}

}  // namespace coinlet
