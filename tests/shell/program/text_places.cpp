#include "text_places.h"

#include <algorithm>
#include <map>

namespace coinlet::test {

namespace {

struct Stretch {
    int first = 0, last = 0;
};

/// The stretches of places with ink; what less than `gap` places part is one.
template <class HasInk>
std::vector<Stretch> Stretches(int length, int gap, HasInk hasInk) {
    std::vector<Stretch> found;
    for (int i = 0; i < length; ++i) {
        if (!hasInk(i)) continue;
        if (found.empty() || i - found.back().last > gap) found.push_back({i, i});
        found.back().last = i;
    }
    return found;
}

QRgb Ground(const QImage& picture) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    return std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; })->first;
}

std::vector<int> Middles(const std::vector<Stretch>& stretches) {
    std::vector<int> middles;
    for (const Stretch& stretch : stretches)
        middles.push_back((stretch.first + stretch.last) / 2);
    return middles;
}

constexpr int frame = 3;  // of a menu; nothing is written there

}  // namespace

std::vector<int> TextColumns(const QImage& line) {
    constexpr int betweenWords = 6;
    const QRgb ground = Ground(line);
    // The bar has a rule below it.
    const auto hasInk = [&](int x) {
        for (int y = 0; y < line.height() - frame; ++y)
            if (line.pixel(x, y) != ground) return true;
        return false;
    };
    return Middles(Stretches(line.width(), betweenWords, hasInk));
}

std::vector<int> TextRows(const QImage& menu) {
    constexpr int ruleHeight = 2;
    const QRgb ground = Ground(menu);
    const auto hasInk = [&](int y) {
        if (y < frame || y >= menu.height() - frame) return false;
        for (int x = frame; x < menu.width() - frame; ++x)
            if (menu.pixel(x, y) != ground) return true;
        return false;
    };
    std::vector<Stretch> rows = Stretches(menu.height(), 1, hasInk);
    std::erase_if(rows, [](const Stretch& row) { return row.last - row.first < ruleHeight; });
    return Middles(rows);
}

}  // namespace coinlet::test
