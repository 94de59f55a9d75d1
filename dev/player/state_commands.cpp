// What a script reads, sets and raises directly, whatever a user could get at.

#include "controls/combo_box.h"
#include "controls/file_boxes.h"
#include "controls/timer.h"
#include "controls/vista_button.h"
#include "player/commands.h"
#include "player/failure.h"
#include "player/lookup.h"
#include "player/script_run.h"
#include "player/values.h"

#include <ostream>

namespace coinlet::player {

namespace {

// --- Setting ----------------------------------------------------------------------------------------------

/// As the user picks it; a list that he can't reach is assigned the row.
template <class List>
void ChooseRow(List& list, int row) {
    if (list.Reachable()) {
        list.UserPicks(row);
    } else {
        list.SetListIndex(row);
    }
}

/// Chooses the row with that text. False if the text isn't a row's but the whole box's to take.
bool ChooseByText(Element* element, const std::string& text) {
    if (auto* const list = dynamic_cast<ListBox*>(element)) {
        const int row = list->Rows().Find(text);
        if (row < 0) Fail("expected a row " + Quoted(text) + ", found none in the list");
        ChooseRow(*list, row);
        return true;
    }
    auto* const combo = dynamic_cast<ComboBox*>(element);
    const int row = combo ? combo->Rows().Find(text) : -1;
    if (row >= 0) ChooseRow(*combo, row);
    return row >= 0;
}

bool IsFolder(const PropertyTarget& target) {
    return target.property.name == "Path" && (dynamic_cast<const DirListBox*>(target.element) ||
                                              dynamic_cast<const FileListBox*>(target.element));
}

void Set(ScriptRun& run, const Arguments& arguments) {
    const Address address = arguments.Address(0);
    const PropertyTarget target = FindProperty(run.TheWorld(), run.LifeIfStarted(), address);
    std::string text = arguments.Text(1);
    if (target.property.name == "Text" && ChooseByText(target.element, text)) return;
    if (!target.property.set) Fail(address.text + " can only be read");
    if (IsFolder(target)) text = run.ThePlaces().Resolve(text).string();
    target.property.set(ReadValue(target.property.kind, text));
}

// --- Reading ----------------------------------------------------------------------------------------------

void Expect(ScriptRun& run, const Arguments& arguments) {
    const Address address = arguments.Address(0);
    const Property property = FindProperty(run.TheWorld(), run.LifeIfStarted(), address).property;
    const PropertyValue found = property.get();
    const std::string text = arguments.Text(1);
    if (const std::string* const foundText = std::get_if<std::string>(&found)) {
        const std::string shown = run.ThePlaces().Shown(*foundText);
        if (shown != run.ThePlaces().ShownExpected(text))
            Fail("expected " + address.text + " " + Quoted(text) + ", found " + Quoted(shown));
    } else if (!SameValue(found, ReadValue(property.kind, text))) {
        Fail("expected " + address.text + " " + text + ", found " + ShowValue(property.kind, found));
    }
}

/// `ADDR.PROPERTY = value`; line ends are written as escapes, so that a value stays on its line.
void PrintValue(std::ostream& out, const std::string& address, const std::string& value) {
    out << address << " = ";
    for (const char letter : value) {
        if (letter == '\r') {
            out << "\\r";
        } else if (letter == '\n') {
            out << "\\n";
        } else {
            out << letter;
        }
    }
    out << '\n';
}

void Print(ScriptRun& run, const Arguments& arguments) {
    for (std::size_t i = 0; i < arguments.Count(); ++i) {
        const Address address = arguments.Address(i);
        const Property property = FindProperty(run.TheWorld(), run.LifeIfStarted(), address).property;
        PrintValue(run.Out(), address.text, run.ThePlaces().Shown(ShowValue(property.kind, property.get())));
    }
}

void Dump(ScriptRun& run, const Arguments& arguments) {
    const Address address = arguments.Address(0);
    for (const auto& [name, value] : AllProperties(run.TheWorld(), run.TheLife(), address))
        PrintValue(run.Out(), address.text + "." + name, value);
}

// --- Events -----------------------------------------------------------------------------------------------

void Raise(ScriptRun& run, const Arguments& arguments) {
    const NamedEvent event = FindEvent(run.TheLife(), arguments.Address(0));
    std::vector<double> values;
    for (std::size_t i = 1; i < arguments.Count(); ++i)
        values.push_back(arguments.Number(i));
    if (values.size() > static_cast<std::size_t>(event.arguments)) {
        Fail("expected at most " + std::to_string(event.arguments) + " arguments of " + arguments.Text(0) +
             ", found " + std::to_string(values.size()));
    }
    event.raise(values);
}

void Tick(ScriptRun& run, const Arguments& arguments) {
    const Address address = arguments.Address(0);
    Element& element = FindElement(run.TheLife(), address);
    if (const auto* const button = dynamic_cast<const VistaButton*>(&element)) {
        if (Timer* const hover = button->HoverTimer()) hover->Tick();
        return;
    }
    if (const auto* const list = dynamic_cast<const ListBox*>(&element)) {
        if (Timer* const typing = list->TypingTimer()) typing->Tick();
        return;
    }
    auto* const timer = dynamic_cast<Timer*>(&element);
    if (!timer) Fail(address.text + " is no timer and has none");
    if (timer->Enabled && timer->Interval > 0) timer->Tick();
}

// --- The course of the program ----------------------------------------------------------------------------

void Interrupt(ScriptRun& run, const Arguments& arguments) {
    const int count = arguments.Whole(0);
    if (count < 1) Fail("expected a count from 1 on, found " + std::to_string(count));
    run.Interrupt(count, ParseCall(arguments.From(1)));
}

void Try(ScriptRun& run, const Arguments& arguments) {
    try {
        run.Perform(ParseCall(arguments.From(0)));
    } catch (const Refusal&) {  // then nothing was done, which is what the script allows
    }
}

void Restart(ScriptRun& run, const Arguments&) {
    run.Restart();
}

constexpr Command commands[] = {
    {"set", "ADDR.PROPERTY VALUE", Needs::RunningProgram, Set},
    {"expect", "ADDR.PROPERTY VALUE", Needs::RunningProgram, Expect},
    {"print", "ADDR.PROPERTY...", Needs::RunningProgram, Print},
    {"dump", "ADDR", Needs::RunningProgram, Dump},
    {"raise", "ADDR.EVENT [ARG...]", Needs::RunningProgram, Raise},
    {"tick", "ADDR", Needs::RunningProgram, Tick},
    {"interrupt", "N COMMAND...", Needs::RunningProgram, Interrupt},
    {"try", "COMMAND...", Needs::RunningProgram, Try},
    {"restart", "", Needs::StartedProgram, Restart},
};

}  // namespace

std::span<const Command> StateCommands() {
    return commands;
}

}  // namespace coinlet::player
