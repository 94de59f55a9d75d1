#pragma once

#include <string>
#include <string_view>

namespace coinlet {

class RowList;

/// What the user types into a list to get to a row: its first letters, one soon after the other.
class TypeAhead {
public:
    /// The next letter, as UTF-8. Gives the row that it leads to from row `current`: the first one from there
    /// on, round about, that begins with all that was typed, without regard to case and accents; the first
    /// letter, and the same one again and again, leads on to the next row that begins with it. `current`
    /// where no row does. A blank is no first letter; control characters are none.
    int RowFor(const RowList& rows, int current, std::string_view letter);
    /// A pause: what comes next is a first letter.
    void Forget() { typed_.clear(); }
    /// What was typed since the last pause.
    const std::string& Typed() const { return typed_; }

private:
    std::string typed_;
};

/// How long the pause is that ends it, in milliseconds.
constexpr int typeAheadPause = 1000;

}  // namespace coinlet
