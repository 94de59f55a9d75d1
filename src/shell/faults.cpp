#include "shell/faults.h"

#include <cstdio>

namespace coinlet {

void TellFault(const std::exception& fault) {
    std::fprintf(stderr, "Coinlet Designer: something failed and was given up: %s\n", fault.what());
}

}  // namespace coinlet
