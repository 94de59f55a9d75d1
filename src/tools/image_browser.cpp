#include "tools/image_browser.h"

#include "core/context.h"
#include "core/main_form.h"

#include <string>

namespace coinlet {

void ListImages(Context& context, std::string_view pattern) {
    MainForm& main = context.main;
    main.File1.SetPath(context.session.ImageFolder);
    main.File1.SetPattern(std::string(pattern));
    main.List1.Clear();
    for (int i = 0; i < main.File1.ListCount(); ++i)
        main.List1.AddItem(main.File1.List(i));
}

void ShowImageCount(Context& context) {
    context.main.Label8.Caption = "Images : " + std::to_string(context.main.File1.ListCount());
}

}  // namespace coinlet
