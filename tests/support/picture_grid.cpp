#include "support/picture_grid.h"

#include <algorithm>
#include <ostream>

namespace coinlet::test {

namespace {

struct Mark {
    char letter;
    Colour colour;
};

constexpr Mark marks[] = {
    {'.', white},
    {'#', black},
    {'R', RGB(255, 0, 0)},
    {'G', RGB(0, 255, 0)},
    {'B', RGB(0, 0, 255)},
    {'C', RGB(0, 255, 255)},
    {'M', RGB(255, 0, 255)},
    {'Y', RGB(255, 255, 0)},
    {'o', RGB(128, 128, 128)},
};
constexpr Mark unknown{'?', RGB(1, 2, 3)};

char LetterOf(Pixel pixel) {
    const auto* mark = std::ranges::find(marks, pixel, [](const Mark& m) { return ToPixel(m.colour); });
    return mark == std::end(marks) ? unknown.letter : mark->letter;
}

Colour ColourOf(char letter) {
    const auto* mark = std::ranges::find(marks, letter, &Mark::letter);
    return mark == std::end(marks) ? unknown.colour : mark->colour;
}

void DrawRows(Bitmap& bitmap, const std::vector<std::string>& rows) {
    const int height = std::min(bitmap.Height(), static_cast<int>(rows.size()));
    for (int y = 0; y < height; ++y) {
        const std::string& row = rows[static_cast<std::size_t>(y)];
        const auto width = std::min(static_cast<std::size_t>(bitmap.Width()), row.size());
        for (std::size_t x = 0; x < width; ++x)
            bitmap.Row(y)[x] = ToPixel(ColourOf(row[x]));
    }
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Grid& grid) {
    for (const auto& row : grid.rows_)
        out << '\n' << row;
    return out;
}

Grid GridOf(const Image& picture) {
    std::vector<std::string> rows;
    for (int y = 0; y < picture.Height(); ++y) {
        std::string row;
        for (int x = 0; x < picture.Width(); ++x)
            row += LetterOf(picture.Row(y)[x]);
        rows.push_back(row);
    }
    return Grid(std::move(rows));
}

Grid GridOf(const Surface& surface) {
    return GridOf(surface.Image());
}

Image PictureOf(const Grid& grid) {
    const auto& rows = grid.Rows();
    std::size_t width = 0;
    for (const auto& row : rows)
        width = std::max(width, row.size());
    Bitmap bitmap(static_cast<int>(width), static_cast<int>(rows.size()), ToPixel(white));
    DrawRows(bitmap, rows);
    return Image(std::move(bitmap));
}

void DrawGrid(Surface& surface, const Grid& grid) {
    DrawRows(surface.WriteAll(), grid.Rows());
}

}  // namespace coinlet::test
