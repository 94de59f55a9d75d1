#include "fuzz/harness.h"

#include "fuzz/mutate.h"

#include <cstdio>
#include <cstdlib>

namespace coinlet::test {

namespace {

void PrintBytes(const Bytes& bytes) {
    constexpr std::size_t perLine = 32;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        std::printf("%02x%s", bytes[i], i % perLine == perLine - 1 ? "\n" : " ");
    std::printf("\n");
}

/// True if the reader takes the bytes well. Round 0 is that of the sound files.
bool Check(const Reader& reader, const Bytes& bytes, std::size_t round) {
    Outcome outcome = reader.read(bytes);
    if (round == 0 && !outcome.isRead) outcome.wrong = "a sound file is refused";
    if (outcome.wrong.empty()) return true;
    std::printf("%s, round %zu: %s\n", reader.name.c_str(), round, outcome.wrong.c_str());
    PrintBytes(bytes);
    return false;
}

}  // namespace

int Fuzz(const std::vector<Reader>& readers, std::size_t usualRounds, int argc, char** argv) {
    constexpr unsigned long usualSeed = 1;
    constexpr int decimal = 10;
    const std::size_t rounds = argc > 1 ? std::strtoul(argv[1], nullptr, decimal) : usualRounds;
    const unsigned long seed = argc > 2 ? std::strtoul(argv[2], nullptr, decimal) : usualSeed;
    bool sound = true;
    for (const Reader& reader : readers) {
        const std::size_t ownRounds = rounds / reader.slow;
        for (const Bytes& file : reader.files)
            sound = Check(reader, file, 0) && sound;
        Mutator mutator(static_cast<std::uint32_t>(seed));
        // A copy of its own for each round: a byte read beyond its end is one that the sanitizers see.
        for (std::size_t round = 1; round <= ownRounds && sound; ++round)
            sound = Check(reader, Bytes(mutator.Damaged(reader.files)), round);
        std::printf("%s: %zu damaged files\n", reader.name.c_str(), ownRounds);
    }
    return sound ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace coinlet::test
