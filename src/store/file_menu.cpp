#include "store/file_menu.h"

#include "core/dialog.h"
#include "core/main_form.h"
#include "store/afdrukken.h"
#include "store/save_form.h"

#include <string_view>

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

void ShowSaveForm(Context& context, std::string_view mode) {
    context.session.SaveMode = mode;
    OpenDialog<SaveForm>(context);
}

}  // namespace

void SaveDesign(Context& context) {
    ShowSaveForm(context, "BMP");
}

void ExportDesign(Context& context) {
    ShowSaveForm(context, "JPG");
}

void PrintDesigns(Context& context) {
    const BarredEntry barred(context.main.FilePrint);
    OpenDialog<Afdrukken>(context);
}

}  // namespace coinlet
