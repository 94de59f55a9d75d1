#include "store/open_design.h"

#include "core/dialog.h"
#include "core/main_form.h"
#include "store/open_file.h"

namespace coinlet {

namespace {

constexpr int blinks = 3;
constexpr double blinkSeconds = 0.5;

void TellOfInfoText(Context& context) {
    MainForm& main = context.main;
    if (main.List2.ListCount() == 0) return;
    for (int i = 0; i < blinks; ++i) {
        for (const bool shown : {true, false}) {
            main.Label19.Visible = shown;
            context.services.platform.Wait(blinkSeconds);
        }
    }
}

}  // namespace

void OpenDesign(Context& context) {
    OpenDialog<OpenFile>(context);
    TellOfInfoText(context);
}

}  // namespace coinlet
