// Where libFuzzer comes in.
#include "fuzz/entry.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace coinlet::test {

const Reader& TheReader() {
    static const Reader reader = MakeReader();
    return reader;
}

bool Play(std::span<const std::uint8_t> bytes) {
    const Outcome outcome = TheReader().read(bytes);
    if (outcome.wrong.empty()) return outcome.isRead;
    std::fprintf(stderr, "%s: %s\n", TheReader().name.c_str(), outcome.wrong.c_str());
    std::abort();
}

namespace {

void WriteSoundFiles(const fs::path& folder) {
    std::size_t number = 0;
    for (const Bytes& file : TheReader().files) {
        std::ofstream out(folder / ("sound_" + std::to_string(++number)), std::ios::binary);
        out.write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
    }
}

}  // namespace

}  // namespace coinlet::test

/// With COINLET_SOUND_FILES in the environment, the name of a folder, it writes the sound files there, for
/// the fuzzer to start from, and ends.
extern "C" int LLVMFuzzerInitialize(int*, char***) {
    const char* const folder = std::getenv("COINLET_SOUND_FILES");
    if (!folder) return 0;
    coinlet::test::WriteSoundFiles(folder);
    std::exit(EXIT_SUCCESS);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    coinlet::test::Play({data, size});
    return 0;
}
