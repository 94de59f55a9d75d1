#pragma once

#include <QPainterPath>

#include <optional>

class QFont;
class QString;
class QTransform;

namespace coinlet {

/// Whether crisp letters can't be made of an outline, which is in pixels: the library that makes them has
/// room for some two hundred edges in one row or column of pixels. It gives up on a drawing of more, and the
/// toolkit goes on with the picture that there isn't.
bool IsIntricate(const QPainterPath& outline);

/// The outlines of a text in `font`, with the lines under and through it, if one of its letters is intricate
/// once `turn` has turned it; nothing if all of them can be printed. They start at the left end of the base
/// line, unturned, and stand where the printed letters would; the text has one line.
std::optional<QPainterPath> OutlinesOfIntricate(const QString& text, const QFont& font,
                                                const QTransform& turn);

}  // namespace coinlet
