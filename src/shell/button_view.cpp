#include "controls/vista_button.h"
#include "shell/control_view.h"
#include "shell/painted_widget.h"
#include "shell/qt_image.h"
#include "shell/views.h"

#include <cstdint>
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
    /// All but the four corner pixels, which are cut off.
    void Paint(QPainter& painter) const {
        if (!Shown()) return;
        const QImage face = ViewPixels(model().Face().Pixels());
        const int width = face.width();
        const int height = face.height();
        for (const QRect& part : {QRect(1, 0, width - 2, 1), QRect(0, 1, width, height - 2),
                                  QRect(1, height - 1, width - 2, 1)}) {
            if (!part.isEmpty()) painter.drawImage(part, face, part);
        }
    }

    std::uint64_t revision_ = 0;
    std::string caption_;
};

}  // namespace

ControlView* MakeButtonView(Control& control, QWidget& parent, EventGate& gate) {
    return new ButtonView(static_cast<VistaButton&>(control), *new PaintedWidget(&parent), gate);
}

}  // namespace coinlet
