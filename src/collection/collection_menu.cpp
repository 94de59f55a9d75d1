#include "collection/collection_menu.h"

#include "collection/collection_form.h"
#include "core/context.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/text_keys.h"

namespace coinlet {

CollectionMenu::CollectionMenu(Context& context) : context_(context) {
    context.main.ViewMyCollection.Click = [this] { ViewMyCollection_Click(); };
}

void CollectionMenu::ViewMyCollection_Click() {
    ShowHint(context_, key::keepCollection);
    CollectionForm dialog(context_);
    context_.services.platform.ShowModal(dialog);
}

}  // namespace coinlet
