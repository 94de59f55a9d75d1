#include "seen_texts.h"

#include <QAbstractItemView>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace coinlet::test {

namespace {

double Luminance(const QColor& colour) {
    const auto part = [](double level) {
        return level <= 0.03928 ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

/// Paints into a picture what it is told to, and looks, before each text, at what lies where its letters
/// come.
class LookingEngine : public QPaintEngine {
public:
    explicit LookingEngine(const QSize& size)
        : QPaintEngine(AllFeatures), picture_(size, QImage::Format_ARGB32_Premultiplied) {
        picture_.fill(Qt::transparent);
    }

    std::vector<SeenText> texts;

    bool begin(QPaintDevice*) override { return painter_.begin(&picture_); }
    bool end() override { return painter_.end(); }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& state) override {
        const auto changed = state.state();
        if (changed & DirtyTransform) painter_.setTransform(state.transform());
        if (changed & DirtyPen) painter_.setPen(state.pen());
        if (changed & DirtyBrush) painter_.setBrush(state.brush());
        if (changed & DirtyBrushOrigin) painter_.setBrushOrigin(state.brushOrigin());
        if (changed & DirtyBackground) painter_.setBackground(state.backgroundBrush());
        if (changed & DirtyBackgroundMode) painter_.setBackgroundMode(state.backgroundMode());
        if (changed & DirtyFont) painter_.setFont(state.font());
        if (changed & DirtyOpacity) painter_.setOpacity(state.opacity());
        if (changed & DirtyCompositionMode) painter_.setCompositionMode(state.compositionMode());
        if (changed & DirtyHints) {
            painter_.setRenderHints(painter_.renderHints(), false);
            painter_.setRenderHints(state.renderHints());
        }
        if (changed & DirtyClipPath) painter_.setClipPath(state.clipPath(), state.clipOperation());
        if (changed & DirtyClipRegion) painter_.setClipRegion(state.clipRegion(), state.clipOperation());
        if (changed & DirtyClipEnabled) painter_.setClipping(state.isClipEnabled());
    }

    void drawPath(const QPainterPath& path) override {
        Inside(painter_, [&] { painter_.drawPath(path); });
    }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
        Inside(painter_, [&] {
            switch (mode) {
                case PolylineMode:
                    painter_.drawPolyline(points, count);
                    break;
                case ConvexMode:
                    painter_.drawConvexPolygon(points, count);
                    break;
                default:
                    painter_.drawPolygon(points, count,
                                         mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
            }
        });
    }
    void drawRects(const QRectF* rects, int count) override {
        Inside(painter_, [&] { painter_.drawRects(rects, count); });
    }
    void drawRects(const QRect* rects, int count) override {
        Inside(painter_, [&] { painter_.drawRects(rects, count); });
    }
    void drawLines(const QLineF* lines, int count) override {
        Inside(painter_, [&] { painter_.drawLines(lines, count); });
    }
    void drawLines(const QLine* lines, int count) override {
        Inside(painter_, [&] { painter_.drawLines(lines, count); });
    }
    void drawPixmap(const QRectF& to, const QPixmap& pixmap, const QRectF& part) override {
        Inside(painter_, [&] { painter_.drawPixmap(to, pixmap, part); });
    }
    void drawImage(const QRectF& to, const QImage& image, const QRectF& part,
                   Qt::ImageConversionFlags flags) override {
        Inside(painter_, [&] { painter_.drawImage(to, image, part, flags); });
    }
    void drawTextItem(const QPointF& place, const QTextItem& item) override {
        Look(place, item);
        Inside(painter_, [&] { painter_.drawTextItem(place, item); });
    }

private:
    /// Widgets paint no further than they are seen.
    template <class Draw>
    void Inside(QPainter& painter, const Draw& draw) {
        const QRegion seen = systemClip();
        if (seen.isEmpty()) return draw();
        const QTransform transform = painter.transform();
        painter.save();
        painter.setTransform({});
        painter.setClipRegion(seen, painter.hasClipping() ? Qt::IntersectClip : Qt::ReplaceClip);
        painter.setTransform(transform);
        draw();
        painter.restore();
    }

    void Look(const QPointF& place, const QTextItem& item) {
        QImage letters(picture_.size(), QImage::Format_ARGB32_Premultiplied);
        letters.fill(Qt::transparent);
        {
            QPainter painter(&letters);
            painter.setTransform(painter_.transform());
            if (painter_.hasClipping()) painter.setClipRegion(painter_.clipRegion());
            painter.setPen(Qt::black);
            Inside(painter, [&] { painter.drawTextItem(place, item); });
        }
        const QColor colour = painter_.pen().color();
        const double cover = colour.alphaF() * painter_.opacity();
        std::vector<double> contrasts;
        QRect bounds;
        for (int y = 0; y < letters.height(); ++y) {
            const auto* row = reinterpret_cast<const QRgb*>(letters.constScanLine(y));
            for (int x = 0; x < letters.width(); ++x) {
                constexpr int half = 128;
                if (qAlpha(row[x]) < half) continue;
                const QColor ground(picture_.pixel(x, y));
                const auto mixed = [&](double letter, double paper) {
                    return letter * cover + paper * (1 - cover);
                };
                const QColor shown =
                    QColor::fromRgbF(static_cast<float>(mixed(colour.redF(), ground.redF())),
                                     static_cast<float>(mixed(colour.greenF(), ground.greenF())),
                                     static_cast<float>(mixed(colour.blueF(), ground.blueF())));
                contrasts.push_back(Contrast(shown, ground));
                bounds |= QRect(x, y, 1, 1);
            }
        }
        if (contrasts.empty()) return;
        const auto tenth = contrasts.begin() + static_cast<std::ptrdiff_t>(contrasts.size() / 10);
        std::nth_element(contrasts.begin(), tenth, contrasts.end());
        Note({item.text(), bounds, colour, *tenth, true});
    }

    /// Some styles give letters an edge by writing them twice: the second writing is the text.
    void Note(const SeenText& seen) {
        const auto isItsEdge = [&](const SeenText& before) {
            const QPoint apart = before.place.topLeft() - seen.place.topLeft();
            return before.text == seen.text && std::abs(apart.x()) <= 1 && std::abs(apart.y()) <= 1;
        };
        std::erase_if(texts, isItsEdge);
        texts.push_back(seen);
    }

    QImage picture_;
    QPainter painter_;
};

class LookingDevice : public QPaintDevice {
public:
    explicit LookingDevice(const QSize& size) : engine_(size), size_(size) {}

    QPaintEngine* paintEngine() const override { return &engine_; }
    const std::vector<SeenText>& Texts() const { return engine_.texts; }

protected:
    int metric(PaintDeviceMetric metric) const override {
        constexpr int dotsPerInch = 96, depth = 24;
        switch (metric) {
            case PdmWidth:
                return size_.width();
            case PdmHeight:
                return size_.height();
            case PdmDpiX:
            case PdmDpiY:
            case PdmPhysicalDpiX:
            case PdmPhysicalDpiY:
                return dotsPerInch;
            case PdmWidthMM:
                return size_.width() * 254 / dotsPerInch / 10;
            case PdmHeightMM:
                return size_.height() * 254 / dotsPerInch / 10;
            case PdmDepth:
                return depth;
            case PdmNumColors:
                return 1 << depth;
            case PdmDevicePixelRatio:
                return 1;
            default:
                return static_cast<int>(devicePixelRatioFScale());
        }
    }

private:
    mutable LookingEngine engine_;
    QSize size_;
};

bool CanBeUsed(const QWidget& window, const QPoint& place) {
    const QWidget* widget = window.childAt(place);
    if (!widget) widget = &window;
    if (const auto* rows = qobject_cast<const QAbstractItemView*>(widget->parentWidget())) {
        const QModelIndex row = rows->indexAt(widget->mapFrom(&window, place));
        if (row.isValid() && !row.flags().testFlag(Qt::ItemIsEnabled)) return false;
    }
    const QAction* action = nullptr;
    if (const auto* menu = qobject_cast<const QMenu*>(widget)) {
        action = menu->actionAt(menu->mapFrom(&window, place));
    } else if (const auto* bar = qobject_cast<const QMenuBar*>(widget)) {
        action = bar->actionAt(bar->mapFrom(&window, place));
    }
    return widget->isEnabled() && (!action || action->isEnabled());
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
    const double a = Luminance(one), b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

std::vector<SeenText> TextsOf(QWidget& window) {
    LookingDevice device(window.size());
    window.render(&device);
    std::vector<SeenText> texts = device.Texts();
    for (SeenText& text : texts)
        text.enabled = CanBeUsed(window, text.place.center());
    return texts;
}

}  // namespace coinlet::test
