// What a user can do to the form in front.

#include "app/dialogs.h"
#include "controls/combo_box.h"
#include "controls/file_boxes.h"
#include "controls/list_box.h"
#include "controls/menu.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "controls/timer.h"
#include "controls/vista_button.h"
#include "core/main_form.h"
#include "fuzz/random_user/chance.h"
#include "fuzz/random_user/extremes.h"
#include "player/names.h"

#include <algorithm>
#include <vector>

namespace coinlet::test {

namespace {

using player::FullNameOf;

/// The reachable controls of one type, or those that also satisfy a condition.
template <class T, class Condition>
std::vector<T*> Reachable(const Chance& chance, Condition condition) {
    std::vector<T*> found;
    for (Element* const element : chance.Front().Elements()) {
        auto* const control = dynamic_cast<T*>(element);
        if (control && chance.Reaches(*control) && condition(*control)) found.push_back(control);
    }
    return found;
}
template <class T>
std::vector<T*> Reachable(const Chance& chance) {
    return Reachable<T>(chance, [](const T&) { return true; });
}

/// A pick of the list, or nullptr from an empty one.
template <class T>
T* PickOf(const Chance& chance, const std::vector<T*>& list) {
    return list.empty() ? nullptr : chance.dice.Pick(list);
}

/// There is a place in it; assignments make controls of any size.
bool HasPixels(const Control& control) {
    constexpr int large = 1 << 20;
    return control.PixelWidth() > 0 && control.PixelHeight() > 0 && control.PixelWidth() < large &&
           control.PixelHeight() < large;
}

/// A place in the control, in the units of its pointer events, that is inside by a hair at its ends.
std::string PlaceIn(const Chance& chance, const Control& control) {
    const int unit = static_cast<int>(control.PointerUnitsPerPixel());
    const int right = (control.PixelWidth() - 1) * unit, bottom = (control.PixelHeight() - 1) * unit;
    Dice& dice = chance.dice;
    const int x = dice.OneIn(8) ? (dice.OneIn(2) ? 0 : right) : dice.Between(0, right);
    const int y = dice.OneIn(8) ? (dice.OneIn(2) ? 0 : bottom) : dice.Between(0, bottom);
    return " " + std::to_string(x) + " " + std::to_string(y);
}

/// A place near the control, or anywhere.
std::string PlaceAbout(const Chance& chance, const Control& control) {
    constexpr int about = 60;
    Dice& dice = chance.dice;
    if (dice.OneIn(2)) return PlaceIn(chance, control);
    if (dice.OneIn(4)) return " " + AnyNumber(dice) + " " + AnyNumber(dice);
    return " " + std::to_string(dice.Between(-about, control.PixelWidth() + about)) + " " +
           std::to_string(dice.Between(-about, control.PixelHeight() + about));
}

/// The pictures are where gestures mean most.
Control* PointerTarget(const Chance& chance) {
    if (chance.dice.OneIn(3)) return PickOf(chance, Reachable<Control>(chance, HasPixels));
    const auto pictures = Reachable<Control>(chance, [](const Control& control) {
        return control.Kind() == ControlKind::PictureBox && HasPixels(control);
    });
    return PickOf(chance, pictures);
}

std::string AnyButton(Dice& dice) {
    return dice.OneIn(4) ? " 2" : " 1";
}

std::string Click(const Chance& chance) {
    const Control* const control = PickOf(chance, Reachable<Control>(chance));
    return control ? "click " + FullNameOf(*control) : "";
}

std::string ClickButton(const Chance& chance) {
    const Control* const button = PickOf(chance, Reachable<VistaButton>(chance));
    return button ? "click " + FullNameOf(*button) : "";
}

bool IsChoice(const MenuItem& entry) {
    return entry.CanBeChosen() && entry.Entries().empty();
}

std::string ChooseEntry(const Chance& chance) {
    std::vector<MenuItem*> entries;
    for (Element* const element : chance.Front().Elements()) {
        auto* const entry = dynamic_cast<MenuItem*>(element);
        if (entry && IsChoice(*entry)) entries.push_back(entry);
    }
    const MenuItem* const entry = PickOf(chance, entries);
    return entry ? "click " + FullNameOf(*entry) : "";
}

/// What a user does for a dialog, if he can do it now.
class Opening {
public:
    explicit Opening(const MainForm& main) : main_(main) {}
    std::string operator()(MenuItem MainForm::*member) const {
        const MenuItem& entry = main_.*member;
        return entry.CanBeChosen() ? "click " + FullNameOf(entry) : "";
    }
    std::string operator()(ToolButton button) const { return Clicked(main_.Knop[button.number]); }
    std::string operator()(FillColourField) const { return Clicked(main_.ColorLabel); }

private:
    static std::string Clicked(const Control& control) {
        return control.Shown() && control.Reachable() ? "click " + FullNameOf(control) : "";
    }
    const MainForm& main_;
};

std::string OpenFavourite(const Chance& chance) {
    const auto* const main = dynamic_cast<const MainForm*>(&chance.Front());
    if (!main || chance.favourites.empty()) return "";
    const std::string& favourite = chance.dice.Pick(chance.favourites);
    const auto row = std::ranges::find(Dialogs(), favourite, &DialogRow::form);
    return row == Dialogs().end() ? "" : std::visit(Opening(*main), row->opener);
}

std::string PressOn(const Chance& chance, const Control& control) {
    chance.pressed = FullNameOf(control);
    return "press " + chance.pressed + AnyButton(chance.dice) + PlaceIn(chance, control);
}

std::string Press(const Chance& chance) {
    const Control* const control = PointerTarget(chance);
    return control ? PressOn(chance, *control) : "";
}

/// Moves and releases after a press; the pointer may leave the control meanwhile, and its form may have gone.
std::string GoOn(const Chance& chance) {
    const auto pressed = Reachable<Control>(
        chance, [&](const Control& control) { return FullNameOf(control) == chance.pressed; });
    if (pressed.empty() || !HasPixels(*pressed.front())) return "";
    const bool isEnd = chance.dice.OneIn(4);
    if (isEnd) chance.pressed.clear();
    return (isEnd ? "release " : "move ") + FullNameOf(*pressed.front()) + AnyButton(chance.dice) +
           PlaceAbout(chance, *pressed.front());
}

/// Without a press before it.
std::string Hover(const Chance& chance) {
    const Control* const control = PointerTarget(chance);
    if (!control) return "";
    const std::string command = chance.dice.OneIn(8) ? "release " : "move ";
    const std::string button = chance.dice.OneIn(4) ? AnyButton(chance.dice) : " 0";
    return command + FullNameOf(*control) + button + PlaceIn(chance, *control);
}

std::string Drag(const Chance& chance) {
    const Control* const control = PointerTarget(chance);
    if (!control) return "";
    return "drag " + FullNameOf(*control) + PlaceIn(chance, *control) + PlaceAbout(chance, *control);
}

std::string PutPointer(const Chance& chance) {
    if (chance.dice.OneIn(4)) return "pointer away";
    const Control* const control = PickOf(chance, Reachable<Control>(chance, HasPixels));
    return control ? "pointer " + FullNameOf(*control) + PlaceAbout(chance, *control) : "";
}

std::string Key(const Chance& chance) {
    constexpr int keys[] = {0, 8, 9, 13, 27, 32, 33, 34, 35, 36, 37, 38, 39, 40, 46, 48, 65, 90, 112, 255};
    constexpr const char* commands[] = {"key ", "key ", "keydown ", "keyup "};
    const Control* const control = PickOf(chance, Reachable<Control>(chance));
    const bool toForm = !control || chance.dice.OneIn(3);
    const std::string address = toForm ? std::string(chance.Front().Name()) : FullNameOf(*control);
    const std::string code =
        chance.dice.OneIn(16) ? AnyWhole(chance.dice) : std::to_string(chance.dice.Pick(keys));
    constexpr const char* modifiers[] = {" shift", " ctrl", " ctrl+shift", " alt"};
    const std::string held = chance.dice.OneIn(4) ? chance.dice.Pick(modifiers) : "";
    return chance.dice.Pick(commands) + address + " " + code + held;
}

/// The pictures that the user has put in place, and what is none.
constexpr const char* offeredFiles[] = {"Images/bitmap.bmp", "Images/cut.bmp", "Images/small.gif",
                                        "Data/About.inf",    "Images",         "missing.png"};

std::string DropFiles(const Chance& chance) {
    std::string line = "drop Main";
    for (std::size_t i = 0; i <= chance.dice.Below(3); ++i)
        line += std::string(" ") + chance.dice.Pick(offeredFiles);
    return line;
}

std::string FillClipboard(const Chance& chance) {
    if (chance.dice.OneIn(2)) return std::string("clipboard-path ") + chance.dice.Pick(offeredFiles);
    return chance.dice.OneIn(2) ? "clipboard @out/Pictures/bitmap.bmp" : "clipboard @out/Pictures/cut.bmp";
}

std::string PasteFromClipboard(const Chance& chance) {
    return "key " + std::string(chance.Front().Name()) + " 86 ctrl";
}

std::string TypeInto(const Chance& chance, const Control& field) {
    return "type " + FullNameOf(field) + " " + AnyText(chance.dice);
}

std::string Type(const Chance& chance) {
    const Control* const field =
        PickOf(chance, Reachable<Control>(chance, [](const Control& control) {
                   return control.Kind() == ControlKind::TextBox || control.Kind() == ControlKind::ComboBox;
               }));
    return field ? TypeInto(chance, *field) : "";
}

/// The number of rows of a list; 0 of what is none.
int RowsOf(const Control& control) {
    if (const auto* const list = dynamic_cast<const ListBox*>(&control)) return list->ListCount();
    const auto* const combo = dynamic_cast<const ComboBox*>(&control);
    return combo ? combo->ListCount() : 0;
}

std::string PickRowOf(const Chance& chance, const Control& list) {
    const int rows = RowsOf(list);
    return rows == 0 ? ""
                     : "pick " + FullNameOf(list) + " " + std::to_string(chance.dice.Between(0, rows - 1));
}

std::string PickRow(const Chance& chance) {
    const Control* const list = PickOf(
        chance, Reachable<Control>(chance, [](const Control& control) { return RowsOf(control) > 0; }));
    return list ? PickRowOf(chance, *list) : "";
}

/// Without it lists of the files of a folder stay empty.
std::string EnterFolder(const Chance& chance) {
    const Control* const list = PickOf(chance, Reachable<DirListBox>(chance));
    return list ? "key " + FullNameOf(*list) + " 13" : "";
}

std::string SlideBar(const Chance& chance, const Control& bar) {
    std::string line = "slide " + FullNameOf(bar);
    for (std::size_t i = 0; i <= chance.dice.Below(3); ++i)
        line += " " + AnyWhole(chance.dice);
    return line;
}

std::string Slide(const Chance& chance) {
    const auto* const bar = PickOf(chance, Reachable<ScrollBar>(chance));
    return bar ? SlideBar(chance, *bar) : "";
}

/// Uses the control for what it is there for; empty if that can't be done now.
std::string Use(const Chance& chance, const Control& control) {
    switch (control.Kind()) {
        case ControlKind::ScrollBar:
            return SlideBar(chance, control);
        case ControlKind::TextBox:
            return TypeInto(chance, control);
        case ControlKind::ListBox:
        case ControlKind::ComboBox:
            return PickRowOf(chance, control);
        case ControlKind::PictureBox:
            return HasPixels(control) ? PressOn(chance, control) : "";
        default:
            return "click " + FullNameOf(control);
    }
}

/// Uses it; empty if that can't be done now, as of a list without rows.
std::string UseIfReached(const Chance& chance, const Element& element) {
    if (const auto* const control = dynamic_cast<const Control*>(&element))
        return chance.Reaches(*control) ? Use(chance, *control) : "";
    const auto* const entry = dynamic_cast<const MenuItem*>(&element);
    return entry && IsChoice(*entry) ? "click " + FullNameOf(*entry) : "";
}

/// What was used least of all that can be used now.
std::string UseTheRarest(const Chance& chance) {
    std::vector<std::string> rarest;
    std::size_t fewest = 0;
    for (const Element* const element : chance.Front().Elements()) {
        const std::size_t uses = chance.reach.Uses(FullNameOf(*element));
        if (!rarest.empty() && uses > fewest) continue;
        std::string line = UseIfReached(chance, *element);
        if (line.empty()) continue;
        if (uses < fewest) rarest.clear();
        fewest = uses;
        rarest.push_back(std::move(line));
    }
    return rarest.empty() ? "" : chance.dice.Pick(rarest);
}

/// What a dialog is opened for: a row of its list is chosen, and then the button pressed that says yes.
std::string Finish(const Chance& chance) {
    const auto unchosen = Reachable<ListBox>(
        chance, [](const ListBox& list) { return list.ListCount() > 0 && list.ListIndex() < 0; });
    if (!unchosen.empty()) return PickRowOf(chance, *unchosen.front());
    const Form& front = chance.Front();
    const auto buttons = Reachable<VistaButton>(chance, [&](const VistaButton& button) {
        return &button == front.DefaultButton || button.Name() == "OkKnop";
    });
    return buttons.empty() ? "" : "click " + FullNameOf(*buttons.front());
}

std::string Focus(const Chance& chance) {
    const Control* const control =
        PickOf(chance, Reachable<Control>(chance, [](const Control& one) { return one.CanFocus(); }));
    return control ? "focus " + FullNameOf(*control) : "";
}

std::string Tick(const Chance& chance) {
    std::vector<Element*> ticking;
    for (Element* const element : chance.Front().Elements()) {
        const auto* const timer = dynamic_cast<Timer*>(element);
        const auto* const button = dynamic_cast<VistaButton*>(element);
        // A button's own timer has no address; it is ticked by the button's.
        if ((timer && !timer->Owner() && timer->Enabled && timer->Interval > 0) ||
            (button && button->HoverTimer()))
            ticking.push_back(element);
    }
    const Element* const element = PickOf(chance, ticking);
    return element ? "tick " + FullNameOf(*element) : "";
}

std::string Close(const Chance& chance) {
    return "close " + std::string(chance.Front().Name());
}

constexpr WeightedMaker makers[] = {
    {20, GoOn},          {12, ClickButton},  {10, ChooseEntry}, {8, Press},         {8, Drag},
    {6, Hover},          {5, Key},           {4, Click},        {4, Slide},         {4, PickRow},
    {4, EnterFolder},    {3, Type},          {3, Tick},         {2, PutPointer},    {2, Focus},
    {4, Finish},         {1, Close},         {2, DropFiles},    {1, FillClipboard}, {2, PasteFromClipboard},
    {60, OpenFavourite}, {20, UseTheRarest},
};

}  // namespace

std::span<const WeightedMaker> UserLines() {
    return makers;
}

}  // namespace coinlet::test
