// kill_strokes PROGRAM KILLS [AT_ONCE [SEED]]
//
// People who draw, and whose program is killed at a random moment, again and again: each stroke that was
// finished twelve seconds before is in the design that the next start puts into the store. Several sit side
// by side, since what takes the time is waiting. Prints what was found; exit status 1 if a stroke was lost.

#include "seat.h"
#include "support/temporary_folder.h"
#include "surface/codecs.h"

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <mutex>
#include <random>
#include <thread>

namespace coinlet::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr double promised = 12;  // seconds
constexpr int firstRow = 6, rowPitch = 4, lastRow = 494;

struct Stroke {
    int row;
    Clock::time_point finished;
};

/// What all have found so far.
struct Findings {
    std::mutex mutex;
    int kills = 0, strokes = 0, old = 0, kept = 0, lost = 0, withoutWork = 0;
    double oldestLost = 0;  ///< Age in seconds of the oldest stroke that wasn't there.
    bool failed = false;
};

class Drawer {
public:
    Drawer(const fs::path& program, const fs::path& folder, unsigned seed, Findings& findings)
        : seat_(program, folder), random_(seed), findings_(findings) {}

    /// One life of the program, and the look at what the next one finds. It has to be started.
    void DrawUntilKilled() {
        const auto place = seat_.PlaceOf(seat_.Form().Knop[0], 20, 14);
        seat_.ClickAt(place.x, place.y);
        const auto end = Clock::now() + std::chrono::duration_cast<Clock::duration>(Seconds(Between(2, 32)));
        // Some never pause, some do now and then, some think for long.
        const double longestPause = std::vector{0.3, 0.9, 1.5, 4.0, 9.0}[random_() % 5];
        std::vector<Stroke> strokes;
        for (int row = firstRow; row < lastRow && Clock::now() < end; row += rowPitch) {
            strokes.push_back({row, DrawAt(row)});
            std::this_thread::sleep_until(std::min(
                end, Clock::now() +
                         std::chrono::duration_cast<Clock::duration>(Seconds(Between(0.02, longestPause)))));
        }
        std::this_thread::sleep_until(end);
        seat_.Kill();
        const auto killed = Clock::now();
        seat_.Start();
        Judge(strokes, killed);
    }
    void Start() { seat_.Start(); }

private:
    double Between(double least, double most) {
        return std::uniform_real_distribution<double>(least, most)(random_);
    }

    Clock::time_point DrawAt(int row) {
        const auto at = [&](int x) { return seat_.PlaceOf(seat_.Form().Pic, x, row); };
        seat_.MoveTo(at(60).x, at(60).y);
        seat_.Press();
        for (const int x : {150, 250, 350, 440}) {
            seat_.MoveTo(at(x).x, at(x).y);
            std::this_thread::sleep_for(std::chrono::milliseconds(random_() % 20));
        }
        seat_.Release();
        return Clock::now();
    }

    /// What the start has put into the store is looked at, and taken away for the next round.
    std::optional<Image> Recovered() const {
        const auto designs = ListFiles(seat_.Designs(), "Hersteld *.pat");
        if (designs.size() > 1) throw std::runtime_error("more than one design came back");
        if (designs.empty()) return std::nullopt;
        const fs::path file = seat_.Designs() / designs.front();
        auto picture = DecodeBmp(ReadFile(file).value_or(Bytes()));
        if (!picture || picture->Width() != 700 || picture->Height() != 500)
            throw std::runtime_error("the design that came back is torn");
        if (DeleteFile(file)) throw std::runtime_error("can't delete");
        return picture;
    }

    void Judge(const std::vector<Stroke>& strokes, Clock::time_point killed) {
        // The start does it before it shows its window.
        const auto design = Recovered();
        const std::lock_guard lock(findings_.mutex);
        ++findings_.kills;
        if (!design) ++findings_.withoutWork;
        for (const Stroke& stroke : strokes) {
            const double age = Seconds(killed - stroke.finished).count();
            const bool isThere = design && design->At(250, stroke.row) == black;
            ++findings_.strokes;
            if (isThere) ++findings_.kept;
            if (!isThere) findings_.oldestLost = std::max(findings_.oldestLost, age);
            if (age <= promised) continue;
            ++findings_.old;
            if (isThere) continue;
            ++findings_.lost;
            std::printf("lost: a stroke %.1f s old\n", age);
        }
    }

    Seat seat_;
    std::mt19937 random_;
    Findings& findings_;
};

int Run(const fs::path& program, int kills, int atOnce, unsigned seed) {
    const TemporaryFolder folder;
    Findings findings;
    std::atomic<int> left = kills;
    std::vector<std::thread> people;
    for (int i = 0; i < atOnce; ++i) {
        people.emplace_back([&, i] {
            try {
                const fs::path own = folder / std::to_string(i);
                fs::create_directory(own);
                Drawer drawer(program, own, seed * 1000 + static_cast<unsigned>(i), findings);
                drawer.Start();
                while (left-- > 0)
                    drawer.DrawUntilKilled();
            } catch (const std::exception& fault) {
                const std::lock_guard lock(findings.mutex);
                findings.failed = true;
                std::printf("fault: %s\n", fault.what());
            }
        });
    }
    for (auto& person : people)
        person.join();
    std::printf("%d kills, %d strokes, %d of them older than %.0f s: %d lost\n", findings.kills,
                findings.strokes, findings.old, promised, findings.lost);
    std::printf(
        "of all strokes %d came back; the oldest that didn't was %.1f s old; %d kills had nothing to keep\n",
        findings.kept, findings.oldestLost, findings.withoutWork);
    return findings.lost > 0 || findings.failed || findings.kills < kills ? 1 : 0;
}

}  // namespace
}  // namespace coinlet::test

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("kill_strokes PROGRAM KILLS [AT_ONCE [SEED]]\n", stderr);
        return 2;
    }
    const int kills = std::atoi(argv[2]);
    const int atOnce = argc > 3 ? std::atoi(argv[3]) : 8;
    const unsigned seed = argc > 4 ? static_cast<unsigned>(std::atoi(argv[4])) : 1U;
    return coinlet::test::Run(argv[1], kills, std::min(kills, atOnce), seed);
}
