#include "media/intricate_letters.h"

#include <QFont>
#include <QFontMetrics>
#include <QGlyphRun>
#include <QRawFont>
#include <QSet>
#include <QTextLayout>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <vector>

namespace coinlet {

namespace {

constexpr int mostEdges = 180;
constexpr int printedAsOutlines = 64;  // pixels; letters as large as that the toolkit doesn't have made.

/// Counts the edges of an outline that come near each row of pixels: a small letter is first moved onto the
/// grid of the pixels, by up to one of them.
class RowCounts {
public:
    RowCounts(double top, double bottom)
        : first_(std::floor(top) - 1), changes_(static_cast<std::size_t>(std::floor(bottom) - first_) + 3) {}

    /// An edge that goes up or down all the way between two heights.
    void Add(double from, double to) {
        ++changes_[Index(std::floor(std::min(from, to)) - 1)];
        --changes_[Index(std::floor(std::max(from, to)) + 2)];
    }
    int Most() const {
        int edges = 0, most = 0;
        for (const int change : changes_)
            most = std::max(most, edges += change);
        return most;
    }

private:
    std::size_t Index(double row) const {
        return std::min(static_cast<std::size_t>(std::max(0.0, row - first_)), changes_.size() - 1);
    }

    double first_;
    std::vector<int> changes_;
};

/// What goes up, or down, in several steps is one edge.
void AddEdges(const QPolygonF& polygon, RowCounts& rows) {
    if (polygon.isEmpty()) return;
    double start = polygon.back().y(), end = start;
    for (const QPointF& corner : polygon) {
        const bool turns = (corner.y() - end) * (end - start) < 0;
        if (turns) {
            rows.Add(start, end);
            start = end;
        }
        end = corner.y();
    }
    rows.Add(start, end);
}

bool HasFullRow(const QPainterPath& outline) {
    constexpr int farthest = 1 << 15;
    const QRectF bounds = outline.controlPointRect();
    // What is as large as that isn't printed at all.
    if (!(bounds.height() < farthest) || !(std::abs(bounds.top()) < farthest)) return false;
    RowCounts rows(bounds.top(), bounds.bottom());
    for (const QPolygonF& polygon : outline.toSubpathPolygons())
        AddEdges(polygon, rows);
    return rows.Most() > mostEdges;
}

/// A text as it is printed, and where its base line is.
struct Line {
    Line(const QString& text, const QFont& font) {
        QTextLayout layout(text, font);
        layout.beginLayout();
        const QTextLine line = layout.createLine();
        layout.endLayout();
        ascent = line.ascent();
        runs = layout.glyphRuns();
    }
    QList<QGlyphRun> runs;
    qreal ascent = 0;
};

/// True if `judge` says so of the outline of one of the run's glyphs.
template <class Judge>
bool HasGlyph(const QGlyphRun& run, const Judge& judge) {
    const QRawFont glyphs = run.rawFont();
    const QList<quint32> numbers = run.glyphIndexes();
    const QSet<quint32> each(numbers.begin(), numbers.end());
    return std::ranges::any_of(each, [&](quint32 number) { return judge(glyphs.pathForGlyph(number)); });
}

/// The letter has too few lines and arcs to be intricate at any size: an arc, a cubic one, turns twice at
/// most.
bool HasFewPieces(QChar letter, QFont font) {
    font.setPixelSize(printedAsOutlines);  // Very small ones lack some.
    const Line line(letter, font);
    return std::ranges::none_of(line.runs, [](const QGlyphRun& run) {
        return HasGlyph(run, [](const QPainterPath& path) {
            int pieces = 0;
            for (int i = 0; i < path.elementCount(); ++i)
                pieces += path.elementAt(i).type != QPainterPath::CurveToDataElement ? 1 : 0;
            return 3 * pieces > mostEdges;
        });
    });
}

}  // namespace

bool IsIntricate(const QPainterPath& outline) {
    // Each edge takes a point at least.
    if (outline.elementCount() <= mostEdges) return false;
    // It is walked through row by row, and column by column after that.
    constexpr qreal zero = 0, one = 1;
    const QTransform transposed(zero, one, one, zero, zero, zero);
    return HasFullRow(outline) || HasFullRow(transposed.map(outline));
}

bool IntricateLetters::AreSimple(const QString& text, const QFont& font) {
    const QString style = QStringLiteral("%1%2").arg(int{font.bold()}).arg(int{font.italic()});
    Letters& known = faces_[font.families().constFirst() + style];
    return std::ranges::all_of(text, [&](QChar letter) {
        // Of two that stand for one letter nothing is known.
        if (letter.isSurrogate()) return false;
        const auto [found, isNew] = known.try_emplace(letter.unicode());
        if (isNew) found->second = HasFewPieces(letter, font);
        return found->second;
    });
}

std::optional<QPainterPath> IntricateLetters::OutlinesOf(const QString& text, const QFont& font,
                                                         const QTransform& turn) {
    if (font.pixelSize() >= printedAsOutlines || AreSimple(text, font)) return {};
    const Line line(text, font);
    const auto hasIntricate = [&](const QGlyphRun& run) {
        return HasGlyph(run, [&](const QPainterPath& outline) { return IsIntricate(turn.map(outline)); });
    };
    const QList<QGlyphRun>& runs = line.runs;
    if (std::none_of(runs.begin(), runs.end(), hasIntricate)) return {};

    QPainterPath outlines;
    for (const QGlyphRun& run : runs) {
        const QRawFont glyphs = run.rawFont();
        const QList<quint32> numbers = run.glyphIndexes();
        const QList<QPointF> places = run.positions();
        for (qsizetype i = 0; i < numbers.size(); ++i) {
            const QPointF place = places[i] - QPointF(0, line.ascent);
            outlines.addPath(glyphs.pathForGlyph(numbers[i]).translated(place));
        }
    }
    const QFontMetrics metrics(font);
    const int width = metrics.horizontalAdvance(text), thickness = metrics.lineWidth();
    if (font.underline()) outlines.addRect(0, metrics.underlinePos(), width, thickness);
    if (font.strikeOut()) outlines.addRect(0, -metrics.strikeOutPos(), width, thickness);
    outlines.setFillRule(Qt::WindingFill);
    return outlines;
}

}  // namespace coinlet
