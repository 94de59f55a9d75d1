#include "media/qt_font_engine.h"

#include "base/text.h"
#include "media/intricate_letters.h"
#include "surface/image.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <optional>

namespace coinlet {

namespace {

/// Only records without NaN, which equals nothing, can be found again.
FontSpec Plain(FontSpec font) {
    if (!(font.size > 0)) font.size = FontSpec().size;
    return font;
}

double PlainAngle(double angle) {
    return std::isfinite(angle) ? std::remainder(angle, 360.0) : 0.0;
}

int PixelSize(double points) {
    constexpr double most = 4096;
    return static_cast<int>(std::lround(std::clamp(points * pixelsPerInch / pointsPerInch, 1.0, most)));
}

/// Full hinting puts every advance on a whole number of pixels, so that a text is as wide as its letters are
/// together; kerning would undo that.
QFont ToQFont(const FontFamily& family, const FontSpec& spec, Edges edges) {
    QFont font;
    font.setFamilies({QString::fromStdString(family.known)});
    font.setPixelSize(PixelSize(spec.size));
    font.setBold(spec.bold);
    font.setItalic(spec.italic);
    font.setUnderline(spec.underline);
    font.setStrikeOut(spec.strikethrough);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferFullHinting);
    const auto smoothing = edges == Edges::Crisp ? QFont::NoAntialias : QFont::NoSubpixelAntialias;
    // What a font of a file lacks is seen to be lacking, and not taken from another one.
    const auto merging = family.ofFile ? QFont::NoFontMerging : QFont::PreferDefault;
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(smoothing | merging));
    return font;
}

/// Fonts of pictograms may number their glyphs by single bytes, apart from all letters.
bool IsSymbolFont(const QString& family) {
    const auto systems = QFontDatabase::writingSystems(family);
    return systems.contains(QFontDatabase::Symbol) && !systems.contains(QFontDatabase::Latin);
}

/// Such a font's glyphs for the letters of a text; a letter without one stays, since some have their pictures
/// on the letters themselves.
QString Glyphs(const QString& text, const QFont& font) {
    constexpr char16_t firstGlyph = 0xF000;  // where the glyph of byte 0 would be
    const QRawFont glyphs = QRawFont::fromFont(font);
    QString result;
    for (const QChar letter : text) {
        const auto byte = static_cast<unsigned char>(ToCodePage(QString(letter).toStdString()).front());
        const QChar glyph(static_cast<char16_t>(firstGlyph + byte));
        result += glyphs.supportsCharacter(glyph) ? glyph : letter;
    }
    return result;
}

QString Printable(const FontFamily& family, const FontSpec& spec, std::string_view text) {
    QString printable = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    const auto isControl = [](QChar letter) {
        return letter.category() == QChar::Other_Control || letter.category() == QChar::Separator_Line ||
               letter.category() == QChar::Separator_Paragraph;
    };
    printable.removeIf(isControl);
    if (!IsSymbolFont(QString::fromStdString(family.known))) return printable;
    return Glyphs(printable, ToQFont(family, spec, Edges::Crisp));
}

/// Where the ink of a text may fall, from the top left corner of its cell.
QRect InkBounds(const QFontMetrics& metrics, const QString& text, int pixelSize) {
    const QRect cell(0, 0, metrics.horizontalAdvance(text), metrics.height());
    const int slack = 2 + pixelSize / 4;  // lines under and through it, and what hinting adds
    const QRect letters = metrics.boundingRect(text).translated(0, metrics.ascent());
    return cell.united(letters).adjusted(-slack, -slack, slack, slack);
}

/// What lies far from the point that a text is drawn at is left out, so that no text, however long or large,
/// takes more memory than the largest picture.
QRect WithinReach(const QRect& bounds) {
    constexpr int before = 4096, longest = 16384;  // pixels
    static_assert(std::size_t{longest} * longest <= maximumPictureBytes);
    return bounds.intersected(QRect(-before, -before, longest, longest));
}

