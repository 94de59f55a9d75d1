#pragma once

#include "surface/surface.h"

#include <initializer_list>
#include <iosfwd>
#include <string>
#include <vector>

namespace coinlet::test {

/// A small picture as lines of text, one character a pixel: '.' white, '#' black, 'R', 'G', 'B' the pure
/// channels, 'C', 'M', 'Y' two of them together, 'o' RGB(128, 128, 128). A pixel of any other colour shows
/// as '?'.
class Grid {
public:
    Grid(std::initializer_list<std::string> rows) : rows_(rows) {}
    explicit Grid(std::vector<std::string> rows) : rows_(std::move(rows)) {}

    const std::vector<std::string>& Rows() const { return rows_; }

    friend bool operator==(const Grid&, const Grid&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Grid& grid);

private:
    std::vector<std::string> rows_;
};

Grid GridOf(const Image& picture);
Grid GridOf(const Surface& surface);

/// The picture that a grid shows; a '?' and any unknown character is RGB(1, 2, 3).
Image PictureOf(const Grid& grid);

/// Draws a grid over the top left corner of a surface.
void DrawGrid(Surface& surface, const Grid& grid);

}  // namespace coinlet::test
