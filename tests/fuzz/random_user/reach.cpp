#include "fuzz/random_user/reach.h"

#include "base/files.h"
#include "controls/control.h"
#include "controls/menu.h"
#include "player/names.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <iomanip>
#include <span>
#include <sstream>
#include <utility>

namespace coinlet::test {

namespace {

namespace fs = std::filesystem;

/// The commands by which a user uses it for what it is there for; none for what no user ever handles.
std::vector<std::string_view> DeedsOn(const Element& element) {
    if (const auto* const entry = dynamic_cast<const MenuItem*>(&element)) {
        const bool isChoice = entry->Entries().empty() && !entry->IsSeparator();
        return isChoice ? std::vector<std::string_view>{"click"} : std::vector<std::string_view>{};
    }
    const auto* const control = dynamic_cast<const Control*>(&element);
    if (!control) return {};
    switch (control->Kind()) {
        case ControlKind::ScrollBar:
            return {"slide"};
        case ControlKind::TextBox:
            return {"type"};
        case ControlKind::ListBox:
            return {"pick"};
        case ControlKind::ComboBox:
            return {"pick", "type"};
        case ControlKind::PictureBox:
            return {"press", "drag"};
        default:
            return {"click"};
    }
}

bool IsShown(const Element& element) {
    const auto* const control = dynamic_cast<const Control*>(&element);
    return !control || control->Shown();
}

bool IsEnabled(const Element& element) {
    if (const auto* const entry = dynamic_cast<const MenuItem*>(&element)) return entry->CanBeChosen();
    const auto* const control = dynamic_cast<const Control*>(&element);
    return !control || control->Reachable();
}

/// True if a user can get at an element of the form in front, by its full name.
bool CanBeUsed(const Form& front, std::string_view name) {
    const auto element = std::ranges::find(front.Elements(), name,
                                           [](const Element* one) { return player::FullNameOf(*one); });
    return element != front.Elements().end() && IsShown(**element) && IsEnabled(**element);
}

/// The sources that act: not those that lay out a form as it is at first.
std::vector<std::string> ActingSources(const fs::path& folder) {
    std::vector<std::string> sources;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.path().extension() != ".cpp" || entry.path().stem().string().ends_with("_layout")) continue;
        if (const auto bytes = ReadFile(entry.path())) sources.emplace_back(bytes->begin(), bytes->end());
    }
    return sources;
}

bool IsOfWord(char character) {
    return character == '_' || (std::isalnum(static_cast<unsigned char>(character)) != 0);
}

/// The text behind the index of an element of an array, if there is one.
std::string_view WithoutIndex(std::string_view text) {
    if (text.starts_with('[')) text.remove_prefix(std::min(text.size(), text.find(']') + 1));
    return text;
}

/// True if the text goes on with an assignment of another value than `false`, by one of these.
bool IsTurningOn(std::string_view text, std::span<const std::string_view> assignments) {
    return std::ranges::any_of(assignments, [&](std::string_view assignment) {
        return text.starts_with(assignment) && !text.substr(assignment.size()).starts_with("false");
    });
}

/// The text behind the "." or "->" that it begins with; empty if it begins with none.
std::string_view Member(std::string_view text) {
    if (text.starts_with('.')) return text.substr(1);
    return text.starts_with("->") ? text.substr(2) : std::string_view();
}

/// True if an assignment turns something on that has a name of its own there, such as `marker.Visible =
/// true`: controls have names with a capital.
bool TurnsOnByOtherName(std::string_view source, std::span<const std::string_view> assignments) {
    for (std::size_t place = 1; place < source.size(); ++place) {
        if (!IsTurningOn(Member(source.substr(place)), assignments)) continue;
        std::size_t begin = place;
        while (begin > 0 && IsOfWord(source[begin - 1]))
            --begin;
        if (std::islower(static_cast<unsigned char>(source[begin])) != 0) return true;
    }
    return false;
}

/// True if the source may give a property of the element another value than `false`: by its name, or by
/// another name that it gives to the whole element.
bool MayTurnOn(std::string_view source, std::string_view name,
               std::span<const std::string_view> assignments) {
    const bool byOtherName = TurnsOnByOtherName(source, assignments);
    for (std::size_t place = 0; (place = source.find(name, place)) != std::string_view::npos;
         place += name.size()) {
        const std::string_view before = source.substr(0, place);
        std::string_view behind = source.substr(place + name.size());
        if ((!before.empty() && IsOfWord(before.back())) || (!behind.empty() && IsOfWord(behind.front())))
            continue;
        behind = WithoutIndex(behind);
        if (IsTurningOn(Member(behind), assignments)) return true;
        if (byOtherName && Member(behind).empty()) return true;
    }
    return false;
}

/// The sources that know the form: those that name its type or hold it as a member.
bool KnowsForm(const std::string& source, const std::string& form) {
    return source.find(form) != std::string::npos ||
           (form == "Main" && source.find("main") != std::string::npos);
}