/// The part of `picture` that has ink; the picture's top left pixel is at `origin`.
TextMask CropToInk(const QImage& picture, QPoint origin) {
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        const uchar* row = picture.constScanLine(y);
        const uchar* end = row + picture.width();
        const auto isInk = [](uchar coverage) { return coverage != 0; };
        const uchar* first = std::find_if(row, end, isInk);
        if (first == end) continue;
        const uchar* last = end;
        while (!isInk(last[-1]))
            --last;
        ink |= QRect(static_cast<int>(first - row), y, static_cast<int>(last - first), 1);
    }
    TextMask mask;
    if (ink.isEmpty()) return mask;
    mask.left = origin.x() + ink.left();
    mask.top = origin.y() + ink.top();
    mask.width = ink.width();
    mask.height = ink.height();
    mask.coverage.reserve(static_cast<std::size_t>(mask.width) * static_cast<std::size_t>(mask.height));
    for (int y = ink.top(); y <= ink.bottom(); ++y) {
        const uchar* from = picture.constScanLine(y) + ink.left();
        mask.coverage.insert(mask.coverage.end(), from, from + mask.width);
    }
    return mask;
}

/// Makes ink of the pixels that are covered by `least` of 255 or more.
void MakeCrisp(QImage& picture, uchar least) {
    const auto nearest = [least](uchar coverage) { return static_cast<uchar>(coverage >= least ? 255 : 0); };
    for (int y = 0; y < picture.height(); ++y) {
        uchar* const row = picture.scanLine(y);
        std::transform(row, row + picture.width(), row, nearest);
    }
}

/// A text ready to be drawn.
class Drawing {
public:
    Drawing(const FontFamily& family, const FontSpec& spec, std::string_view text, Edges edges, double angle)
        : letters_(Printable(family, spec, text)), font_(ToQFont(family, spec, edges)), edges_(edges) {
        if (letters_.isEmpty()) return;
        const QFontMetrics metrics(font_);
        ascent_ = metrics.ascent();
        turn_.rotate(-angle);  // Its angles run clockwise.
        bounds_ = WithinReach(
            turn_.mapRect(QRectF(InkBounds(metrics, letters_, font_.pixelSize()))).toAlignedRect());
    }

    /// Where there may be ink, from the point that the text is drawn at.
    QRect Bounds() const { return bounds_; }

    /// The ink in a part of that.
    TextMask Draw(const QRect& part, IntricateLetters& intricate) const {
        if (part.isEmpty()) return {};
        QImage picture(part.size(), QImage::Format_Grayscale8);
        if (picture.isNull()) return {};
        picture.fill(Qt::black);
        // What is drawn as outlines, very large letters among it, has soft edges whatever is asked for. The
        // lines of a small picture of many lines nowhere cover half of a pixel.
        constexpr uchar half = 128, quarter = 64;
        uchar least = half;
        {
            QPainter painter(&picture);
            painter.setFont(font_);
            painter.setPen(Qt::white);
            painter.setRenderHint(QPainter::TextAntialiasing, edges_ == Edges::Smooth);
            painter.setTransform(turn_ * QTransform::fromTranslate(-part.left(), -part.top()));
            const QPointF start(0, ascent_);
            const auto outlines =
                edges_ == Edges::Crisp ? intricate.OutlinesOf(letters_, font_, turn_) : std::nullopt;
            if (outlines) {
                painter.setRenderHint(QPainter::Antialiasing);
                painter.fillPath(outlines->translated(start), Qt::white);
                least = quarter;
            } else {
                painter.drawText(start, letters_);
            }
        }
        if (edges_ == Edges::Crisp) MakeCrisp(picture, least);
        return CropToInk(picture, part.topLeft());
    }

private:
    QString letters_;
    QFont font_;
    Edges edges_;
    int ascent_ = 0;
    QTransform turn_;
    QRect bounds_;
};

QRect ToRect(const TextWindow& window) {
    // The toolkit's rectangles can't hold all differences of their edges.
    const auto within = [](int position) {
        constexpr int farthest = 1 << 24;
        return std::clamp(position, -farthest, farthest);
    };
    return {QPoint(within(window.left), within(window.top)),
            QPoint(within(window.right) - 1, within(window.bottom) - 1)};
}

TextWindow ToWindow(const QRect& rect) {
    return {rect.left(), rect.top(), rect.right() + 1, rect.bottom() + 1};
}

/// What to draw of a text that may have ink in `bounds`: all of it, or, where that is large, what can be seen
/// of it in the window and `around` it.
QRect PartToDraw(const QRect& bounds, const TextWindow& window, int around) {
    constexpr qint64 large = qint64{1} << 20;  // pixels
    if (qint64{bounds.width()} * bounds.height() <= large) return bounds;
    const QRect seen = ToRect(window);
    return bounds.intersected(seen.adjusted(-around, -around, around, around));
}

