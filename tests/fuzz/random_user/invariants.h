#pragma once

#include "controls/control.h"
#include "controls/platform.h"
#include "player/life.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace coinlet::test {

/// Looks whether the program is sound, again and again. Pixels that haven't changed since the last look are
/// not looked at again.
class FaultFinder {
public:
    /// What is wrong with the program as it stands, though no doing of any user may make it so; "" if
    /// nothing.
    std::string Find(const Platform& platform);

private:
    std::string FaultOfForm(const Form& form);
    std::string FaultOfPixels(const Element& element, ControlKind kind);

    std::vector<Form*> forms_;                       ///< That were open at the last look.
    std::map<const Element*, std::uint64_t> sound_;  ///< The state of the pixels that were found sound.
};

/// What is wrong with the pictures in stock; "" if nothing.
std::string FaultOfStock(player::Life& life);

}  // namespace coinlet::test
