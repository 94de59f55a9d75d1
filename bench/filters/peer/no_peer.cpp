#include "filters/peer_filters.h"

namespace coinlet::bench {

std::function<void()> PeerFilter(FilterNumber, std::int32_t, const PixelArray&, PixelArray&) {
    return {};
}

}  // namespace coinlet::bench
