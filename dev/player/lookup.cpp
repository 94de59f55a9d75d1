#include "player/lookup.h"

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "player/failure.h"
#include "player/names.h"
#include "player/values.h"

#include <algorithm>

namespace coinlet::player {

namespace {

using PropertyWalk = std::function<void(PropertyVisitor&)>;

class PropertyCollector : public PropertyVisitor {
public:
    void Visit(const Property& property) override { found.push_back(property); }
    std::vector<Property> found;
};

class EventCollector : public EventVisitor {
public:
    void Visit(const NamedEvent& event) override { found.push_back(event); }
    std::vector<NamedEvent> found;
};

std::string Listed(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names)
        list += (list.empty() ? "" : ", ") + name;
    return list;
}

/// The names of properties or events, without the rows of lists.
template <class Named>
std::string ListedNames(const std::vector<Named>& named) {
    std::vector<std::string> names;
    for (const Named& one : named)
        if (one.name.find('(') == std::string_view::npos) names.emplace_back(one.name);
    return Listed(names);
}

// --- What isn't an element but has properties -------------------------------------------------------------

void VisitScreen(PropertyVisitor& visitor, ScreenState& screen, PlayerPlatform* platform) {
    VisitField(visitor, "DotsPerInch", screen.DotsPerInch);
    VisitField(visitor, "Width", screen.Width);
    VisitField(visitor, "Height", screen.Height);
    VisitField(visitor, "MousePointer", screen.MousePointer);
    VisitReadOnly(visitor, "Popup", PropertyKind::Text,
                  [platform] { return platform ? platform->Popup() : std::string(); });
    VisitReadOnly(visitor, "PopupAt", PropertyKind::Text,
                  [platform] { return platform ? platform->PopupAt() : std::string(); });
}

/// The properties of `Screen`, `Session` and `Program`; nothing if `name` is none of these.
std::optional<PropertyWalk> WalkGlobal(World& world, Life* life, const std::string& name) {
    if (name == "Screen") {
        return [&world, life](PropertyVisitor& visitor) {
            VisitScreen(visitor, life ? life->platform.Screen : world.screen,
                        life ? &life->platform : nullptr);
        };
    }
    if (!life) return std::nullopt;
    if (name == "Session")
        return [life](PropertyVisitor& visitor) { life->program->TheSession().VisitProperties(visitor); };
    if (name == "Program") {
        return [life](PropertyVisitor& visitor) {
            VisitReadOnly(visitor, "Ended", PropertyKind::Flag, [life] { return life->platform.Ended(); });
        };
    }
    return std::nullopt;
}

PropertyWalk WalkTarget(const Target& target) {
    if (target.element)
        return [element = target.element](PropertyVisitor& visitor) { element->VisitProperties(visitor); };
    return [form = target.form](PropertyVisitor& visitor) { form->VisitProperties(visitor); };
}

// --- Rows of lists ----------------------------------------------------------------------------------------

bool HasRows(const Element* element) {
    return dynamic_cast<const ListBox*>(element) || dynamic_cast<const ComboBox*>(element);
}

/// A row behind the last one is an empty text.
PropertyTarget MissingRow() {
    return {{"List", PropertyKind::Text, [] { return PropertyValue(std::string()); }, {}}, nullptr};
}

// --- Elements by name -------------------------------------------------------------------------------------

std::vector<int> IndexesOf(const Form& form, const std::string& name) {
    std::vector<int> indexes;
    for (const Element* const element : form.Elements())
        if (element->Name() == name && element->Index() != noIndex) indexes.push_back(element->Index());
    return indexes;
}

[[noreturn]] void FailElement(const Form& form, const AddressPart& part) {
    const std::string what = "no control " + Show(part) + " on " + std::string(form.Name());
    const auto indexes = IndexesOf(form, part.name);
    if (!indexes.empty()) {
        const auto [least, most] = std::ranges::minmax(indexes);
        Refuse(what + ": the array goes from " + std::to_string(least) + " to " + std::to_string(most));
    }
    Refuse(form.Find(part.name) ? what + ": it is in no array" : what);
}

bool IsFormProperty(const Address& address) {
    return address.parts.size() == 2;
}

}  // namespace

