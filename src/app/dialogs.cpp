#include "app/dialogs.h"

#include "collection/collection_form.h"
#include "colour/glitter_form.h"
#include "colour/pms_form.h"
#include "core/dialog.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/text_keys.h"
#include "core/tool_codes.h"
#include "designers/arc_form.h"
#include "designers/circel_text.h"
#include "designers/polygon_form.h"
#include "filters/color_change.h"
#include "filters/remove_form.h"
#include "libraries/back_form.h"
#include "libraries/border_form.h"
#include "libraries/clipart_form.h"
#include "libraries/dialog_form.h"
#include "libraries/symbol_form.h"
#include "store/file_menu.h"
#include "store/open_design.h"
#include "store/tekst_form.h"
#include "tools/tool_strip.h"

#include <array>
#include <cstddef>

namespace coinlet {

namespace {

constexpr std::array dialogs{
    DialogRow{"OpenFile", &MainForm::FileOpen, "", OpenDesign},
    DialogRow{"SaveForm", &MainForm::FileSave, "", SaveDesign},
    DialogRow{"DialogForm", &MainForm::FileImport, "", OpenDialog<DialogForm>},
    DialogRow{"SaveForm", &MainForm::FileExport, "", ExportDesign},
    DialogRow{"Afdrukken", &MainForm::FilePrint, "", PrintDesigns},
    DialogRow{"TekstForm", &MainForm::BewerkenInformation, "", OpenDialog<TekstForm>},
    DialogRow{"CollectionForm", &MainForm::ViewMyCollection, key::keepCollection, OpenDialog<CollectionForm>},
    DialogRow{"BorderForm", &MainForm::LibraryBorders, "", OpenDialog<BorderForm>},
    DialogRow{"BackForm", &MainForm::LibraryBackside, "", OpenDialog<BackForm>},
    DialogRow{"GlitterForm", &MainForm::LibraryGlitter, key::lookAtGlitter, OpenDialog<GlitterForm>},
    DialogRow{"ClipartForm", &MainForm::ClipartGroot, "", OpenDialog<ClipartForm>},
    DialogRow{"SymbolForm", &MainForm::Symbolen, key::chooseSymbol, OpenDialog<SymbolForm>},
    DialogRow{"PolygonForm", ToolButton{polygonTool}, "", OpenDialog<PolygonForm>},
    DialogRow{"ArcForm", ToolButton{arcTool}, "", OpenDialog<ArcForm>},
    DialogRow{"CircelText", ToolButton{curvedTextTool}, "", OpenDialog<CircelText>},
    DialogRow{"RemoveForm", ToolButton{removeTool}, "", OpenDialog<RemoveForm>},
    DialogRow{"ColorChange", ToolButton{replaceTool}, "", OpenDialog<ColorChange>},
    DialogRow{"PMSForm", FillColourField{}, "", OpenDialog<PMSForm>},
};

/// The event of the opener after which the dialog comes.
class OpeningEvent {
public:
    OpeningEvent(MainForm& main, ToolStrip& strip) : main_(main), strip_(strip) {}
    Event<>& operator()(MenuItem MainForm::*entry) const { return (main_.*entry).Click; }
    Event<>& operator()(ToolButton button) const {
        return strip_.openDialog.at(static_cast<std::size_t>(button.number));
    }
    Event<>& operator()(FillColourField) const { return strip_.openColourChooser; }

private:
    MainForm& main_;
    ToolStrip& strip_;
};

}  // namespace

std::span<const DialogRow> Dialogs() {
    return dialogs;
}

void BindDialogs(Context& context, ToolStrip& strip) {
    for (const DialogRow& row : dialogs) {
        std::visit(OpeningEvent(context.main, strip), row.opener) = [&context, &row] {
            if (!row.hintKey.empty()) ShowHint(context, row.hintKey);
            row.open(context);
        };
    }
}

}  // namespace coinlet
