// What a user does with pointer and keys. All of it fails on what a user couldn't get at.

#include "base/text.h"
#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/menu.h"
#include "controls/menu_letters.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "player/commands.h"
#include "player/failure.h"
#include "player/keys.h"
#include "player/lookup.h"
#include "player/names.h"
#include "player/reach.h"
#include "player/script_run.h"
#include "player/values.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>

namespace coinlet::player {

namespace {

constexpr int noShift = 0;

/// The keys that are held down meanwhile, joined by "+", as the word at that place; none if there is none.
int ReadModifiers(const Arguments& arguments, std::size_t place) {
    if (arguments.Count() <= place) return noShift;
    struct Modifier {
        std::string_view name;
        int state;
    };
    constexpr Modifier modifiers[] = {{"shift", shiftHeld}, {"ctrl", controlHeld}, {"alt", altHeld}};
    int state = noShift;
    std::istringstream names(arguments.Text(place));
    for (std::string name; std::getline(names, name, '+');) {
        const auto* const found = std::ranges::find(modifiers, name, &Modifier::name);
        if (found == std::end(modifiers)) Fail("expected shift, ctrl or alt, found " + Quoted(name));
        state |= found->state;
    }
    return state;
}

// --- Pointer ----------------------------------------------------------------------------------------------

Control& ReachControl(Life& life, const Address& address) {
    Control& control = FindControl(life, address);
    RequireReach(life, control);
    return control;
}

void Click(ScriptRun& run, const Arguments& arguments) {
    Life& life = run.TheLife();
    const Address address = arguments.Address(0);
    if (auto* const entry = dynamic_cast<MenuItem*>(&FindElement(life, address))) {
        RequireChoice(life, *entry);
        entry->Click();
        return;
    }
    Control& control = ReachControl(life, address);
    life.platform.pointer.PutInMiddleOf(control);
    // A button looks different under the pointer, and goes on watching it.
    if (control.Kind() == ControlKind::Button) {
        control.PointerMoved(noButton, noShift, static_cast<float>(life.platform.pointer.PixelX()),
                             static_cast<float>(life.platform.pointer.PixelY()));
    }
    control.PointerClicked();
}

int ReadButton(const Arguments& arguments) {
    const int button = arguments.Whole(1);
    constexpr std::array buttons{noButton, leftButton, rightButton, middleButton};
    if (std::ranges::find(buttons, button) == buttons.end())
        Fail("expected button 0 (none), 1 (left), 2 (right) or 4 (middle), found " + std::to_string(button));
    return button;
}

/// A step of a gesture: the control, and the place to which the pointer is put.
struct PointerStep {
    Control& control;
    int button, shift;
    float x, y;
};

/// Reads "ADDR BUTTON X Y [MODIFIERS]". The place may lie outside the control: windows hand on the moves and
/// the release of a drag from wherever it got to, and scripts set in where a drag begins elsewhere.
PointerStep ReadPointerStep(ScriptRun& run, const Arguments& arguments) {
    Life& life = run.TheLife();
    Control& control = ReachControl(life, arguments.Address(0));
    const double x = arguments.Number(2), y = arguments.Number(3);
    const int button = ReadButton(arguments);
    life.platform.pointer.PutOn(control, x, y);
    constexpr std::size_t modifiersPlace = 4;
    return {control, button, ReadModifiers(arguments, modifiersPlace), static_cast<float>(x),
            static_cast<float>(y)};
}

void Press(ScriptRun& run, const Arguments& arguments) {
    const PointerStep step = ReadPointerStep(run, arguments);
    step.control.PointerPressed(step.button, step.shift, step.x, step.y);
}

void Move(ScriptRun& run, const Arguments& arguments) {
    const PointerStep step = ReadPointerStep(run, arguments);
    step.control.PointerMoved(step.button, step.shift, step.x, step.y);
}

void Release(ScriptRun& run, const Arguments& arguments) {
    const PointerStep step = ReadPointerStep(run, arguments);
    step.control.PointerReleased(step.button, step.shift, step.x, step.y);
}

void Drag(ScriptRun& run, const Arguments& arguments) {
    Life& life = run.TheLife();
    Control& control = ReachControl(life, arguments.Address(0));
    const double x1 = arguments.Number(1), y1 = arguments.Number(2);
    const double x2 = arguments.Number(3), y2 = arguments.Number(4);
    constexpr std::size_t modifiersPlace = 5;
    const int shift = ReadModifiers(arguments, modifiersPlace);
    const auto endX = static_cast<float>(x2), endY = static_cast<float>(y2);
    life.platform.pointer.PutOn(control, x1, y1);
    control.PointerPressed(leftButton, shift, static_cast<float>(x1), static_cast<float>(y1));
    life.platform.pointer.PutOn(control, x2, y2);
    control.PointerMoved(leftButton, shift, endX, endY);
    control.PointerReleased(leftButton, shift, endX, endY);
}

void PutPointer(ScriptRun& run, const Arguments& arguments) {
    Life& life = run.TheLife();
    if (arguments.Text(0) == "away") {
        if (arguments.Count() != 1) Fail("pointer away takes no place");
        life.platform.pointer.PutAway();
        return;
    }
    if (arguments.Count() != 3) Fail("pointer takes ADDR X Y, or away");
    const Control& control = FindControl(life, arguments.Address(0));
    life.platform.pointer.PutOn(control, arguments.Number(1), arguments.Number(2));
}

// --- Keys -------------------------------------------------------------------------------------------------

/// Whom a key goes to: a control, or the form's control with the focus.
struct KeyTarget {
    Form& form;
    Control* control;
    int code, shift;

