// Figures for filling regions: the easiest one and one of narrow, winding corridors.

#include "support/block_fonts.h"
#include "surface/device.h"

#include <array>
#include <benchmark/benchmark.h>
#include <random>
#include <utility>
#include <vector>

namespace coinlet {
namespace {

constexpr int side = 500;

void WholeCanvas(benchmark::State& state) {
    test::BlockFonts fonts;
    Surface surface(fonts, side, side);
    surface.FillStyle = solidFill;
    Colour colour = white;
    for ([[maybe_unused]] auto _ : state) {
        surface.FillColor = colour ^ RGB(255, 255, 0);
        ExtFloodFill(surface.hDC(), side / 2, side / 2, colour, FLOODFILLSURFACE);
        colour = surface.FillColor;
    }
}
BENCHMARK(WholeCanvas)->Unit(benchmark::kMicrosecond);

void WholeCanvasToBorder(benchmark::State& state) {
    test::BlockFonts fonts;
    Surface surface(fonts, side, side);
    surface.FillStyle = solidFill;
    for ([[maybe_unused]] auto _ : state) {
        surface.FillColor ^= RGB(255, 255, 0);
        FloodFill(surface.hDC(), side / 2, side / 2, RGB(1, 2, 3));
    }
}
BENCHMARK(WholeCanvasToBorder)->Unit(benchmark::kMicrosecond);

// A maze that reaches every cell: white corridors of 2 pixels between black walls of 1 pixel, dug by a walk
// that turns back only where it is stuck.
void DigMaze(Surface& surface) {
    constexpr int cells = side / 3;
    surface.SetBackColor(black);
    const DeviceContext hDC = surface.hDC();
    const auto dig = [&](int left, int top) {
        for (const int y : {top, top + 1}) {
            for (const int x : {left, left + 1}) {
                SetPixel(hDC, x, y, white);
            }
        }
    };
    std::mt19937 random(7);
    std::vector<bool> seen(std::size_t{cells} * cells);
    const auto index = [](int x, int y) {
        return static_cast<std::size_t>(y) * cells + static_cast<std::size_t>(x);
    };
    std::vector<std::pair<int, int>> walk = {{0, 0}};
    seen[0] = true;
    dig(1, 1);
    while (!walk.empty()) {
        const auto [x, y] = walk.back();
        std::vector<std::pair<int, int>> ways;
        for (const auto& [dx, dy] : std::array<std::pair<int, int>, 4>{{{1, 0}, {-1, 0}, {0, 1}, {0, -1}}}) {
            const int nx = x + dx, ny = y + dy;
            if (nx >= 0 && ny >= 0 && nx < cells && ny < cells && !seen[index(nx, ny)])
                ways.emplace_back(dx, dy);
        }
        if (ways.empty()) {
            walk.pop_back();
            continue;
        }
        const auto [dx, dy] = ways[random() % ways.size()];
        dig(3 * x + 1 + dx, 3 * y + 1 + dy);
        dig(3 * (x + dx) + 1, 3 * (y + dy) + 1);
        seen[index(x + dx, y + dy)] = true;
        walk.emplace_back(x + dx, y + dy);
    }
}

void Maze(benchmark::State& state) {
    test::BlockFonts fonts;
    Surface surface(fonts, side, side);
    DigMaze(surface);
    surface.FillStyle = solidFill;
    Colour colour = white;
    for ([[maybe_unused]] auto _ : state) {
        surface.FillColor = colour ^ RGB(255, 255, 0);
        ExtFloodFill(surface.hDC(), 1, 1, colour, FLOODFILLSURFACE);
        colour = surface.FillColor;
    }
}
BENCHMARK(Maze)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace coinlet
