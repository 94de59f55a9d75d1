// A target in a build without libFuzzer: plays kept seeds to its reader. PROGRAM [--sound] FILE_OR_FOLDER...,
// with
// --sound the reader's sound files first, none of which it may refuse. A crash, or what is wrong with what
// the reader makes of a seed, ends it; the last line printed names the seed.
#include "fuzz/entry.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace coinlet::test {
namespace {

std::vector<fs::path> SeedsAt(const fs::path& place) {
    if (!fs::is_directory(place)) return {place};
    std::vector<fs::path> seeds;
    for (const auto& entry : fs::recursive_directory_iterator(place))
        if (entry.is_regular_file()) seeds.push_back(entry.path());
    std::ranges::sort(seeds);
    return seeds;
}

bool PlaySoundFiles() {
    const bool allRead = std::ranges::all_of(TheReader().files, Play);
    if (!allRead) std::printf("%s: a sound file is refused\n", TheReader().name.c_str());
    return allRead;
}

bool PlaySeed(const fs::path& seed) {
    std::printf("%s\n", seed.c_str());
    std::fflush(stdout);  // Before any crash.
    const auto bytes = ReadFile(seed);
    // A copy of its very size: a byte read beyond its end is one that the sanitizers see.
    if (bytes) Play(Bytes(bytes->begin(), bytes->end()));
    return bytes.has_value();
}

}  // namespace
}  // namespace coinlet::test

int main(int argc, char** argv) {  // NOLINT(bugprone-exception-escape): a broken test bed may end it
    using namespace coinlet::test;
    std::size_t played = 0;
    for (int i = 1; i < argc; ++i) {
        if (std::string_view(argv[i]) == "--sound") {
            if (!PlaySoundFiles()) return EXIT_FAILURE;
            continue;
        }
        for (const auto& seed : SeedsAt(argv[i])) {
            if (!PlaySeed(seed)) return EXIT_FAILURE;
            ++played;
        }
    }
    std::printf("%zu seeds\n", played);
    return played > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
