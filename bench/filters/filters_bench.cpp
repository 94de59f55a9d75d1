// Each numbered filter on a noisy canvas and, where it stands in the menu, with the parameter of the menu;
// the contrast once more on a canvas that leaves it nothing to hand on. One line a filter, all measured in
// turns in one run:
//
//     Time     the filter built for the widest vector units, without the screen
//     common   the same with the instructions that every processor of the kind has
//     avx2     the same for AVX2
//     plain    the rule written down without any thought of speed; it has to make the same picture
//     library  the nearest operation of an image library, where there is one
//     frame    the whole run through the core: transfers, progress bar and a service of events each row,
//              but no window
//     of_plain, of_library   the first divided by these
//
// Filters that see what they have just written have to be given the picture anew each time: their times
// include a copy of it.

#include "filters/filter_core.h"
#include "filters/filter_table.h"
#include "peer_filters.h"
#include "plain_filters.h"
#include "support/world.h"
#include "surface/device.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <ctime>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace coinlet {
namespace {

constexpr int side = 500;

class NoPace : public FilterPace {
public:
    void Reached(int) override {}
    void RowShown(int, int) override {}
};

/// A parameter that gives the filter its usual work.
std::int32_t UsualParameter(FilterNumber number) {
    switch (number) {
        case FilterNumber::Sharpen:
        case FilterNumber::Contrast:
            return 10;
        case FilterNumber::Defuse:
            return 6;
        case FilterNumber::Edge:
        case FilterNumber::SwapColours:
            return 1;
        case FilterNumber::Brightness:
            return 4;
        case FilterNumber::Pixelize:
            return 3;
        case FilterNumber::FloydDither:
        case FilterNumber::BurkesDither:
        case FilterNumber::StuckiDither:
            return 15;
        case FilterNumber::AddNoise:
            return 50;
        case FilterNumber::Threshold:
            return 0x808080;
        case FilterNumber::Saturation:
            return 140;
        case FilterNumber::Gamma:
            return 200;
        default:
            return 0xFFFFFF;
    }
}

bool SeesItsOutput(FilterNumber number) {
    switch (number) {
        case FilterNumber::Sharpen:
        case FilterNumber::Blur:
        case FilterNumber::Smooth:
        case FilterNumber::Edge:
        case FilterNumber::Defuse:
            return true;
        default:
            return false;
    }
}

/// Noise in a range of channel values.
struct Noise {
    unsigned lowest = 0, count = 256;
};

PixelArray NoisyPicture(Noise range) {
    PixelArray picture(side, side);
    std::mt19937 noise(1);
    std::ranges::generate(picture.Bytes(), [&noise, range] {
        return static_cast<std::uint8_t>(range.lowest + noise() % range.count);
    });
    return picture;
}

void Copy(const PixelArray& from, PixelArray& to) {
    std::ranges::copy(from.Bytes(), to.Bytes().begin());
}

bool SameColours(const PixelArray& a, const PixelArray& b) {
    for (std::size_t i = 0; i < a.Bytes().size(); ++i)
        if (i % pixelBytes < colourChannels && a.Bytes()[i] != b.Bytes()[i]) return false;
    return true;
}

double ProcessSeconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// One of those that are compared.
class Contender {
public:
    explicit Contender(
        std::function<void()> work, std::function<void()> prepare = [] {})
        : work_(std::move(work)), prepare_(std::move(prepare)) {}

    /// Once to warm up, then some times measured.
    void TakeTurn() {
        constexpr int measured = 4;
        if (!work_) return;
        prepare_();
        work_();
        for (int i = 0; i < measured; ++i) {
            prepare_();
            const double start = ProcessSeconds();
            work_();
            seconds_.push_back(ProcessSeconds() - start);
        }
    }
    /// The median of all turns; 0 if there is nothing to measure.
    double Seconds() {
        if (seconds_.empty()) return 0;
        const auto middle = seconds_.begin() + static_cast<std::ptrdiff_t>(seconds_.size() / 2);
        std::ranges::nth_element(seconds_, middle);
        return *middle;
    }

private:
    std::function<void()> work_, prepare_;
    std::vector<double> seconds_;
};

void Compare(benchmark::State& state, const NumberedFilter& filter, Noise range) {
    const std::int32_t parameter = UsualParameter(filter.number);
    const PixelArray source = NoisyPicture(range);
    PixelArray ours(side, side), plain(side, side), peer(side, side);
    NoPace pace;
    RandomGenerator ourDice, plainDice, otherDice;
    const auto restore = [&](PixelArray& picture) {
        if (SeesItsOutput(filter.number)) Copy(source, picture);
    };
    const auto builtFor = [&](VectorUnits units, RandomGenerator& dice) {
        return [&, units] {
            restore(ours);
            FilterRun run(ours, source, dice, pace, units);
            filter.apply(run, parameter);
        };
    };
    const auto plainly = [&] {
        restore(plain);
        bench::PlainFilter(filter.number, parameter, plain, source, plainDice);
    };
    for (PixelArray* picture : {&ours, &plain, &peer})
        Copy(source, *picture);
    test::World world;
    FilterCore core(world.context);
    Surface& canvas = world.main.Pic.surface;
    std::int32_t progress = 0;

    builtFor(WidestVectorUnits(), ourDice)();
    plainly();
    if (!SameColours(ours, plain)) return state.SkipWithError("the plain rule makes another picture");

    Contender widest(builtFor(WidestVectorUnits(), ourDice));
    Contender common(builtFor(VectorUnits::Common, otherDice));
    Contender avx2(ProcessorHas(VectorUnits::Avx2) ? builtFor(VectorUnits::Avx2, otherDice)
                                                   : std::function<void()>());
    Contender rule(plainly);
    Contender library(bench::PeerFilter(filter.number, parameter, source, peer));
    Contender frame(
        [&] { core.FilterPicture(static_cast<std::int32_t>(filter.number), canvas, parameter, progress); },
        [&] {
            SetDIBits(canvas.hDC(), 0, side, source.Bytes(), BITMAPINFO{side, -side});
        });
    for ([[maybe_unused]] auto _ : state) {
        constexpr int turns = 8;
        for (int i = 0; i < turns; ++i) {
            for (Contender* contender : std::array{&widest, &common, &avx2, &rule, &library, &frame})
                contender->TakeTurn();
        }
        state.SetIterationTime(widest.Seconds());
    }
    const double seconds = widest.Seconds();
    const auto tell = [&state](const char* name, double value) { state.counters[name] = value; };
    tell("common", common.Seconds() * 1e6);
    if (avx2.Seconds() > 0) tell("avx2", avx2.Seconds() * 1e6);
    tell("plain", rule.Seconds() * 1e6);
    tell("of_plain", seconds / rule.Seconds());
    if (const double librarySeconds = library.Seconds(); librarySeconds > 0) {
        tell("library", librarySeconds * 1e6);
        tell("of_library", seconds / librarySeconds);
    }
    tell("frame", frame.Seconds() * 1e6);
}

void Register(const std::string& name, const NumberedFilter& filter, Noise range) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [&filter, range](benchmark::State& state) { Compare(state, filter, range); })
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
}

[[maybe_unused]] const bool registered = [] {
    for (const NumberedFilter& filter : AllFilters()) {
        const std::string name = "Filter" + std::string(filter.name);
        Register(name, filter, {});
        if (filter.number == FilterNumber::Contrast) Register(name + "InRange", filter, {40, 176});
    }
    return true;
}();

}  // namespace
}  // namespace coinlet
