// Properties that are set and events that are raised, whatever a user could get at.

#include "controls/file_boxes.h"
#include "controls/list_box.h"
#include "controls/picture_box.h"
#include "core/main_form.h"
#include "fuzz/random_user/chance.h"
#include "fuzz/random_user/extremes.h"
#include "player/names.h"
#include "player/values.h"

#include <algorithm>
#include <vector>

namespace coinlet::test {

namespace {

/// Collects what can be set, or what can be raised.
struct Collector : PropertyVisitor, EventVisitor {
    void Visit(const Property& property) override {
        if (property.set) properties.push_back(property);
    }
    void Visit(const NamedEvent& event) override { events.push_back(event); }

    std::vector<Property> properties;
    std::vector<NamedEvent> events;
};

/// An open form, mostly the one in front, and something on it or (nullptr) itself.
struct Place {
    Form* form;
    Element* element;

    std::string Address() const { return element ? player::FullNameOf(*element) : std::string(form->Name()); }
};

Place AnyPlace(const Chance& chance) {
    Form* const form =
        chance.dice.OneIn(4) ? chance.dice.Pick(chance.life.platform.Forms()) : &chance.Front();
    const auto& elements = form->Elements();
    if (elements.empty() || chance.dice.OneIn(16)) return {form, nullptr};
    return {form, chance.dice.Pick(elements)};
}

/// Sizes of pictures that are small, or refused; those between would fill the memory.
std::string AnyPictureSide(Dice& dice) {
    constexpr const char* sides[] = {"-1", "0", "1", "15", "16", "77", "700", "1000000000", "1e30"};
    return dice.Pick(sides);
}

bool IsSide(std::string_view name) {
    return name == "Width" || name == "Height";
}

/// The canvas has its size for good; a canvas that takes that of a picture is no fault of the program.
bool GivesUpItsSize(const Element* element, const Property& property) {
    const auto* const main = element ? dynamic_cast<const MainForm*>(&element->OwnerForm()) : nullptr;
    return main && element == &main->Pic && property.name == "AutoSize";
}

std::string AnyValue(const Chance& chance, const Element* element, const Property& property) {
    Dice& dice = chance.dice;
    const auto* const control = dynamic_cast<const Control*>(element);
    const bool hasPixels =
        control && (control->Kind() == ControlKind::PictureBox || control->Kind() == ControlKind::Button);
    if (hasPixels && IsSide(property.name)) return AnyPictureSide(dice);
    switch (property.kind) {
        case PropertyKind::Flag:
            return dice.OneIn(2) ? "true" : "false";
        case PropertyKind::Number:
        case PropertyKind::Colour:
            return AnyNumber(dice);
        case PropertyKind::Text:
            break;
    }
    return AnyText(dice);
}

std::string SetProperty(const Chance& chance) {
    const Place place = AnyPlace(chance);
    Collector found;
    if (place.element) {
        place.element->VisitProperties(found);
    } else {
        place.form->VisitProperties(found);
    }
    if (found.properties.empty()) return "";
    const Property property = chance.dice.Pick(found.properties);
    if (GivesUpItsSize(place.element, property)) return "";
    // Of these a script sets no other text than a row's, by picking it.
    if (property.name == "Text" && dynamic_cast<const ListBox*>(place.element)) return "";
    return "set " + place.Address() + "." + std::string(property.name) + " " +
           AnyValue(chance, place.element, property);
}

std::string SetSession(const Chance& chance) {
    Collector found;
    chance.life.program->TheSession().VisitProperties(found);
    const Property property = chance.dice.Pick(found.properties);
    return "set Session." + std::string(property.name) + " " + AnyValue(chance, nullptr, property);
}

std::string SetScreen(const Chance& chance) {
    constexpr const char* names[] = {"DotsPerInch", "Width", "Height", "MousePointer"};
    return std::string("set Screen.") + chance.dice.Pick(names) + " " + AnyWhole(chance.dice);
}

/// Places on the screen are huge at worst; other arguments are small.
std::string RaiseEvent(const Chance& chance) {
    const Place place = AnyPlace(chance);
    Collector found;
    if (place.element) {
        place.element->VisitEvents(found);
    } else {
        place.form->VisitEvents(found);
    }
    if (found.events.empty()) return "";
    const NamedEvent event = chance.dice.Pick(found.events);
    std::string line = "raise " + place.Address() + "." + std::string(event.name);
    constexpr int places = 2;  // The first two arguments are buttons, keys and shift states.
    for (int i = 0; i < event.arguments; ++i)
        line += " " + (i < places ? std::to_string(chance.dice.Between(0, 4)) : AnyNumber(chance.dice));
    return line;
}

constexpr WeightedMaker makers[] = {{8, SetProperty}, {8, RaiseEvent}, {2, SetSession}, {1, SetScreen}};

}  // namespace

std::span<const WeightedMaker> StateLines() {
    return makers;
}

}  // namespace coinlet::test
