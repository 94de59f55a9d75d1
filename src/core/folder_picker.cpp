#include "core/folder_picker.h"

#include "core/context.h"
#include "core/language.h"
#include "core/text_keys.h"

namespace coinlet {

std::string BrowseForFolder(Context& context, const std::string& start) {
    return context.services.platform.PickFolder(LookupInfoText(context, key::chooseFolder), start);
}

}  // namespace coinlet
