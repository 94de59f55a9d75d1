#include "player/names.h"

#include "controls/element.h"
#include "controls/form.h"

namespace coinlet::player {

std::string NameOf(const Element& element) {
    std::string name(element.Name());
    if (element.Index() != noIndex) name.append("(").append(std::to_string(element.Index())).append(")");
    return name;
}

std::string FullNameOf(const Element& element) {
    return std::string(element.OwnerForm().Name()) + "." + NameOf(element);
}

}  // namespace coinlet::player
