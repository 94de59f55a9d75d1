#include "store/file_menu.h"

#include "core/context.h"
#include "core/main_form.h"
#include "store/afdrukken.h"
#include "store/save_form.h"
#include "store/tekst_form.h"

namespace coinlet {

namespace {

/// An entry that can't be chosen while this exists.
class BarredEntry {
public:
    explicit BarredEntry(MenuItem& entry) : entry_(entry) { entry_.Enabled = false; }
    ~BarredEntry() { entry_.Enabled = true; }
    BarredEntry(const BarredEntry&) = delete;
    BarredEntry& operator=(const BarredEntry&) = delete;

private:
    MenuItem& entry_;
};

}  // namespace

FileMenu::FileMenu(Context& context) : context_(context) {
    MainForm& main = context.main;
    main.FileSave.Click = [this] { ShowSaveForm("BMP"); };
    main.FileExport.Click = [this] { ShowSaveForm("JPG"); };
    main.FilePrint.Click = [this] { FilePrint_Click(); };
    main.BewerkenInformation.Click = [this] { BewerkenInformation_Click(); };
}

void FileMenu::ShowSaveForm(std::string_view mode) {
    context_.session.SaveMode = mode;
    SaveForm dialog(context_);
    context_.services.platform.ShowModal(dialog);
}

void FileMenu::FilePrint_Click() {
    // A job goes on when the user closes its dialog; the next one has to wait for its end.
    const BarredEntry barred(context_.main.FilePrint);
    Afdrukken dialog(context_);
    context_.services.platform.ShowModal(dialog);
}

void FileMenu::BewerkenInformation_Click() {
    TekstForm dialog(context_);
    context_.services.platform.ShowModal(dialog);
}

}  // namespace coinlet
