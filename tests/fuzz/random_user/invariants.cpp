#include "fuzz/random_user/invariants.h"

#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
#include "controls/vista_button.h"
#include "core/main_form.h"
#include "player/names.h"
#include "player/pictures.h"

#include <map>

namespace coinlet::test {

namespace {

std::string FaultOfRange(const std::string& what, int value, int lowest, int highest) {
    if (value >= lowest && value <= highest) return "";
    return what + " is " + std::to_string(value) + ", outside " + std::to_string(lowest) + " to " +
           std::to_string(highest);
}

std::string FaultOfScrollBar(const Element& element) {
    const auto* const bar = dynamic_cast<const ScrollBar*>(&element);
    return bar ? FaultOfRange("Value", bar->Value(), bar->Lowest(), bar->Highest()) : "";
}

template <class List>
std::string FaultOfRows(const Element& element) {
    const auto* const list = dynamic_cast<const List*>(&element);
    return list ? FaultOfRange("ListIndex", list->ListIndex(), -1, list->ListCount() - 1) : "";
}

std::string FaultOfFocus(const Element& element) {
    const auto* const control = dynamic_cast<const Control*>(&element);
    if (!control || !control->HasFocus()) return "";
    if (!control->OwnerForm().Loaded()) return "it has the focus on a form that isn't loaded";
    return control->CanFocus() ? "" : "it has the focus and can't have it";
}

bool IsOpaque(const Image& image) {
    if (image.Empty()) return true;
    Pixel all = spareByte;
    for (const Pixel pixel : image.Shared()->Pixels())
        all &= pixel;
    return all == spareByte;
}

/// What is wrong with a control, its pixels aside.
std::string FaultOfState(const Control& control) {
    if (std::string fault = FaultOfFocus(control); !fault.empty()) return fault;
    switch (control.Kind()) {
        case ControlKind::ScrollBar:
            return FaultOfScrollBar(control);
        case ControlKind::ListBox:
            return FaultOfRows<ListBox>(control);
        case ControlKind::ComboBox:
            return FaultOfRows<ComboBox>(control);
        default:
            return "";
    }
}

std::string FaultOfOptions(const Form& form) {
    std::map<const Container*, const OptionButton*> chosen;
    for (const Element* const element : form.Elements()) {
        const auto* const option = dynamic_cast<const OptionButton*>(element);
        if (!option || !option->Value()) continue;
        const auto [first, isFirst] = chosen.emplace(&option->Parent(), option);
        if (!isFirst)
            return player::FullNameOf(*option) + " is chosen beside " + player::FullNameOf(*first->second);
    }
    return "";
}

std::string FaultOfCanvas(const MainForm& main) {
    const Surface& canvas = main.Pic.surface;
    if (canvas.PixelWidth() == canvasSide && canvas.PixelHeight() == canvasSide) return "";
    return "the canvas has " + std::to_string(canvas.PixelWidth()) + " by " +
           std::to_string(canvas.PixelHeight()) + " pixels";
}

}  // namespace

std::string FaultFinder::FaultOfPixels(const Element& element, ControlKind kind) {
    std::uint64_t state = 0;
    const auto* const box =
        kind == ControlKind::PictureBox ? dynamic_cast<const PictureBox*>(&element) : nullptr;
    if (box) state = box->surface.Revision();
    if (const auto* const button =
            kind == ControlKind::Button ? dynamic_cast<const VistaButton*>(&element) : nullptr)
        state = button->LookRevision();
    if (const auto known = sound_.find(&element); known != sound_.end() && known->second == state) return "";
    const auto picture = player::PictureOf(element);
    if (picture && !IsOpaque(*picture)) return "a spare byte of its pixels isn't 255";
    if (box && !IsOpaque(box->surface.Picture())) return "a spare byte of its stored picture isn't 255";
    sound_[&element] = state;
    return "";
}

std::string FaultFinder::FaultOfForm(const Form& form) {
    for (const Element* const element : form.Elements()) {
        const auto* const control = dynamic_cast<const Control*>(element);
        std::string fault = control ? FaultOfState(*control) : "";
        if (fault.empty()) fault = FaultOfPixels(*element, control ? control->Kind() : ControlKind::Label);
        if (!fault.empty()) return player::FullNameOf(*element) + ": " + fault;
    }
    return FaultOfOptions(form);
}

std::string FaultFinder::Find(const Platform& platform) {
    // A form that was opened since may lie where another one lay.
    if (forms_ != platform.Forms()) {
        forms_ = platform.Forms();
        sound_.clear();
    }
    for (const Form* const form : forms_) {
        if (std::string fault = FaultOfForm(*form); !fault.empty()) return fault;
        if (const auto* const main = dynamic_cast<const MainForm*>(form))
            if (std::string fault = FaultOfCanvas(*main); !fault.empty()) return fault;
    }
    return "";
}

/// The pictures that are in stock never change.
std::string FaultOfStock(player::Life& life) {
    const Form* const stock = life.program->HiddenForm("Plaatjes");
    if (!stock) return "";
    for (const Element* const element : stock->Elements()) {
        const auto picture = player::PictureOf(*element);
        if (picture && !IsOpaque(*picture))
            return player::FullNameOf(*element) + ": a spare byte of its pixels isn't 255";
    }
    return "";
}

}  // namespace coinlet::test