/// A family that several foundries offer is listed once for each, as "Name [foundry]"; its plain name gives
/// the same letters.
QString WithoutFoundry(const QString& family) {
    const qsizetype bracket = family.endsWith(QLatin1Char(']')) ? family.lastIndexOf(QLatin1String(" [")) : 0;
    return bracket > 0 ? family.left(bracket) : family;
}

}  // namespace

std::size_t QtFontEngine::PrintedHash::operator()(const Printed& key) const {
    const auto mix = [](std::size_t seed, std::size_t hash) { return seed * 31 + hash; };
    std::size_t hash = std::hash<std::string>()(key.text);
    hash = mix(hash, std::hash<std::string>()(key.font.name));
    hash = mix(hash, std::hash<double>()(key.font.size));
    hash = mix(hash, std::hash<double>()(key.angle));
    for (const bool flag : {key.font.bold, key.font.italic, key.font.underline, key.font.strikethrough,
                            key.edges == Edges::Smooth})
        hash = mix(hash, flag ? 1 : 0);
    return hash;
}

QtFontEngine::QtFontEngine() : intricate_(std::make_unique<IntricateLetters>()) {}

QtFontEngine::~QtFontEngine() = default;

TextExtent QtFontEngine::Measure(const FontSpec& font, std::string_view text) const {
    const Printed key{Plain(font), std::string(text)};
    if (const TextExtent* known = extents_.Find(key)) return *known;
    const FontFamily family = added_.Find(font.name);
    const QFontMetrics metrics(ToQFont(family, key.font, Edges::Crisp));
    // A damaged font may have letters that step back, and lines that end above their beginning.
    const TextExtent extent{std::max(0, metrics.horizontalAdvance(Printable(family, key.font, text))),
                            std::max(0, metrics.height())};
    extents_.Add(key, extent);
    return extent;
}

TextMask QtFontEngine::Render(const FontSpec& font, std::string_view text, Edges edges, double angle) const {
    using Limits = std::numeric_limits<int>;
    return RenderSeen(font, text, edges, angle, {Limits::min(), Limits::min(), Limits::max(), Limits::max()});
}

TextMask QtFontEngine::RenderSeen(const FontSpec& font, std::string_view text, Edges edges, double angle,
                                  const TextWindow& window) const {
    const Printed key{Plain(font), std::string(text), edges, PlainAngle(angle)};
    if (const TextMask* known = masks_.Find(key)) return *known;
    const Drawing drawing(added_.Find(font.name), key.font, text, edges, key.angle);
    const QRect needed = PartToDraw(drawing.Bounds(), window, 0);
    if (large_ && large_->key == key && ToRect(large_->part).contains(needed)) return large_->mask;
    // Outlines and shadows print it once more close by.
    constexpr int closeBy = 64;
    const QRect part = PartToDraw(drawing.Bounds(), window, closeBy);
    TextMask mask = drawing.Draw(part, *intricate_);
    constexpr std::size_t small = std::size_t{64} << 10;  // captions, not posters
    constexpr std::size_t largest = std::size_t{4} << 20;
    if (part == drawing.Bounds() && mask.coverage.size() <= small) {
        masks_.Add(key, mask);
    } else if (mask.coverage.size() <= largest) {
        large_ = {key, ToWindow(part), mask};
    }
    return mask;
}

std::vector<std::string> QtFontEngine::Families() const {
    std::vector<std::string> names = added_.Names();
    const QStringList families = QFontDatabase::families();
    for (const QString& family : families)
        if (!QFontDatabase::isPrivateFamily(family)) names.push_back(WithoutFoundry(family).toStdString());
    // The platform has letters for it, be they a substitute's.
    names.push_back(FontSpec().name);
    std::sort(names.begin(), names.end(), ComesBefore);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

const FontEngine& QtFontEngine::Installed() const {
    if (!installed_) installed_ = std::make_unique<QtFontEngine>();
    return *installed_;
}

std::string QtFontEngine::AddFontFile(const std::filesystem::path& file) {
    const auto before = added_.Revision();
    std::string family = added_.Add(file);
    if (added_.Revision() != before) {
        // The name has stood for something else until now.
        extents_.Clear();
        intricate_->Forget();
        masks_.Clear();
        large_.reset();
    }
    return family;
}

}  // namespace coinlet
