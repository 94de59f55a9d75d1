// Fonts that are damaged or hostile: none crashes the program, and what is printed with one stays within its
// room.
#include "fuzz/harness.h"
#include "fuzz/targets/targets.h"

int main(int argc, char** argv) {
    using namespace coinlet::test;
    constexpr std::size_t usualRounds = 15000;
    return Fuzz({FontReader()}, usualRounds, argc, argv);
}
