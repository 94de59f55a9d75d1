#pragma once

#include "player/life.h"

namespace coinlet {
class MenuItem;
}

namespace coinlet::player {

// What a user can get at. Each of these throws ScriptFailure, saying what is in the way.

/// The form is loaded and nothing stands before it.
void RequireFront(const Life& life, const Form& form);
/// The control and all that it lies in is visible and enabled, and its form is in front.
void RequireReach(const Life& life, const Control& control);
/// The entry can be chosen, and its form is in front.
void RequireChoice(const Life& life, const MenuItem& entry);

}  // namespace coinlet::player