bool MayTurnOn(const std::vector<std::string>& sources, const std::string& form, std::string_view name,
               std::span<const std::string_view> assignments) {
    return std::ranges::any_of(sources, [&](const std::string& source) {
        return KnowsForm(source, form) && MayTurnOn(source, name, assignments);
    });
}

constexpr std::string_view showing[] = {"Visible = "};
constexpr std::string_view enabling[] = {"SetEnabled(", "Enabled = "};

}  // namespace

Reach::Reach(const std::vector<std::string>& forms) {
    for (const std::string& form : forms)
        forms_[form] = 0;
}

void Reach::Look(const player::Life& life) {
    constexpr std::size_t looksAgain = 8;  // What comes to light stays there for some steps.
    const Form* const front = life.platform.FrontForm();
    const bool isSameForm = front == front_;
    front_ = front;
    if (!front || (isSameForm && ++looks_ % looksAgain != 0)) return;
    for (const Element* const element : front->Elements()) {
        std::vector<std::string_view> deeds = DeedsOn(*element);
        if (deeds.empty()) continue;
        Entry& entry = entries_[player::FullNameOf(*element)];
        if (entry.name.empty())
            entry = {std::string(front->Name()), std::string(element->Name()), std::move(deeds)};
        entry.wasShown = entry.wasShown || IsShown(*element);
        entry.wasEnabled = entry.wasEnabled || IsEnabled(*element);
    }
}

void Reach::Note(const player::Life& life, std::string_view command, std::string_view address) {
    const Form* const front = life.platform.FrontForm();
    if (!front) return;
    ++forms_[std::string(front->Name())];
    const auto entry = entries_.find(address);
    if (entry == entries_.end() || entry->second.form != front->Name()) return;
    if (!CanBeUsed(*front, address)) return;
    if (std::ranges::find(entry->second.deeds, command) != entry->second.deeds.end()) ++entry->second.uses;
    entry->second.wasShown = entry->second.wasEnabled = true;
}

Reach::Unused Reach::FindUnused(const player::Life& life) const {
    using namespace std::string_view_literals;
    constexpr std::array further{std::pair{"press"sv, " 1 1 1"}, std::pair{"slide"sv, " 1"},
                                 std::pair{"pick"sv, " 0"}, std::pair{"type"sv, " 1"},
                                 std::pair{"click"sv, ""}};
    const Form* const front = life.platform.FrontForm();
    Unused unused;
    for (const auto& [name, entry] : entries_) {
        const auto& open = life.platform.Forms();
        const auto form = std::ranges::find(open, entry.form, &Form::Name);
        if (entry.uses > 0 || form == open.end() || (*form == front && CanBeUsed(*front, name))) continue;
        const std::string_view deed = entry.deeds.front();
        const auto* const words = std::ranges::find(further, deed, [](const auto& row) { return row.first; });
        const bool isSeen = entry.wasShown && entry.wasEnabled;
        (isSeen ? unused.seen : unused.unseen).push_back(std::string(deed) + " " + name + words->second);
    }
    return unused;
}

std::size_t Reach::Uses(const std::string& name) const {
    const auto entry = entries_.find(name);
    return entry == entries_.end() ? 0 : entry->second.uses;
}

Reach::Rest Reach::FindRest(const fs::path& sources) const {
    const std::vector<std::string> texts = ActingSources(sources);
    Rest rest;
    for (const auto& [form, steps] : forms_)
        if (steps == 0) rest.unreached.push_back(form + " (never opened)");
    for (const auto& [name, entry] : entries_) {
        if (entry.uses > 0) continue;
        if (!entry.wasShown && !MayTurnOn(texts, entry.form, entry.name, showing)) {
            rest.closed.push_back(name + ": hidden, and nothing shows it");
        } else if (entry.wasShown && !entry.wasEnabled &&
                   !MayTurnOn(texts, entry.form, entry.name, enabling)) {
            rest.closed.push_back(name + ": disabled, and nothing enables it");
        } else {
            rest.unreached.push_back(
                name + (entry.wasShown ? entry.wasEnabled ? "" : " (never enabled)" : " (never shown)"));
        }
    }
    return rest;
}

std::string Reach::Table() const {
    struct Row {
        std::size_t all = 0, used = 0, uses = 0;
    };
    std::map<std::string, Row> rows;
    for (const auto& [name, entry] : entries_) {
        Row& row = rows[entry.form];
        ++row.all;
        row.used += entry.uses > 0 ? 1 : 0;
        row.uses += entry.uses;
    }
    std::ostringstream text;
    constexpr int nameWidth = 16, numberWidth = 10;
    text << std::left << std::setw(nameWidth) << "form" << std::right << std::setw(numberWidth) << "done"
         << std::setw(numberWidth) << "parts" << std::setw(numberWidth) << "used" << std::setw(numberWidth)
         << "uses" << '\n';
    for (const auto& [form, done] : forms_) {
        const Row& row = rows[form];
        text << std::left << std::setw(nameWidth) << form << std::right << std::setw(numberWidth) << done
             << std::setw(numberWidth) << row.all << std::setw(numberWidth) << row.used
             << std::setw(numberWidth) << row.uses << '\n';
    }
    return text.str();
}

}  // namespace coinlet::test
