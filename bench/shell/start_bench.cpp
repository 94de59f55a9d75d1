// How long the program takes until its window stands painted on the screen, and how much memory it has taken
// by then; beside it the same of the least window of its kind. The two take turns, so that whatever else the
// machine does meets both.

#include "support/temporary_folder.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <thread>
#include <vector>
#include <xcb/xcb.h>

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;
using namespace std::chrono_literals;

constexpr int standardRuns = 21;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

class Display {
public:
    Display() : connection_(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(connection_) != 0) {
            std::fputs("no display\n", stderr);
            std::exit(1);
        }
        screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
    }
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;
    ~Display() { xcb_disconnect(connection_); }

    /// True if a window is there whose canvas has its white ground. The screen's own ground is black, and so
    /// is a window until it is painted, which happens all at once.
    bool ShowsCanvas() const {
        const auto window = Largest();
        if (!window) return false;
        // In the middle of the window there is nothing but canvas.
        const auto cookie =
            xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root,
                          static_cast<std::int16_t>(window->x + window->width / 2 - 50),
                          static_cast<std::int16_t>(window->y + window->height / 2), 1, 1, ~0U);
        const std::unique_ptr<xcb_get_image_reply_t, Free> image(
            xcb_get_image_reply(connection_, cookie, nullptr));
        if (!image || xcb_get_image_data_length(image.get()) < 3) return false;
        const std::uint8_t* pixel = xcb_get_image_data(image.get());
        return std::all_of(pixel, pixel + 3, [](std::uint8_t channel) { return channel == 255; });
    }
    bool IsEmpty() const { return !Largest(); }

private:
    /// The largest window on the screen; none if no window is as large as a main window.
    std::optional<xcb_get_geometry_reply_t> Largest() const {
        const std::unique_ptr<xcb_query_tree_reply_t, Free> tree(
            xcb_query_tree_reply(connection_, xcb_query_tree(connection_, screen_->root), nullptr));
        if (!tree) return {};
        const xcb_window_t* windows = xcb_query_tree_children(tree.get());
        for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
            const std::unique_ptr<xcb_get_geometry_reply_t, Free> place(
                xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, windows[i]), nullptr));
            constexpr int least = 600;
            if (place && place->width > least && place->height > least) return *place;
        }
        return {};
    }

    xcb_connection_t* connection_;
    xcb_screen_t* screen_ = nullptr;
};

struct Figures {
    double milliseconds = 0;
    double megabytes = 0;
};

/// The most memory that a process has had, in megabytes of a million bytes.
double MostMemory(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string word; status >> word;) {
        if (word != "VmHWM:") continue;
        double kibibytes = 0;
        status >> kibibytes;
        return kibibytes * 1024 / 1e6;
    }
    return 0;
}

template <class Condition>
bool Await(Condition condition) {
    const auto patience = Clock::now() + 20s;
    while (!condition()) {
        if (Clock::now() > patience) return false;
        std::this_thread::sleep_for(200us);
    }
    return true;
}

Figures Start(const fs::path& program, const Display& display) {
    const auto start = Clock::now();
    const pid_t process = fork();
    if (process == 0) {
        execl(program.c_str(), program.c_str(), nullptr);
        _exit(127);
    }
    Figures figures;
    const bool shown = Await([&] { return display.ShowsCanvas(); });
    figures.milliseconds = Milliseconds(Clock::now() - start).count();
    // What the window does right after it is shown counts too.
    std::this_thread::sleep_for(150ms);
    figures.megabytes = MostMemory(process);
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    if (!shown || !Await([&] { return display.IsEmpty(); })) {
        std::fprintf(stderr, "%s shows no window\n", program.c_str());
        std::exit(1);
    }
    return figures;
}

double Median(std::vector<Figures> runs, double Figures::*figure) {
    const auto middle = runs.begin() + static_cast<std::ptrdiff_t>(runs.size() / 2);
    std::nth_element(runs.begin(), middle, runs.end(),
                     [figure](const Figures& a, const Figures& b) { return a.*figure < b.*figure; });
    return (*middle).*figure;
}

void Print(std::string_view what, const std::vector<Figures>& program, const std::vector<Figures>& floor,
           double Figures::*figure, std::string_view unit) {
    const double ours = Median(program, figure);
    const double least = Median(floor, figure);
    std::printf("%-24.*s %8.1f %.*s   floor %8.1f %.*s   ratio %.2f\n", static_cast<int>(what.size()),
                what.data(), ours, static_cast<int>(unit.size()), unit.data(), least,
                static_cast<int>(unit.size()), unit.data(), ours / least);
}

}  // namespace

int main(int argc, char** argv) {
    if (std::getenv("DISPLAY") == nullptr) {
        std::array<char*, 4> again{const_cast<char*>(COINLET_SCREEN), argv[0], argc > 1 ? argv[1] : nullptr};
        execv(COINLET_SCREEN, again.data());
        return 1;
    }
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : standardRuns;

    // The program writes into its folder, so it gets one that nobody uses.
    const coinlet::test::TemporaryFolder folder;
    const fs::path built(COINLET_PROGRAM);
    fs::copy(built.parent_path(), folder.Path(), fs::copy_options::recursive);
    const fs::path copy = folder / built.filename();

    const Display display;
    std::vector<Figures> ours, least;
    for (int run = -1; run < runs; ++run) {
        const Figures program = Start(copy, display);
        const Figures floor = Start(COINLET_FLOOR, display);
        if (run < 0) continue;  // The first one fills the machine's caches.
        ours.push_back(program);
        least.push_back(floor);
    }
    std::printf("medians of %d starts each\n", runs);
    Print("start to painted window", ours, least, &Figures::milliseconds, "ms");
    Print("peak memory", ours, least, &Figures::megabytes, "MB");
}
