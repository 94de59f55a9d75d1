#include "memory_growth.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <thread>
#include <utility>

namespace coinlet::test {

std::size_t ResidentBytes(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/statm");
    std::size_t all = 0, resident = 0;
    if (!(file >> all >> resident)) throw std::runtime_error("the program is gone");
    return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

namespace {

/// Waits until the process waits for something. What it has just done may still be on its way out of memory.
void WaitForRest(pid_t process) {
    using namespace std::chrono_literals;
    if (process == ::getpid()) return;
    constexpr int looks = 4;  // One alone could fall on an answer of the screen.
    for (int atRest = 0; atRest < looks; std::this_thread::sleep_for(5ms)) {
        std::ifstream file("/proc/" + std::to_string(process) + "/stat");
        std::string line;
        std::getline(file, line);
        const std::size_t name = line.rfind(')');
        if (name == std::string::npos) throw std::runtime_error("the program is gone");
        atRest = line.compare(name, 3, ") S") == 0 ? atRest + 1 : 0;
    }
}

}  // namespace

MemoryGrowth::MemoryGrowth(std::string what, pid_t process, int settled, int times)
    : what_(std::move(what)), process_(process), settled_(settled), times_(times), start_(Megabytes()) {
    if (settled_ == 0) atRest_ = start_;
}

double MemoryGrowth::Megabytes() const {
    return static_cast<double>(ResidentBytes(process_)) / (1 << 20);
}

void MemoryGrowth::PrintRow(double now) const {
    std::printf("%-16s %7d %9.1f MB %+7.1f MB", what_.c_str(), done_, now, now - start_);
    if (done_ > settled_) std::printf(" %+7.1f MB since %d", now - atRest_, settled_);
    std::printf("\n");
    std::fflush(stdout);  // Somebody may wait for it.
}

void MemoryGrowth::Done() {
    ++done_;
    constexpr int rows = 10;
    const bool isRow = done_ == 1 || done_ == settled_ || done_ % std::max(1, times_ / rows) == 0;
    if (!isRow && done_ != times_) return;
    WaitForRest(process_);
    last_ = Megabytes();
    if (done_ == settled_) atRest_ = last_;
    PrintRow(last_);
}

bool MemoryGrowth::Judge() const {
    if (done_ < times_ || settled_ >= times_) {
        std::printf("%s: fault: done %d times instead of %d\n", what_.c_str(), done_, times_);
        return false;
    }
    const double growth = last_ - atRest_;
    const bool isGood = growth < mostGrowth;
    std::printf("%s: %s%.1f MB in %d times after the first %d\n", what_.c_str(),
                isGood ? "" : "fault: ", growth, times_ - settled_, settled_);
    return isGood;
}

}  // namespace coinlet::test
