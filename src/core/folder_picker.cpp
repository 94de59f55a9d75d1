#include "core/folder_picker.h"

#include "core/context.h"
#include "core/language.h"

namespace coinlet {

std::string BrowseForFolder(Context& context) {
    return context.services.platform.PickFolder(LookupInfoText(context, "006"));
}

}  // namespace coinlet
