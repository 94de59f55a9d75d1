#pragma once

namespace coinlet {

/// Pi as all figures of the program have it; the curved texts alone have another one. It lacks the last digit
/// of a double on purpose: the places of corners depend on it.
constexpr double pi = 3.14159265358979;

}  // namespace coinlet
