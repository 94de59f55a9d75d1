#pragma once

#include <QColor>
#include <QRect>
#include <QString>

#include <vector>

class QWidget;

namespace coinlet::test {

/// How well a colour can be told from another, from 1 (not at all) to 21 (black on white): the ratio of their
/// luminances, as the guidelines for accessible contents define it.
double Contrast(const QColor& one, const QColor& other);

/// A text as a window shows it.
struct SeenText {
    QString text;
    /// Where its letters are, in pixels of the window.
    QRect place;
    QColor colour;
    /// How well it stands out from what lies behind its letters: at least so well in nine tenths of their
    /// pixels.
    double contrast = 0;
    /// If what it stands on can be used.
    bool enabled = true;
};

/// All texts that the widgets of a window paint as such, in the order in which they do; what is hidden or cut
/// off is none. Letters in a picture that a widget shows are a part of the picture.
std::vector<SeenText> TextsOf(QWidget& window);

}  // namespace coinlet::test
