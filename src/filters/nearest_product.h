#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>

namespace coinlet {

/// Multiplies differences of channels, -255 to 255, by a factor from about 0.5 to 1.5, to the nearest whole
/// number. In 16-bit lanes throughout, of which wide units have many.
class NearestProduct {
public:
    /// Nothing if the factor is out of reach, or if no product of this kind is `right` for every difference.
    /// `right(difference, product)` is where a filter holds it against its rule: it is asked for those from
    /// `least` to `greatest`.
    template <class Right>
    static std::optional<NearestProduct> Find(double factor, int least, int greatest, Right right) {
        const double down = std::floor((factor - 1) * 65'536);
        for (const double excess : {down, down + 1}) {
            if (!(excess >= INT16_MIN && excess <= INT16_MAX)) continue;
            const NearestProduct product(static_cast<std::int16_t>(excess));
            const auto fails = [&](int difference) {
                return !right(difference, product(static_cast<std::int16_t>(difference)));
            };
            int difference = least;
            while (difference <= greatest && !fails(difference))
                ++difference;
            if (difference > greatest) return product;
        }
        return {};
    }

    std::int16_t operator()(std::int16_t difference) const {
        // In units of 1 / 64: at most 1.5 * 255 * 64 = 24,480.
        const auto wide = static_cast<std::int16_t>(difference * 64);
        const auto product = static_cast<std::int16_t>(wide + (wide * excess_ >> 16));
        return static_cast<std::int16_t>(static_cast<std::int16_t>(product + 32) >> 6);
    }

private:
    explicit NearestProduct(std::int16_t excess) : excess_(excess) {}

    std::int16_t excess_;  ///< Of the factor over 1, in units of 1 / 65,536.
};

}  // namespace coinlet
