#include "controls/fine_button.h"
#include "controls/form.h"
#include "shell/control_view.h"
#include "shell/device_pixels.h"
#include "shell/look.h"
#include "shell/painted_widget.h"
#include "shell/qt_image.h"
#include "shell/qt_text.h"
#include "shell/views.h"

#include <cstdint>
#include <optional>
#include <string>

namespace coinlet {

namespace {

class ButtonView : public ViewOf<VistaButton> {
public:
    ButtonView(VistaButton& button, PaintedWidget& widget, EventGate& gate) : ViewOf(button, widget, gate) {
        widget.Paint = [this](QPainter& painter, const QRect&) { Paint(painter); };
    }

protected:
    void MirrorContent() override {
        if (!Differs(revision_, model().LookRevision())) return;
        if (Differs(caption_, model().Caption())) UpdateAccessibleName();
        Widget().update();
    }
    std::string_view CaptionText() const override { return caption_; }

private:
    void Paint(QPainter& painter) {
        if (!Shown()) return;
        PaintFace(painter);
        PaintCaption(painter);
    }

    /// All but the four corners, which are cut off.
    void PaintFace(QPainter& painter) {
        const DevicePixels pixels(painter);
        const QRect place = pixels.Of(Widget().rect());
        if (place.isEmpty()) return;
        DrawFace(place.size());
        const QImage picture = ViewPixels(face_->Pixels());
        const PixelRect uncut = UncutPart(*face_, model());
        const int width = place.width(), height = place.height();
        for (const QRect& part :
             {QRect(uncut.left, 0, uncut.Width(), uncut.top), QRect(0, uncut.top, width, uncut.Height()),
              QRect(uncut.left, uncut.bottom, uncut.Width(), height - uncut.bottom)}) {
            if (!part.isEmpty()) painter.drawImage(part.translated(place.topLeft()), picture, part);
        }
    }

    /// The face as it was drawn last is good while neither the button nor the screen has become another.
    void DrawFace(const QSize& size) {
        const bool fits =
            face_ && face_->PixelWidth() == size.width() && face_->PixelHeight() == size.height();
        if (fits && drawnRevision_ == model().LookRevision()) return;
        if (!fits) face_.emplace(model().OwnerForm().Fonts(), size.width(), size.height());
        DrawFineButton(*face_, model());
        drawnRevision_ = model().LookRevision();
    }

    /// Letters of the kind that labels have, as fine as the screen. They lie under the button's frame, which
    /// is two pixels wide above and below.
    void PaintCaption(QPainter& painter) const {
        constexpr int frame = 2;
        const ButtonCaption caption = CaptionOf(model());
        const int width = caption.right - caption.left;
        painter.setClipRect(QRect(caption.left, frame, width, Widget().height() - 2 * frame),
                            Qt::IntersectClip);
        painter.setFont(ToQFont(model().Font()));
        painter.setPen(ToQColor(caption.colour));
        const int sidewise = caption.centred ? Qt::AlignHCenter : Qt::AlignLeft;
        const int flags = sidewise | Qt::AlignTop | Qt::TextSingleLine | Qt::TextDontClip;
        int top = caption.top;
        for (const std::string& line : caption.lines) {
            painter.drawText(QRect(caption.left, top, width, caption.lineHeight), flags, ToQString(line));
            top += caption.lineHeight;
        }
    }

    std::optional<Surface> face_;
    std::uint64_t drawnRevision_ = 0;
    std::uint64_t revision_ = 0;
    std::string caption_;
};

}  // namespace

ControlView* MakeButtonView(Control& control, QWidget& parent, EventGate& gate) {
    return new ButtonView(static_cast<VistaButton&>(control), *new PaintedWidget(&parent), gate);
}

}  // namespace coinlet