Form& FindForm(Life& life, const std::string& name) {
    if (Form* const form = life.platform.FindForm(name)) return *form;
    if (Form* const form = life.program->HiddenForm(name)) return *form;
    std::vector<std::string> open;
    for (const Form* const form : life.platform.Forms())
        open.emplace_back(form->Name());
    Refuse("no form " + name + " is open, only " + (open.empty() ? "none" : Listed(open)));
}

Target FindTarget(Life& life, const Address& address) {
    if (address.parts.size() > 2 || address.parts.front().index)
        Fail("expected Form or Form.Control, found " + address.text);
    Form& form = FindForm(life, address.parts.front().name);
    if (address.parts.size() == 1) return {&form, nullptr};
    const AddressPart& part = address.parts.back();
    Element* const element = form.Find(part.name, part.index.value_or(noIndex));
    if (!element) FailElement(form, part);
    return {&form, element};
}

Element& FindElement(Life& life, const Address& address) {
    const Target target = FindTarget(life, address);
    if (!target.element) Fail("expected a control, found the form " + address.text);
    return *target.element;
}

Control& FindControl(Life& life, const Address& address) {
    auto* const control = dynamic_cast<Control*>(&FindElement(life, address));
    if (!control) Fail(address.text + " is no control that the user sees");
    return *control;
}

PropertyTarget FindProperty(World& world, Life* life, const Address& address) {
    if (address.parts.size() < 2) Fail("expected a property, found " + address.text);
    const AddressPart& name = address.parts.back();
    const AddressPart& first = address.parts.front();
    Target target;
    std::optional<PropertyWalk> walk;
    if (IsFormProperty(address)) walk = WalkGlobal(world, life, first.name);
    if (!walk) {
        if (!life) Fail("the program hasn't started");
        const bool isOpen = life->platform.FindForm(first.name) || life->program->HiddenForm(first.name);
        if (IsFormProperty(address) && name.name == "Loaded" && !isOpen)
            return {{"Loaded", PropertyKind::Flag, [] { return PropertyValue(false); }, {}}, nullptr};
        target = FindTarget(*life, WithoutLast(address));
        walk = WalkTarget(target);
    }

    PropertyCollector properties;
    (*walk)(properties);
    const auto property = std::ranges::find(properties.found, Show(name), &Property::name);
    if (property == properties.found.end()) {
        if (HasRows(target.element) && name.name == "List" && name.index) return MissingRow();
        Fail("no property " + Show(name) + " of " + WithoutLast(address).text + ", only " +
             ListedNames(properties.found));
    }
    return {*property, target.element};
}

NamedEvent FindEvent(Life& life, const Address& address) {
    if (address.parts.size() < 2) Fail("expected an event, found " + address.text);
    const Target target = FindTarget(life, WithoutLast(address));
    EventCollector events;
    if (target.element) {
        target.element->VisitEvents(events);
    } else {
        target.form->VisitEvents(events);
    }
    const auto event = std::ranges::find(events.found, Show(address.parts.back()), &NamedEvent::name);
    if (event == events.found.end()) {
        Fail("no event " + Show(address.parts.back()) + " of " + WithoutLast(address).text + ", only " +
             ListedNames(events.found));
    }
    return *event;
}

std::vector<std::pair<std::string, std::string>> AllProperties(World& world, Life& life,
                                                               const Address& address) {
    std::optional<PropertyWalk> walk;
    if (address.parts.size() == 1) walk = WalkGlobal(world, &life, address.parts.front().name);
    if (!walk) walk = WalkTarget(FindTarget(life, address));
    PropertyCollector properties;
    (*walk)(properties);
    std::vector<std::pair<std::string, std::string>> all;
    for (const Property& property : properties.found)
        all.emplace_back(property.name, world.places.Shown(ShowValue(property.kind, property.get())));
    std::ranges::sort(all);
    return all;
}

}  // namespace coinlet::player
