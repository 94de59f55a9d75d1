#include "core/accessible_names.h"

#include "base/text.h"
#include "controls/form.h"
#include "controls/label.h"
#include "core/context.h"
#include "core/language.h"
#include "core/main_form.h"
#include "core/name_keys.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace coinlet {

namespace {

constexpr NamedControl names[] = {
    {"Main", "Bar", key::progressName, {}},
    {"Main", "List1", key::picturesName, {}},
    {"Main", "Pic2", key::previewName, {}},
    {"Main", "Pic", key::canvasName, {}},
    {"Main", "ClipPic", key::floatingImageName, {}},
    {"Main", "TopPic", key::rulerName, {}},
    {"Main", "LeftPic", key::rulerName, {}},
    {"Main", "HoekPic", key::rulerName, {}},
    {"Main", "LabelPic", key::boardName, {}},
    {"Main", "TopInfoPic", key::sidePanelName, {}},
    {"Main", "InfoPic", key::sidePanelName, {}},
    {"Main", "HScroll1", key::lineWidthName, {}},
    {"Main", "HScroll2", key::cornerName, {}},
    {"Main", "HScroll3", key::eraserSizeName, {}},
    {"Main", "HScroll4", key::rasterName, {}},
    {"Main", "HScroll5", {}, "Label22"},
    {"Main", "Text1", {}, "Label13"},
    {"Main", "Combo2", {}, "Label14"},
    {"Main", "Combo3", {}, "Label15"},
    {"ArcForm", "Pic", key::designCopyName, {}},
    {"ArcForm", "HScroll1", key::lineWidthName, {}},
    {"ArcForm", "HScroll2", key::circleLeftName, {}, false, 0},
    {"ArcForm", "HScroll2", key::circleTopName, {}, false, 1},
    {"ArcForm", "HScroll2", key::circleDiameterName, {}, false, 2},
    {"ArcForm", "Combo1", {}, "Label12"},
    {"ArcForm", "Combo2", {}, "Label13"},
    {"ArcForm", "Combo3", {}, "Label14"},
    {"ArcForm", "ColorScroll", {}, "Label15"},
    {"ArcForm", "Label16", {}, "Label17"},
    {"PolygonForm", "Picture1", key::drawingName, {}},
    {"PolygonForm", "txtNumberofSides", {}, "Label1"},
    {"PolygonForm", "vsbNumberofSides", {}, "Label1"},
    {"PolygonForm", "txtDiameter", {}, "Label6"},
    {"PolygonForm", "vsbDiameter", {}, "Label6"},
    {"PolygonForm", "txtDegrees", {}, "Label9"},
    {"PolygonForm", "txtRadius", {}, "Label7"},
    {"PolygonForm", "txtInitialSide", {}, "Label11"},
    {"PolygonForm", "hsbRotate", {}, "Label11"},
    {"PolygonForm", "txtCircumference", {}, "Label4"},
    {"PolygonForm", "txtArcLength", {}, "Label5"},
    {"PolygonForm", "txtLengthofSide", {}, "Label2"},
    {"PolygonForm", "txtPerimeter", {}, "Label3"},
    {"PolygonForm", "Combo1", {}, "Label15"},
    {"PolygonForm", "HScroll1", {}, "Label13"},
    {"CircelText", "Pic", key::designCopyName, {}},
    {"CircelText", "Text1", {}, "Label1"},
    {"CircelText", "Combo1", {}, "Label2"},
    {"CircelText", "Combo2", {}, "Label3"},
    {"CircelText", "Combo3", {}, "Label5"},
    {"CircelText", "Combo4", {}, "Label7"},
    {"RemoveForm", "Pic", key::designCopyName, {}},
    {"RemoveForm", "Picture1", key::magnifierName, {}},
    {"ColorChange", "Pic", key::designCopyName, {}},
    {"ColorChange", "Combo1", key::paletteName, {}},
    {"ColorChange", "HScroll1", key::redName, {}, false, 0},
    {"ColorChange", "HScroll1", key::greenName, {}, false, 1},
    {"ColorChange", "HScroll1", key::blueName, {}, false, 2},
    {"ColorChange", "picTarget", key::oldColourName, {}, true},
    {"ColorChange", "picResult", key::newColourName, {}, true},
    {"PMSForm", "HScroll1", key::colourPlaceName, {}},
    {"PMSForm", "Combo1", {}, "Label13"},
    {"PMSForm", "Pic", key::paletteName, {}},
    {"GlitterForm", "PicCont", key::chartName, {}},
    {"GlitterForm", "SlidePic", key::chartName, {}},
    {"GlitterForm", "VScroll", key::scrollDownName, {}},
    {"GlitterForm", "HScroll", key::scrollAcrossName, {}},
    {"SymbolForm", "Combo1", key::fontName, {}},
    {"SymbolForm", "Combo2", {}, "Label1"},
    {"SymbolForm", "Pic", key::symbolsName, {}},
    {"SymbolForm", "HScroll1", key::scrollAcrossName, {}},
    {"BackForm", "Pic", key::backsName, {}},
    {"BackForm", "HScroll1", key::scrollAcrossName, {}},
    {"BackForm", "Orgineel", key::chosenBackName, {}},
    {"BorderForm", "List1", key::bordersName, {}},
    {"BorderForm", "Pic", key::previewName, {}},
    {"BorderForm", "HScroll1", key::holePlaceName, {}},
    {"ClipartForm", "Combo1", {}, "Label4"},
    {"ClipartForm", "Pic", key::clipartsName, {}},
    {"ClipartForm", "BigPic", key::previewName, {}},
    {"ClipartForm", "VScroll2", key::clipartSizeName, {}},
    {"ClipartForm", "HorKnop", key::mirrorName, {}},
    {"DialogForm", "Drive1", key::drivesName, {}},
    {"DialogForm", "Dir1", key::foldersName, {}},
    {"DialogForm", "List1", key::picturesName, {}},
    {"DialogForm", "Pic", key::previewName, {}},
    {"DialogForm", "HScroll1", key::scrollAcrossName, {}},
    {"DialogForm", "VScroll1", key::scrollDownName, {}},
    {"OpenFile", "List1", key::designsName, {}},
    {"OpenFile", "Image1", key::previewName, {}},
    {"SaveForm", "Text1", {}, "Label2"},
    {"SaveForm", "Bar", key::progressName, {}},
    {"Afdrukken", "Picture1", key::previewName, {}},
    {"Afdrukken", "Combo1", {}, "Label5"},
    {"Afdrukken", "Combo2", {}, "Label1"},
    {"TekstForm", "Text1", key::infoTextName, {}},
    {"TekstForm", "Image1", key::decorationName, {}},
    {"CollectionForm", "List1", key::tagNumbersName, {}},
    {"CollectionForm", "Text1", {}, "Label2"},
    {"CollectionForm", "Text4", key::helpName, {}},
    {"CollectionForm", "Image1", key::tagPictureName, {}},
};

std::string CaptionOf(const Form& form, std::string_view label, int index) {
    const auto* found = dynamic_cast<const Label*>(form.Find(label, index));
    return found ? std::string(TrimBlanks(found->Caption)) : std::string();
}

}  // namespace

std::span<const NamedControl> NamedControls() {
    return names;
}

std::string AccessibleNames::NameOf(const Control& control) const {
    const Form& form = control.OwnerForm();
    const auto* row = std::find_if(std::begin(names), std::end(names), [&](const NamedControl& each) {
        return each.form == form.Name() && each.control == control.Name() &&
               (each.index == noIndex || each.index == control.Index());
    });
    if (row == std::end(names)) return {};
    if (row->key.empty()) return CaptionOf(form, row->label, control.Index());
    std::string name = InfoText(context_, row->key);
    if (row->numbered && !name.empty()) name += " " + std::to_string(control.Index() + 1);
    return name;
}

std::uint64_t AccessibleNames::Revision() const {
    return context_.main.InfoList.Rows().Revision();
}

}  // namespace coinlet
