#include "used_file_calls.h"

// The linker turns every call of SystemFileCalls() to the second of these names, and gives the first to the
// function itself: so the program has no switch that only tests would use.
coinlet::FileCalls& SystemsOwn() __asm__("__real__ZN7coinlet15SystemFileCallsEv");
coinlet::FileCalls& InUse() __asm__("__wrap__ZN7coinlet15SystemFileCallsEv");

namespace {

coinlet::FileCalls* used = nullptr;

}  // namespace

coinlet::FileCalls& InUse() {
    return used != nullptr ? *used : SystemsOwn();
}

namespace coinlet::test {

UsedFileCalls::UsedFileCalls(FileCalls& calls) {
    used = &calls;
}
UsedFileCalls::~UsedFileCalls() {
    used = nullptr;
}

FileCalls& RealFileCalls() {
    return SystemsOwn();
}

}  // namespace coinlet::test