    /// What a key did may have closed the form; the rest of the keystroke is lost then.
    bool IsThere(const Life& life) const { return life.platform.FrontForm() == &form; }
};

KeyTarget ReadKeyTarget(Life& life, const Arguments& arguments) {
    const Address address = arguments.Address(0);
    const int code = arguments.Whole(1), shift = ReadModifiers(arguments, 2);
    const Target target = FindTarget(life, address);
    RequireFront(life, *target.form);
    if (!target.element) return {*target.form, nullptr, code, shift};
    return {*target.form, &ReachControl(life, address), code, shift};
}

void SendKeyDown(const Life& life, const KeyTarget& key) {
    constexpr int tab = 9;
    if (key.code == tab) return key.form.MoveFocusByTab((key.shift & shiftHeld) != 0);
    key.form.KeyDown(key.control, key.code, key.shift);
    // With Ctrl or Alt a key is a command, and no letter.
    const bool types = (key.shift & (controlHeld | altHeld)) == 0;
    const auto character = types ? CharacterOfKey(key.code) : std::nullopt;
    if (character && key.IsThere(life)) key.form.KeyTyped(key.control, *character);
}

void KeyDown(ScriptRun& run, const Arguments& arguments) {
    Life& life = run.TheLife();
    SendKeyDown(life, ReadKeyTarget(life, arguments));
}

void KeyUp(ScriptRun& run, const Arguments& arguments) {
    const KeyTarget key = ReadKeyTarget(run.TheLife(), arguments);
    key.form.KeyUp(key.control, key.code, key.shift);
}

void Key(ScriptRun& run, const Arguments& arguments) {
    Life& life = run.TheLife();
    const KeyTarget key = ReadKeyTarget(life, arguments);
    SendKeyDown(life, key);
    if (key.IsThere(life)) key.form.KeyUp(key.control, key.code, key.shift);
}

/// Types each character of a text into a box, which has the focus meanwhile.
template <class Box>
void TypeInto(Box& box, const std::string& text) {
    box.SetFocus();
    for (const std::string& character : Characters(text)) {
        box.OwnerForm().KeyTyped(&box, CodeOfCharacter(character));
        box.UserTypes(character);
    }
}

void Type(ScriptRun& run, const Arguments& arguments) {
    Control& control = ReachControl(run.TheLife(), arguments.Address(0));
    const std::string text = arguments.Text(1);
    if (auto* const box = dynamic_cast<TextBox*>(&control)) {
        TypeInto(*box, text);
    } else if (auto* const combo = dynamic_cast<ComboBox*>(&control)) {
        TypeInto(*combo, text);
    } else if (auto* const list = dynamic_cast<ListBox*>(&control)) {
        list->SetFocus();
        for (const std::string& character : Characters(text))
            list->OwnerForm().KeyTyped(list, CodeOfCharacter(character));
    } else {
        Fail(arguments.Text(0) + " takes no text");
    }
}

void Focus(ScriptRun& run, const Arguments& arguments) {
    Control& control = ReachControl(run.TheLife(), arguments.Address(0));
    if (!control.CanFocus()) Refuse(arguments.Text(0) + " takes no focus");
    control.SetFocus();
}

// --- Menus by keyboard -----------------------------------------------------------------------------------

/// The titles of the menu bar of the form in front.
std::vector<MenuItem*> MenuBar(const Life& life) {
    std::vector<MenuItem*> bar;
    if (const Form* const front = life.platform.FrontForm())
        std::ranges::copy_if(front->Menus(), std::back_inserter(bar), &MenuItem::Visible);
    return bar;
}

/// Chooses by letters, the first of them in `open`, each further one in the menu that the one before it
/// opened.
void ChooseByLetters(const Life& life, std::vector<MenuItem*> open, const Arguments& letters) {
    MenuItem* entry = nullptr;
    for (std::size_t i = 0; i < letters.Count(); ++i) {
        if (entry && entry->Entries().empty()) Fail(FullNameOf(*entry) + " is no menu");
        entry = EntryOfLetter(open, letters.Text(i));
        if (!entry) Refuse("no entry has the letter " + Quoted(letters.Text(i)));
        if (!entry->Enabled) Refuse(FullNameOf(*entry) + " is disabled");
        open = entry->Entries();
    }
    RequireChoice(life, *entry);
    entry->Click();
}

void MenuKey(ScriptRun& run, const Arguments& arguments) {
    const Life& life = run.TheLife();
    ChooseByLetters(life, MenuBar(life), arguments);
}

void PopupKey(ScriptRun& run, const Arguments& arguments) {
    Life& life = run.TheLife();
    const MenuItem* const popup = life.platform.PopupMenuItem();
    if (!popup) Refuse("no menu has popped up");
    RequireFront(life, popup->OwnerForm());
    ChooseByLetters(life, popup->Entries(), arguments);
}

// --- Lists and windows ------------------------------------------------------------------------------------

template <class List>
void PickRow(List& list, int row) {
    if (!list.Rows().Contains(row))
        Refuse("expected a row below " + std::to_string(list.ListCount()) + ", found " + std::to_string(row));
    list.SetFocus();
    list.UserPicks(row);
}

void Pick(ScriptRun& run, const Arguments& arguments) {
    Control& control = ReachControl(run.TheLife(), arguments.Address(0));
    const int row = arguments.Whole(1);
    if (auto* const list = dynamic_cast<ListBox*>(&control)) {
        PickRow(*list, row);
    } else if (auto* const combo = dynamic_cast<ComboBox*>(&control)) {
        PickRow(*combo, row);
    } else {
        Fail(arguments.Text(0) + " has no rows");
    }
}

void Slide(ScriptRun& run, const Arguments& arguments) {
    auto* const bar = dynamic_cast<ScrollBar*>(&ReachControl(run.TheLife(), arguments.Address(0)));
    if (!bar) Fail(arguments.Text(0) + " is no scroll bar");
    std::vector<int> values;
    for (std::size_t i = 1; i < arguments.Count(); ++i)
        values.push_back(arguments.Whole(i));
    for (const int value : values)
        bar->UserDrags(value);
    bar->UserReleases();
}

void Close(ScriptRun& run, const Arguments& arguments) {
    Form& form = FindForm(run.TheLife(), arguments.Text(0));
    RequireFront(run.TheLife(), form);
    form.Unload();
}

constexpr Command commands[] = {
    {"click", "ADDR", Needs::RunningProgram, Click},
    {"press", "ADDR BUTTON X Y [MODIFIERS]", Needs::RunningProgram, Press},
    {"move", "ADDR BUTTON X Y [MODIFIERS]", Needs::RunningProgram, Move},
    {"release", "ADDR BUTTON X Y [MODIFIERS]", Needs::RunningProgram, Release},
    {"drag", "ADDR X1 Y1 X2 Y2 [MODIFIERS]", Needs::RunningProgram, Drag},
    {"pointer", "ADDR [X] [Y]", Needs::RunningProgram, PutPointer},
    {"key", "ADDR CODE [MODIFIERS]", Needs::RunningProgram, Key},
    {"keydown", "ADDR CODE [MODIFIERS]", Needs::RunningProgram, KeyDown},
    {"keyup", "ADDR CODE [MODIFIERS]", Needs::RunningProgram, KeyUp},
    {"type", "ADDR TEXT", Needs::RunningProgram, Type},
    {"focus", "ADDR", Needs::RunningProgram, Focus},
    {"menu-key", "LETTER...", Needs::RunningProgram, MenuKey},
    {"popup-key", "LETTER...", Needs::RunningProgram, PopupKey},
    {"pick", "ADDR ROW", Needs::RunningProgram, Pick},
    {"slide", "ADDR VALUE...", Needs::RunningProgram, Slide},
    {"close", "FORM", Needs::RunningProgram, Close},
};

}  // namespace

std::span<const Command> UserCommands() {
    return commands;
}

}  // namespace coinlet::player
