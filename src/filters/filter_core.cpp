#include "filters/filter_core.h"

#include "core/context.h"
#include "core/progress_bar.h"
#include "filters/filter_table.h"
#include "surface/device.h"

namespace coinlet {

namespace {

/// Lets the user see and act, once a row.
class ScreenPace : public FilterPace {
public:
    ScreenPace(Context& context, std::int32_t& progress) : context_(context), progress_(progress) {}

    void Reached(int percent) override {
        progress_ = percent;
        context_.services.platform.DoEvents();
    }
    void RowShown(int row, int last) override { ShowProgress(context_, row, last); }

private:
    Context& context_;
    std::int32_t& progress_;
};

/// True for as long as it lives, however that ends.
class Busy {
public:
    explicit Busy(bool& busy) : busy_(busy) { busy_ = true; }
    ~Busy() { busy_ = false; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    bool& busy_;
};

}  // namespace

void FilterCore::FilterPicture(std::int32_t number, Surface& picture, std::int32_t parameter,
                               std::int32_t& progress) {
    RunFilter(FindFilter(number), picture, parameter, progress);
}

void FilterCore::RunFilter(const NumberedFilter* filter, Surface& picture, std::int32_t parameter,
                           std::int32_t& progress) {
    if (busy_) return;
    const Busy busy(busy_);
    const int width = picture.PixelWidth(), height = picture.PixelHeight();
    const BITMAPINFO topRowFirst{width, -height};
    PixelArray work(width, height), source(width, height);
    GetDIBits(picture.hDC(), 0, height, work.Bytes(), topRowFirst);
    GetDIBits(picture.hDC(), 0, height, source.Bytes(), topRowFirst);
    if (filter != nullptr) {
        ScreenPace pace(context_, progress);
        FilterRun run(work, source, random_, pace);
        filter->apply(run, parameter);
        run.Reached(100);
    }
    SetDIBits(picture.hDC(), 0, height, work.Bytes(), topRowFirst);
}

}  // namespace coinlet
