#pragma once

#include "controls/control.h"
#include "controls/house_colours.h"
#include "surface/colour.h"
#include "surface/font_properties.h"

#include <QColor>
#include <QCursor>
#include <QFont>
#include <QIcon>
#include <QPalette>

#include <optional>

namespace coinlet {

// Colours beside those of the house that only windows need.
constexpr Colour edgeColour = RGB(140, 140, 110);
constexpr Colour highlightColour = RGB(70, 90, 170);
constexpr Colour disabledTextColour = RGB(130, 130, 110);
/// A box to be ticked that can't be.
constexpr Colour disabledFieldColour = RGB(110, 110, 120);
/// The thumb of a bar that has the focus, and the ring around what else doesn't show that by itself: the edge
/// of a button that has it.
constexpr Colour focusTint = RGB(190, 222, 235);
constexpr Colour focusRingColour = RGB(60, 127, 177);

/// -1, the colour outside a picture, is shown as white.
inline QColor ToQColor(Colour colour) {
    return QColor::fromRgb(ToPixel(colour));
}

/// A font with letters of `FontSize` points at 96 dots an inch, whatever the desktop is set to.
QFont ToQFont(const FontProperties& font);

/// What the toolkit must know before it starts: its look is our own, so it needn't ask the desktop, and no
/// move of the pointer is dropped, or quick strokes would lose their bends. To be called before the
/// application object is made.
void PrepareToolkit();

/// Gives the application its fixed look: one style, colours that a dark desktop doesn't change, and letters
/// of 11 pixels. To be called once, after the application object is made.
void ApplyLook();

/// The palette of something that shows text on a ground of its own: enabled, disabled and unfocused alike,
/// but for paler letters while it is disabled.
QPalette FieldPalette(Colour text, Colour ground);

/// The pointer shape of that number, or nothing for the shape of what lies behind.
std::optional<QCursor> PointerShape(int number);

/// The program's mark in the title bar, in several sizes.
QIcon ProgramIcon();

}  // namespace coinlet
