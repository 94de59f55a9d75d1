#include "base/numbers.h"
#include "controls/picture_box.h"
#include "shell/control_view.h"
#include "shell/device_pixels.h"
#include "shell/focus_ring.h"
#include "shell/frame_pace.h"
#include "shell/look.h"
#include "shell/outlines.h"
#include "shell/painted_widget.h"
#include "shell/qt_image.h"
#include "shell/qt_text.h"
#include "shell/views.h"

#include <QRegion>

#include <cmath>
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
        // Lines to be read have letters that reach out of those of the surface.
        const bool reads = !model().LinesToRead().empty();
        const bool sizeChanged = Differs(size_, size), readsChanged = Differs(reads_, reads);
        if (sizeChanged || readsChanged || reads) return Widget().rect();
        const int frame = FrameWidth();
        const QRect place(changed.left + frame, changed.top + frame, changed.Width(), changed.Height());
        // Where a pixel is no whole number of the screen's, it shares some with its neighbours.
        const double scale = Widget().devicePixelRatioF();
        const int shared = scale == std::floor(scale) ? 0 : 1;
        return place.isEmpty() ? place : place.adjusted(-shared, -shared, shared, shared);
    }

    void Paint(QPainter& painter, const QRect& dirty) const {
        if (!Shown()) return;
        const Surface& surface = model().surface;
        const QImage pixels = ViewPixels(surface.Pixels());
        const int frame = FrameWidth();
        const QRect place = pixels.rect().translated(frame, frame);
        {
            DevicePixels screen(painter);
            for (const QRect& rest : QRegion(dirty) - place)
                screen.Fill(rest, ToQColor(surface.BackColor()));
            // The painter may take a pixel of the screen more than `dirty` covers by half.
            const QRect shown = screen.Of(place);
            const QRect part = screen.Of(dirty).adjusted(-1, -1, 1, 1) & shown;
            if (model().LinesToRead().empty()) {
                PaintPixels(painter, pixels, shown, part);
            } else {
                painter.fillRect(part, ToQColor(surface.BackColor()));
            }
        }
        for (const PrintedLine& line : model().LinesToRead())
            PaintLine(painter, line, place);
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

    /// The part of a picture at `place` that lies in `part`, enlarged without smoothing. Each pixel of the
    /// screen shows the one that its middle lies in, whatever part is painted: parts would not match if the
    /// painter enlarged each by itself.
    static void PaintPixels(QPainter& painter, const QImage& pixels, const QRect& place, const QRect& part) {
        if (pixels.isNull() || part.isEmpty()) return;
        if (place.size() == pixels.size()) {
            painter.drawImage(part, pixels, part.translated(-place.topLeft()));
            return;
        }
        const auto source = [](int target, int targets, int sources) {
            return static_cast<int>((2LL * target + 1) * sources / (2LL * targets));
        };
        QImage enlarged(part.size(), QImage::Format_RGB32);
        for (int y = 0; y < part.height(); ++y) {
            const int row = source(part.top() + y - place.top(), place.height(), pixels.height());
            const auto* from = reinterpret_cast<const QRgb*>(pixels.constScanLine(row));
            auto* to = reinterpret_cast<QRgb*>(enlarged.scanLine(y));
            for (int x = 0; x < part.width(); ++x)
                to[x] = from[source(part.left() + x - place.left(), place.width(), pixels.width())];
        }
        painter.drawImage(part.topLeft(), enlarged);
    }

    /// With letters of the kind that labels have.
    static void PaintLine(QPainter& painter, const PrintedLine& line, const QRect& place) {
        painter.setFont(ToQFont(line.font));
        painter.setPen(ToQColor(line.colour));
        painter.drawText(QRect(place.topLeft() + QPoint(line.x, line.y), place.bottomRight()),
                         Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, ToQString(line.text));
    }

    /// Black on white, so that it shows on every design.
    void PaintFrame(QPainter& painter) const {
        DevicePixels screen(painter);
        screen.Frame(Widget().rect(), ToQColor(white));
        const int thickness = screen.Thickness(1);
        QPen dots(ToQColor(black), thickness, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
        dots.setDashPattern({3, 3});
        painter.setPen(dots);
        painter.setBrush(Qt::NoBrush);
        const int before = thickness / 2, behind = thickness - before;
        painter.drawRect(screen.Of(Widget().rect()).adjusted(before, before, -behind, -behind));
    }

    std::uint64_t revision_ = ~std::uint64_t{0};
    QSize size_;
    bool reads_ = false;
    int markedPlace_ = -1;
    FramePace pace_;
    Outlines outlines_;
};

}  // namespace

ControlView* MakePictureBoxView(Control& control, QWidget& parent, EventGate& gate) {
    return new PictureBoxView(static_cast<PictureBox&>(control), *new PaintedWidget(&parent), gate);
}

}  // namespace coinlet
