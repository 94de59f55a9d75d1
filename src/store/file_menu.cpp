#include "store/file_menu.h"

#include "core/context.h"
#include "core/main_form.h"
#include "store/save_form.h"
#include "store/tekst_form.h"

namespace coinlet {

FileMenu::FileMenu(Context& context) : context_(context) {
    MainForm& main = context.main;
    main.FileSave.Click = [this] { ShowSaveForm("BMP"); };
    main.FileExport.Click = [this] { ShowSaveForm("JPG"); };
    main.BewerkenInformation.Click = [this] { BewerkenInformation_Click(); };
}

void FileMenu::ShowSaveForm(std::string_view mode) {
    context_.session.SaveMode = mode;
    SaveForm dialog(context_);
    context_.services.platform.ShowModal(dialog);
}

void FileMenu::BewerkenInformation_Click() {
    TekstForm dialog(context_);
    context_.services.platform.ShowModal(dialog);
}

}  // namespace coinlet
