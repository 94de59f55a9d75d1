#include "base/numbers.h"
#include "controls/picture_box.h"
#include "shell/control_view.h"
#include "shell/focus_ring.h"
#include "shell/frame_pace.h"
#include "shell/look.h"
#include "shell/outlines.h"
#include "shell/painted_widget.h"
#include "shell/qt_image.h"
#include "shell/views.h"

#include <QRegion>

#include <cstdint>

namespace coinlet {

namespace {

class PictureBoxView : public ViewOf<PictureBox>, public SurfaceScreen {
public:
    PictureBoxView(PictureBox& box, PaintedWidget& widget, EventGate& gate) : ViewOf(box, widget, gate) {
        // Every pixel is painted here, so nothing needs to be painted behind.
        widget.setAttribute(Qt::WA_OpaquePaintEvent);
        widget.Paint = [this](QPainter& painter, const QRect& dirty) { Paint(painter, dirty); };
        box.surface.SetScreen(this);
    }

    void GatherOutlines() override { outlines_.Gather(model(), Widget()); }
    void Detach() override {
        model().surface.SetScreen(nullptr);
        outlines_.Clear();
        ViewOf::Detach();
    }

    void SurfaceRefreshed(const Surface&) override {
        if (!Shown() || !pace_.Due()) return;
        const QRect changed = TakeChanges();
        if (!changed.isEmpty()) Widget().repaint(changed);
    }

protected:
    /// A picture of no pixels shows nothing at all.
    int FrameWidth() const override { return model().Border && model().PixelWidth() > 0 ? 1 : 0; }
    void MirrorContent() override {
        const QRect changed = TakeChanges();
        if (!changed.isEmpty()) Widget().update(changed);
        outlines_.Mirror(Widget());
        const int place = model().HasFocus() ? model().PlaceNumber() : -1;
        if (Differs(markedPlace_, place)) Widget().update();
    }

private:
    /// The part of the widget that no longer shows the pixels as they are.
    QRect TakeChanges() {
        const Surface& surface = model().surface;
        if (!Differs(revision_, surface.Revision())) return {};
        const PixelRect changed = surface.Changed();
        surface.ForgetChanges();
        const QSize size(surface.PixelWidth(), surface.PixelHeight());
        if (Differs(size_, size)) return Widget().rect();
        const int frame = FrameWidth();
        return {changed.left + frame, changed.top + frame, changed.Width(), changed.Height()};
    }

    void Paint(QPainter& painter, const QRect& dirty) const {
        if (!Shown()) return;
        const Surface& surface = model().surface;
        const QImage pixels = ViewPixels(surface.Pixels());
        const int frame = FrameWidth();
        const QRect place = pixels.rect().translated(frame, frame);
        const QRect covered = dirty & place;
        if (!covered.isEmpty()) painter.drawImage(covered, pixels, covered.translated(-frame, -frame));
        for (const QRect& rest : QRegion(dirty) - place) {
            painter.fillRect(rest, ToQColor(surface.BackColor()));
        }
        outlines_.Paint(painter);
        if (frame > 0) PaintFrame(painter);
        if (markedPlace_ >= 0) PaintFocusRing(painter, MarkedPlace());
    }

    /// The place that keys press, with a little room around it.
    QRect MarkedPlace() const {
        constexpr int room = 2;
        const auto& places = model().PressPlaces();
        if (markedPlace_ >= static_cast<int>(places.size())) return {};
        const auto& [x, y, width, height] = places[static_cast<std::size_t>(markedPlace_)];
        const double unit = model().ChildUnitsPerPixel();
        const QRect place(RoundHalfEven(x / unit), RoundHalfEven(y / unit), RoundHalfEven(width / unit),
                          RoundHalfEven(height / unit));
        return place.adjusted(-room, -room, room, room) & Widget().rect();
    }

    /// Black on white, so that it shows on every design.
    void PaintFrame(QPainter& painter) const {
        QPen dots(ToQColor(black), 1);
        dots.setDashPattern({3, 3});
        painter.setBrush(Qt::NoBrush);
        const QRect frame = Widget().rect().adjusted(0, 0, -1, -1);
        painter.setPen(ToQColor(white));
        painter.drawRect(frame);
        painter.setPen(dots);
        painter.drawRect(frame);
    }

    std::uint64_t revision_ = ~std::uint64_t{0};
    QSize size_;
    int markedPlace_ = -1;
    FramePace pace_;
    Outlines outlines_;
};

}  // namespace

ControlView* MakePictureBoxView(Control& control, QWidget& parent, EventGate& gate) {
    return new PictureBoxView(static_cast<PictureBox&>(control), *new PaintedWidget(&parent), gate);
}

}  // namespace coinlet
