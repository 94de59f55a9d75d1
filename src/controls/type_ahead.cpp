#include "controls/type_ahead.h"

#include "base/order_key.h"
#include "base/text.h"
#include "controls/list_box.h"

#include <algorithm>

namespace coinlet {

namespace {

/// The first row from `start` on, round about, that begins so, or -1.
int FindFrom(const RowList& rows, int start, std::string_view beginning) {
    for (int i = 0; i < rows.Count(); ++i) {
        const int row = (start + i) % rows.Count();
        if (BeginsWith(rows.Row(row), beginning)) return row;
    }
    return -1;
}

bool IsOneLetterRepeated(std::string_view typed) {
    const auto letters = Characters(LowerCase(typed));
    return std::ranges::all_of(letters, [&](const std::string& each) { return each == letters.front(); });
}

}  // namespace

int TypeAhead::RowFor(const RowList& rows, int current, std::string_view letter) {
    const bool isControl =
        letter.empty() || static_cast<unsigned char>(letter.front()) < ' ' || letter == "\x7F";
    if (isControl || (typed_.empty() && letter == " ")) return current;
    const bool isFirst = typed_.empty();
    typed_ += letter;
    const int here = std::max(current, 0), next = current + 1;
    int row = FindFrom(rows, isFirst ? next : here, typed_);
    if (row < 0 && IsOneLetterRepeated(typed_)) row = FindFrom(rows, next, letter);
    return row < 0 ? current : row;
}

}  // namespace coinlet
