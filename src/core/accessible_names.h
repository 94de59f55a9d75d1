#pragma once

#include "controls/element.h"
#include "controls/name_giver.h"

#include <span>
#include <string_view>

namespace coinlet {

struct Context;

/// Where a control's name comes from: a text of the language table, or the caption of a label of the form,
/// which in an array is the one of the same index.
struct NamedControl {
    std::string_view form, control;
    std::string_view key;
    std::string_view label;
    bool numbered = false;  ///< In an array: the number behind the name, from 1.
    int index = noIndex;    ///< The one of an array that is meant, if not each.
};

/// All controls that are named so.
std::span<const NamedControl> NamedControls();

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
