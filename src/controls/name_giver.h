#pragma once

#include <cstdint>
#include <string>

namespace coinlet {

class Control;

/// Whoever knows what to call a control that has neither a caption nor a tooltip, in the program's language:
/// assistive tools read it out.
class NameGiver {
public:
    virtual ~NameGiver() = default;

    /// The name, or an empty text for a control that needs none.
    virtual std::string NameOf(const Control& control) const = 0;
    /// Grows whenever names may have become others.
    virtual std::uint64_t Revision() const = 0;
};

}  // namespace coinlet
