#pragma once

#include "controls/control.h"
#include "player/address.h"
#include "player/life.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace coinlet::player {

// What an address means in the running program. Whatever isn't there throws ScriptFailure.

/// A form, or something on it.
struct Target {
    Form* form = nullptr;
    Element* element = nullptr;  ///< nullptr: the form itself.
};

Form& FindForm(Life& life, const std::string& name);
/// `Form` or `Form.Control(i)`.
Target FindTarget(Life& life, const Address& address);
/// `Form.Control(i)`.
Element& FindElement(Life& life, const Address& address);
Control& FindControl(Life& life, const Address& address);

/// A property with what it belongs to, if that is an element.
struct PropertyTarget {
    Property property;
    Element* element = nullptr;
};

/// `Form.Control(i).Property`, `Form.Control.List(i)`, `Form.Property`, `Session.NAME`, `Screen.NAME`,
/// `Program.Ended`. `life` is nullptr before the program starts; then only `Screen` is there.
PropertyTarget FindProperty(World& world, Life* life, const Address& address);

/// `Form.Control(i).Event` or `Form.Event`.
NamedEvent FindEvent(Life& life, const Address& address);

/// All properties of an element, a form, `Session`, `Screen` or `Program` with their values, sorted by name.
std::vector<std::pair<std::string, std::string>> AllProperties(World& world, Life& life,
                                                               const Address& address);

}  // namespace coinlet::player
