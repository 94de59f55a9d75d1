#include "fuzz/random_user/invariants.h"

#include "controls/check_box.h"
#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/picture_box.h"
#include "controls/scroll_bar.h"
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

std::string FaultOfPixels(const Element& element) {
    const auto picture = player::PictureOf(element);
    if (picture && !IsOpaque(*picture)) return "a spare byte of its pixels isn't 255";
    const auto* const box = dynamic_cast<const PictureBox*>(&element);
    if (box && !IsOpaque(box->surface.Picture())) return "a spare byte of its stored picture isn't 255";
    return "";
}

constexpr std::string (*elementFaults[])(const Element&) = {
    FaultOfScrollBar, FaultOfRows<ListBox>, FaultOfRows<ComboBox>, FaultOfFocus, FaultOfPixels};

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

std::string FaultOfForm(const Form& form) {
    for (const Element* const element : form.Elements()) {
        for (const auto faultOf : elementFaults) {
            if (const std::string fault = faultOf(*element); !fault.empty())
                return player::FullNameOf(*element) + ": " + fault;
        }
    }
    return FaultOfOptions(form);
}

std::string FaultOfCanvas(const MainForm& main) {
    const Surface& canvas = main.Pic.surface;
    if (canvas.PixelWidth() == canvasSide && canvas.PixelHeight() == canvasSide) return "";
    return "the canvas has " + std::to_string(canvas.PixelWidth()) + " by " +
           std::to_string(canvas.PixelHeight()) + " pixels";
}

}  // namespace

std::string FindFault(player::Life& life) {
    for (const Form* const form : life.platform.Forms()) {
        if (std::string fault = FaultOfForm(*form); !fault.empty()) return fault;
        if (const auto* const main = dynamic_cast<const MainForm*>(form))
            if (std::string fault = FaultOfCanvas(*main); !fault.empty()) return fault;
    }
    const Form* const stock = life.program->HiddenForm("Plaatjes");
    return stock ? FaultOfForm(*stock) : "";
}

}  // namespace coinlet::test
