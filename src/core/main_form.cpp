#include "core/main_form.h"

#include "core/main_layout.h"
#include "core/main_menus.h"

namespace coinlet {

MainForm::MainForm(FormServices services) : Form(services, "Main") {
    LayOutMain(*this);
    CaptionMainMenus(*this);
}

}  // namespace coinlet
