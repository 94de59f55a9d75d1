#include "app/library_menu.h"

#include "colour/glitter_form.h"
#include "core/context.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/text_keys.h"
#include "libraries/back_form.h"
#include "libraries/border_form.h"

#include <array>
#include <string_view>

namespace coinlet {

namespace {

template <class Dialog>
void Open(Context& context) {
    Dialog dialog(context);
    context.services.platform.ShowModal(dialog);
}

struct LibraryEntry {
    MenuItem MainForm::*entry;
    std::string_view hintKey;  ///< Empty: the entry says nothing.
    void (*open)(Context&);
};
constexpr std::array libraryEntries{
    LibraryEntry{&MainForm::LibraryBorders, "", Open<BorderForm>},
    LibraryEntry{&MainForm::LibraryBackside, "", Open<BackForm>},
    LibraryEntry{&MainForm::LibraryGlitter, key::lookAtGlitter, Open<GlitterForm>},
};

}  // namespace

void BindLibraryMenu(Context& context) {
    for (const LibraryEntry& row : libraryEntries) {
        (context.main.*row.entry).Click = [&context, &row] {
            if (!row.hintKey.empty()) ShowHint(context, row.hintKey);
            row.open(context);
        };
    }
}

}  // namespace coinlet
