#include "player/reach.h"

#include "controls/control.h"
#include "controls/menu.h"
#include "player/failure.h"
#include "player/names.h"
#include "player/values.h"

namespace coinlet::player {

void RequireFront(const Life& life, const Form& form) {
    if (!form.Loaded()) Fail(std::string(form.Name()) + " isn't open");
    const Form* const front = life.platform.FrontForm();
    if (front != &form) {
        Fail(std::string(form.Name()) + " is blocked by " + std::string(front->Name()) +
             ", which is in front");
    }
}

void RequireReach(const Life& life, const Control& control) {
    RequireFront(life, control.OwnerForm());
    if (!control.Visible) Fail(FullNameOf(control) + " is hidden");
    if (!control.Shown()) Fail(FullNameOf(control) + " lies in something hidden");
    if (!control.Enabled()) Fail(FullNameOf(control) + " is disabled");
    if (!control.Reachable()) Fail(FullNameOf(control) + " lies in something disabled");
}

void RequireChoice(const Life& life, const MenuItem& entry) {
    RequireFront(life, entry.OwnerForm());
    if (entry.IsSeparator()) Fail(FullNameOf(entry) + " is a separator");
    if (!entry.Entries().empty()) Fail(FullNameOf(entry) + " is a menu, not an entry of one");
    if (!entry.CanBeChosen()) Fail(FullNameOf(entry) + " is hidden or disabled");
}

}  // namespace coinlet::player
