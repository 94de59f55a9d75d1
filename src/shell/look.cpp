#include "shell/look.h"

#include "shell/qt_text.h"
#include "shell/stock_bytes.h"

#include <QApplication>
#include <QBuffer>
#include <QImageReader>
#include <QPixmap>
#include <QPixmapCache>
#include <QStyleFactory>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>

namespace coinlet {

namespace {

constexpr QPalette::ColorGroup allGroups[] = {QPalette::Active, QPalette::Inactive, QPalette::Disabled};

QPalette FormPalette() {
    const QColor form = ToQColor(formColour);
    const QColor text = Qt::black;
    QPalette palette;
    for (const auto group : allGroups) {
        const QColor letters = group == QPalette::Disabled ? ToQColor(disabledTextColour) : text;
        palette.setColor(group, QPalette::Window, form);
        palette.setColor(group, QPalette::WindowText, letters);
        palette.setColor(group, QPalette::Button, ToQColor(RGB(232, 232, 210)));
        palette.setColor(group, QPalette::ButtonText, letters);
        palette.setColor(group, QPalette::Base, ToQColor(fieldColour));
        palette.setColor(group, QPalette::AlternateBase, ToQColor(RGB(15, 15, 70)));
        palette.setColor(
            group, QPalette::Text,
            group == QPalette::Disabled ? ToQColor(RGB(140, 140, 170)) : ToQColor(fieldTextColour));
        palette.setColor(group, QPalette::BrightText, text);
        palette.setColor(group, QPalette::Highlight, ToQColor(highlightColour));
        palette.setColor(group, QPalette::HighlightedText, Qt::white);
        palette.setColor(group, QPalette::PlaceholderText, ToQColor(RGB(140, 140, 170)));
        palette.setColor(group, QPalette::Link, ToQColor(RGB(30, 60, 160)));
        palette.setColor(group, QPalette::LinkVisited, ToQColor(RGB(90, 30, 120)));
        palette.setColor(group, QPalette::Light, ToQColor(RGB(250, 250, 240)));
        palette.setColor(group, QPalette::Midlight, ToQColor(RGB(236, 236, 216)));
        palette.setColor(group, QPalette::Mid, ToQColor(RGB(180, 180, 150)));
        palette.setColor(group, QPalette::Dark, ToQColor(edgeColour));
        palette.setColor(group, QPalette::Shadow, ToQColor(RGB(90, 90, 70)));
        palette.setColor(group, QPalette::ToolTipBase, ToQColor(noteColour));
        palette.setColor(group, QPalette::ToolTipText, text);
    }
    return palette;
}

QPixmap StockPixmap(std::span<const std::uint8_t> bytes) {
    QByteArray data(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
    QBuffer file(&data);
    QImageReader reader(&file, "png");
    // Without looking closer at the bytes the toolkit needs none of its plugins for further formats, which
    // would be loaded while the user waits for the first window.
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImageReader(&reader);
}

/// The pencil of the tools; its point, at the lower left, is the hot spot.
QCursor MakePencil() {
    constexpr int pointX = 1, pointY = 30;
    if (qGuiApp->devicePixelRatio() <= 1)
        return QCursor(StockPixmap(stock_bytes::ToolPointer()), pointX, pointY);
    QPixmap fine = StockPixmap(stock_bytes::ToolPointer2x());
    fine.setDevicePixelRatio(2);
    return QCursor(fine, pointX, pointY);
}

/// Menus are of the forms' colour, not of the fields'. The style gives disabled letters a light edge, which
/// is made to vanish.
QPalette MenuPalette() {
    QPalette palette = FormPalette();
    const QColor ground = ToQColor(RGB(236, 236, 216));
    for (const auto group : allGroups) {
        palette.setColor(group, QPalette::Window, ground);
        palette.setColor(group, QPalette::Base, ground);
        palette.setColor(group, QPalette::AlternateBase, ground);
        palette.setColor(group, QPalette::Light, ground);
        palette.setColor(group, QPalette::Text, palette.color(group, QPalette::WindowText));
        palette.setColor(group, QPalette::PlaceholderText, ToQColor(RGB(90, 90, 75)));
    }
    return palette;
}

}  // namespace

QFont ToQFont(const FontProperties& font) {
    const double points =
        font.FontSize > 0 ? std::min(static_cast<double>(font.FontSize), 1000.0) : standardFontSize;
    QFont result(ToQString(font.FontName));
    result.setPixelSize(std::max(1, static_cast<int>(std::lround(points * pixelsPerInch / pointsPerInch))));
    // Whole-pixel advances, as the program measures its texts.
    result.setHintingPreference(QFont::PreferFullHinting);
    result.setBold(font.FontBold);
    result.setItalic(font.FontItalic);
    result.setUnderline(font.FontUnderline);
    result.setStrikeOut(font.FontStrikethru);
    return result;
}

void PrepareToolkit() {
    QApplication::setDesktopSettingsAware(false);
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
}

void ApplyLook() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    // A sheet that somebody gave to the toolkit would colour the grounds of texts whose colours it doesn't
    // know.
    qApp->setStyleSheet({});
    const QPalette palette = FormPalette();
    QApplication::setPalette(palette);
    QApplication::setPalette(MenuPalette(), "QMenu");
    QToolTip::setPalette(palette);
    const QFont font = ToQFont({});
    QApplication::setFont(font);
    QToolTip::setFont(font);
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
    // The style keeps pictures of bars and boxes for the single one that they were painted for. Those of
    // closed dialogs are of no more use, and would fill five times as much.
    constexpr int keptPictures = 2048;  // Kilobytes.
    QPixmapCache::setCacheLimit(keptPictures);
}

QPalette FieldPalette(Colour text, Colour ground) {
    const QColor letters = ToQColor(text);
    const QColor paper = ToQColor(ground);
    const QColor pale((letters.red() + paper.red()) / 2, (letters.green() + paper.green()) / 2,
                      (letters.blue() + paper.blue()) / 2);
    QPalette palette = QApplication::palette();
    for (const auto group : allGroups) {
        palette.setColor(group, QPalette::WindowText, ToQColor(edgeColour));  // The frame around it.
        palette.setColor(group, QPalette::Base, paper);
        palette.setColor(group, QPalette::Text, group == QPalette::Disabled ? pale : letters);
    }
    return palette;
}

std::optional<QCursor> PointerShape(int number) {
    switch (number) {
        case crossPointer:
            return QCursor(Qt::CrossCursor);
        case hourglassPointer:
            return QCursor(Qt::WaitCursor);
        case toolPointer: {
            static const QCursor pencil = MakePencil();
            return pencil;
        }
        default:
            return {};
    }
}

QIcon ProgramIcon() {
    QIcon icon;
    for (const auto bytes : {stock_bytes::WindowIcon16(), stock_bytes::WindowIcon32(),
                             stock_bytes::WindowIcon48(), stock_bytes::WindowIcon64()})
        icon.addPixmap(StockPixmap(bytes));
    return icon;
}

}  // namespace coinlet
