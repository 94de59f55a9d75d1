#pragma once

namespace coinlet::test {

/// How many faults the program has told of so far.
int ToldFaults();

}  // namespace coinlet::test
