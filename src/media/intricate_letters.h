#pragma once

#include <QPainterPath>
#include <QString>

#include <map>
#include <optional>
#include <unordered_map>

class QFont;
class QTransform;

namespace coinlet {

/// Whether crisp letters can't be made of an outline, which is in pixels: the library that makes them has
/// room for some two hundred edges in one row or column of pixels. It gives up on a drawing of more, and the
/// toolkit goes on with the picture that there isn't.
bool IsIntricate(const QPainterPath& outline);

/// Finds the texts with such letters.
class IntricateLetters {
public:
    /// The outlines of a text in `font`, with the lines under and through it, if one of its letters is
    /// intricate once `turn` has turned it; nothing if all of them can be printed. They start at the left end
    /// of the base line, unturned, and stand where the printed letters would; the text has one line.
    std::optional<QPainterPath> OutlinesOf(const QString& text, const QFont& font, const QTransform& turn);

    /// Families may have other letters from now on.
    void Forget() { faces_.clear(); }

private:
    using Letters = std::unordered_map<char16_t, bool>;  ///< True for those that are simple at any size.

    bool AreSimple(const QString& text, const QFont& font);

    std::map<QString, Letters> faces_;
};

}  // namespace coinlet
