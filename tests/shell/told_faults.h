#pragma once

namespace coinlet::test {

/// How many faults there were so far of which the program gave notice.
int ToldFaults();

}  // namespace coinlet::test
