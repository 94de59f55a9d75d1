#pragma once

#include "controls/property.h"

#include <optional>
#include <string>
#include <string_view>

namespace coinlet::player {

/// Whole numbers in full, others as the user sees them (up to 7 significant digits).
std::string ShowNumber(double number);
/// "R,G,B"; a number that is no colour, such as -1, as that number.
std::string ShowColour(double colour);
std::string ShowFlag(bool flag);
/// In double quotes, with the escapes that a script reads.
std::string Quoted(std::string_view text);

/// Throw ScriptFailure on anything else.
double ReadNumber(const std::string& text);
int ReadWhole(const std::string& text);
bool ReadFlag(const std::string& text);
/// A colour as "R,G,B" (each 0 to 255) or as a number.
double ReadColour(const std::string& text);

/// A value in the form in which a script writes it.
std::string ShowValue(PropertyKind kind, const PropertyValue& value);
/// The value that a word of a script means for a property of that kind. Numbers may be written as colours
/// too.
PropertyValue ReadValue(PropertyKind kind, const std::string& text);
/// Numbers that look alike to the user are the same.
bool SameValue(const PropertyValue& a, const PropertyValue& b);

}  // namespace coinlet::player
