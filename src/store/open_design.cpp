#include "store/open_design.h"

#include "core/context.h"
#include "core/main_form.h"
#include "store/open_file.h"

namespace coinlet {

namespace {

constexpr int blinks = 3;
constexpr double blinkSeconds = 0.5;

}  // namespace

OpenDesign::OpenDesign(Context& context) : context_(context) {
    context.main.FileOpen.Click = [this] { FileOpen_Click(); };
}

void OpenDesign::FileOpen_Click() {
    OpenFile dialog(context_);
    context_.services.platform.ShowModal(dialog);
    TellOfInfoText();
}

void OpenDesign::TellOfInfoText() {
    MainForm& main = context_.main;
    if (main.List2.ListCount() == 0) return;
    for (int i = 0; i < blinks; ++i) {
        for (const bool shown : {true, false}) {
            main.Label19.Visible = shown;
            context_.services.platform.Wait(blinkSeconds);
        }
    }
}

}  // namespace coinlet
