#pragma once

#include "base/random.h"

#include <cstdint>

namespace coinlet {

class Surface;
struct Context;
struct NumberedFilter;

/// Runs the numbered filters (filter_table.h) on whole pictures, one at a time.
class FilterCore {
public:
    explicit FilterCore(Context& context) : context_(context) {}

    /// Runs a filter on a picture, which shows the result when all is done; `progress` tells the percent
    /// meanwhile. Events are served once a row, and `Main.Bar` shows how far it is. While a filter runs,
    /// another call does nothing. A number that is no filter leaves the picture as it is. Throws ProgramEnded
    /// if the program ended in an event.
    void FilterPicture(std::int32_t number, Surface& picture, std::int32_t parameter, std::int32_t& progress);
    /// The same for who has the filter already; nullptr is no filter.
    void RunFilter(const NumberedFilter* filter, Surface& picture, std::int32_t parameter,
                   std::int32_t& progress);

private:
    Context& context_;
    RandomGenerator random_;
    bool busy_ = false;
};

}  // namespace coinlet
