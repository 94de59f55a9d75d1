#pragma once

#include "base/random.h"
#include "filters/pixel_array.h"
#include "filters/vector_units.h"

namespace coinlet {

/// Who watches a filter at work: the screen with its events, or nobody.
class FilterPace {
public:
    virtual ~FilterPace() = default;
    /// So many percent are done. May serve events, and throws ProgramEnded if the program ended in one.
    virtual void Reached(int percent) = 0;
    /// A row is finished. `row` counts from 1, `last` is one less than the height.
    virtual void RowShown(int row, int last) = 0;
};

/// What a filter works on: a picture twice, the random numbers of the program, and who watches. Rows and
/// columns count from 0. The spare byte of a pixel is nobody's: a filter may leave any value there.
class FilterRun {
public:
    /// Both arrays have the same size and, at first, the same content. All must outlive the run. The
    /// processor must have the units.
    FilterRun(PixelArray& toWriteTo, const PixelArray& untouched, RandomGenerator& dice, FilterPace& watcher,
              VectorUnits built = WidestVectorUnits())
        : work(toWriteTo), source(untouched), random(dice), units(built), pace_(watcher) {}

    PixelArray& work;          ///< The result; what a filter leaves out keeps its old colours.
    const PixelArray& source;  ///< For filters that mustn't see their own output.
    RandomGenerator& random;
    const VectorUnits units;  ///< That filters are to use where they have a choice.

    int Width() const { return work.Width(); }
    int Height() const { return work.Height(); }

    /// To be called after every row of a walk that takes the progress from one percentage to another.
    void RowDone(int row, int from = 0, int to = 100) {
        pace_.Reached(from + (row + 1) * (to - from) / Height());
        pace_.RowShown(row + 1, Height() - 1);
    }
    void Reached(int percent) { pace_.Reached(percent); }

private:
    FilterPace& pace_;
};

}  // namespace coinlet
