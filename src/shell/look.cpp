#include "shell/look.h"

#include "shell/qt_text.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QPolygonF>
#include <QStyleFactory>
#include <QToolTip>

#include <algorithm>
#include <cmath>

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
        palette.setColor(group, QPalette::BrightText, Qt::white);
        palette.setColor(group, QPalette::Highlight, ToQColor(highlightColour));
        palette.setColor(group, QPalette::HighlightedText, Qt::white);
        palette.setColor(group, QPalette::PlaceholderText, ToQColor(RGB(140, 140, 170)));
        palette.setColor(group, QPalette::Link, ToQColor(RGB(30, 60, 160)));
        palette.setColor(group, QPalette::Light, ToQColor(RGB(250, 250, 240)));
        palette.setColor(group, QPalette::Midlight, ToQColor(RGB(236, 236, 216)));
        palette.setColor(group, QPalette::Mid, ToQColor(RGB(180, 180, 150)));
        palette.setColor(group, QPalette::Dark, ToQColor(edgeColour));
        palette.setColor(group, QPalette::Shadow, ToQColor(RGB(90, 90, 70)));
        palette.setColor(group, QPalette::ToolTipBase, ToQColor(RGB(255, 255, 225)));
        palette.setColor(group, QPalette::ToolTipText, text);
    }
    return palette;
}

/// A pencil that writes with its lower left end; its point is the hot spot.
QCursor MakePencil() {
    constexpr int size = 24;
    constexpr qreal pixelsADot = 2;  // Drawn finer than it is shown, so that it stays sharp when enlarged.
    QPixmap picture(static_cast<int>(size * pixelsADot), static_cast<int>(size * pixelsADot));
    picture.setDevicePixelRatio(pixelsADot);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(QColor(250, 205, 60));
    painter.drawPolygon(QPolygonF{{5, 14}, {16, 3}, {20, 7}, {9, 18}});
    painter.setBrush(QColor(225, 120, 120));
    painter.drawPolygon(QPolygonF{{16, 3}, {18, 1}, {22, 5}, {20, 7}});
    painter.setBrush(QColor(245, 225, 190));
    painter.drawPolygon(QPolygonF{{5, 14}, {9, 18}, {1, 22}});
    painter.setBrush(Qt::black);
    painter.drawPolygon(QPolygonF{{2.2, 19.2}, {3.8, 20.8}, {1, 22}});
    painter.end();
    return QCursor(picture, 1, 22);
}

}  // namespace

QFont ToQFont(const FontProperties& font) {
    const double points = font.FontSize > 0 ? std::min(static_cast<double>(font.FontSize), 1000.0) : 8.25;
    QFont result(ToQString(font.FontName));
    result.setPixelSize(std::max(1, static_cast<int>(std::lround(points * 96 / 72))));
    // Whole-pixel advances, as the program measures its texts.
    result.setHintingPreference(QFont::PreferFullHinting);
    result.setBold(font.FontBold);
    result.setItalic(font.FontItalic);
    result.setUnderline(font.FontUnderline);
    result.setStrikeOut(font.FontStrikethru);
    return result;
}

void ApplyLook() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QPalette palette = FormPalette();
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    const QFont font = ToQFont({});
    QApplication::setFont(font);
    QToolTip::setFont(font);
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
}

QPalette FieldPalette(Colour text, Colour ground) {
    const QColor letters = ToQColor(text);
    const QColor paper = ToQColor(ground);
    const QColor pale((letters.red() + paper.red()) / 2, (letters.green() + paper.green()) / 2,
                      (letters.blue() + paper.blue()) / 2);
    QPalette palette = QApplication::palette();
    for (const auto group : allGroups) {
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
    constexpr int size = 48;
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient metal(8, 4, 40, 44);
    metal.setColorAt(0, QColor(255, 246, 190));
    metal.setColorAt(0.5, QColor(225, 180, 60));
    metal.setColorAt(1, QColor(150, 105, 20));
    painter.setPen(QPen(QColor(70, 50, 10), 2));
    painter.setBrush(metal);
    painter.drawEllipse(QRectF(3, 3, 42, 42));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(10, 10, 28, 28));
    painter.setBrush(QColor(70, 50, 10));
    painter.drawEllipse(QRectF(21, 4.5, 6, 6));
    return QIcon(picture);
}

}  // namespace coinlet
