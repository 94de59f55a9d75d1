#pragma once

#include "controls/name_giver.h"

namespace coinlet {

struct Context;

/// The names of the controls of all forms: by the language table in force, or by the label beside them.
class AccessibleNames : public NameGiver {
public:
    explicit AccessibleNames(const Context& context) : context_(context) {}

    std::string NameOf(const Control& control) const override;
    std::uint64_t Revision() const override;

private:
    const Context& context_;
};

}  // namespace coinlet
