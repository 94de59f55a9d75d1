#pragma once

#include "base/files.h"

namespace coinlet::test {

/// While it lives, the whole program writes its files by these calls instead of the system's. One at a time.
class UsedFileCalls {
public:
    explicit UsedFileCalls(FileCalls& calls);
    ~UsedFileCalls();
    UsedFileCalls(const UsedFileCalls&) = delete;
    UsedFileCalls& operator=(const UsedFileCalls&) = delete;
};

/// Those of the system, whatever the program uses at the moment.
FileCalls& RealFileCalls();

}  // namespace coinlet::test
