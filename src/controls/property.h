#pragma once

#include "base/numbers.h"
#include "surface/font_properties.h"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

namespace coinlet {

// The compiler takes a scoped name for one that hides the type of that name.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"
/// What a property's text form looks like.
enum class PropertyKind { Flag, Number, Colour, Text };
#pragma GCC diagnostic pop

using PropertyValue = std::variant<bool, double, std::string>;

/// A property by the name that scripts and dumps call it. Flags hold a bool, numbers and colours a double,
/// texts a string; `set` is empty for what can only be read, takes a value of the same alternative, and has
/// the effects (events included) that an assignment in the program has.
struct Property {
    std::string_view name;
    PropertyKind kind = PropertyKind::Text;
    std::function<PropertyValue()> get;
    std::function<void(const PropertyValue&)> set;
};

/// Every control, form and the session lists its properties once, by such a visitor: the scenario player, the
/// state dump and the random-event test read that one list.
class PropertyVisitor {
public:
    virtual ~PropertyVisitor() = default;
    virtual void Visit(const Property& property) = 0;
};

template <class T>
PropertyValue ToPropertyValue(const T& value) {
    if constexpr (std::same_as<T, bool>) {
        return value;
    } else if constexpr (std::is_arithmetic_v<T>) {
        return static_cast<double>(value);
    } else {
        return std::string(value);
    }
}

/// A value as a flag, number or text. Of another alternative it is converted: a number is true unless it is
/// 0, a text is its number or, as a flag, "true".
bool AsFlag(const PropertyValue& value);
double AsNumber(const PropertyValue& value);
std::string AsText(const PropertyValue& value);

/// Back to the type of a field; a number that doesn't fit it is brought to its nearest value.
template <class T>
T FromPropertyValue(const PropertyValue& value) {
    if constexpr (std::same_as<T, bool>) {
        return AsFlag(value);
    } else if constexpr (std::floating_point<T>) {
        constexpr double highest = std::numeric_limits<T>::max();
        const double number = AsNumber(value);
        return static_cast<T>(std::isnan(number) ? 0 : std::clamp(number, -highest, highest));
    } else if constexpr (std::integral<T>) {
        constexpr T lowest = std::numeric_limits<T>::min(), highest = std::numeric_limits<T>::max();
        static_assert(std::in_range<int>(lowest) && std::in_range<int>(highest));
        return static_cast<T>(std::clamp<int>(RoundHalfEven(AsNumber(value)), lowest, highest));
    } else {
        return AsText(value);
    }
}

/// A property with a getter and a setter; `kind` is needed for colours only.
template <class Getter, class Setter>
void VisitProperty(PropertyVisitor& visitor, std::string_view name, PropertyKind kind, Getter get,
                   Setter set) {
    using T = std::remove_cvref_t<std::invoke_result_t<Getter>>;
    visitor.Visit({name, kind, [get] { return ToPropertyValue<T>(get()); },
                   [set](const PropertyValue& value) { set(FromPropertyValue<T>(value)); }});
}

/// A property that can only be read.
template <class Getter>
void VisitReadOnly(PropertyVisitor& visitor, std::string_view name, PropertyKind kind, Getter get) {
    using T = std::remove_cvref_t<std::invoke_result_t<Getter>>;
    visitor.Visit({name, kind, [get] { return ToPropertyValue<T>(get()); }, {}});
}

/// A plain field.
template <class T>
void VisitField(PropertyVisitor& visitor, std::string_view name, T& field) {
    constexpr PropertyKind kind = std::same_as<T, bool>     ? PropertyKind::Flag
                                  : std::is_arithmetic_v<T> ? PropertyKind::Number
                                                            : PropertyKind::Text;
    VisitProperty(
        visitor, name, kind, [&field]() -> T { return field; },
        [&field](T value) { field = std::move(value); });
}

/// A plain field that holds a colour.
void VisitColour(PropertyVisitor& visitor, std::string_view name, int& field);

/// The six properties of a font: of plain fields, or of a font that a control reads and takes as a whole.
void VisitFont(PropertyVisitor& visitor, FontProperties& font);
void VisitFont(PropertyVisitor& visitor, const std::function<const FontProperties&()>& get,
               const std::function<void(const FontProperties&)>& set);

}  // namespace coinlet
