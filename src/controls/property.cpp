#include "controls/property.h"

#include "base/numbers.h"

namespace coinlet {

bool AsFlag(const PropertyValue& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag;
    if (const auto* number = std::get_if<double>(&value)) return *number != 0;
    return std::get<std::string>(value) == "true";
}

double AsNumber(const PropertyValue& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? 1 : 0;
    if (const auto* number = std::get_if<double>(&value)) return *number;
    return Val(std::get<std::string>(value));
}

std::string AsText(const PropertyValue& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "true" : "false";
    if (const auto* number = std::get_if<double>(&value)) return FormatNumber(*number);
    return std::get<std::string>(value);
}

void VisitColour(PropertyVisitor& visitor, std::string_view name, int& field) {
    VisitProperty(
        visitor, name, PropertyKind::Colour, [&field] { return field; },
        [&field](int colour) { field = colour; });
}

namespace {

/// One part of a font: read alone, written by replacing the whole font.
template <class T>
void VisitFontPart(PropertyVisitor& visitor, std::string_view name, PropertyKind kind,
                   T FontProperties::*part, const std::function<const FontProperties&()>& get,
                   const std::function<void(const FontProperties&)>& set) {
    VisitProperty(
        visitor, name, kind, [get, part] { return get().*part; },
        [get, set, part](T value) {
            FontProperties font = get();
            font.*part = std::move(value);
            set(font);
        });
}

}  // namespace

void VisitFont(PropertyVisitor& visitor, const std::function<const FontProperties&()>& get,
               const std::function<void(const FontProperties&)>& set) {
    VisitFontPart(visitor, "FontName", PropertyKind::Text, &FontProperties::FontName, get, set);
    VisitFontPart(visitor, "FontSize", PropertyKind::Number, &FontProperties::FontSize, get, set);
    VisitFontPart(visitor, "FontBold", PropertyKind::Flag, &FontProperties::FontBold, get, set);
    VisitFontPart(visitor, "FontItalic", PropertyKind::Flag, &FontProperties::FontItalic, get, set);
    VisitFontPart(visitor, "FontUnderline", PropertyKind::Flag, &FontProperties::FontUnderline, get, set);
    VisitFontPart(visitor, "FontStrikethru", PropertyKind::Flag, &FontProperties::FontStrikethru, get, set);
}

void VisitFont(PropertyVisitor& visitor, FontProperties& font) {
    VisitField(visitor, "FontName", font.FontName);
    VisitField(visitor, "FontSize", font.FontSize);
    VisitField(visitor, "FontBold", font.FontBold);
    VisitField(visitor, "FontItalic", font.FontItalic);
    VisitField(visitor, "FontUnderline", font.FontUnderline);
    VisitField(visitor, "FontStrikethru", font.FontStrikethru);
}

}  // namespace coinlet
