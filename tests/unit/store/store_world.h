#pragma once

#include "support/world.h"

namespace coinlet::test {
using StoreWorld = World;
}  // namespace coinlet::test
