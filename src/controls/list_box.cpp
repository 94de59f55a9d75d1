#include "controls/list_box.h"

#include "base/text.h"
#include "controls/form.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace coinlet {

const std::string& RowList::Row(int index) const {
    static const std::string none;
    return Contains(index) ? rows_[static_cast<std::size_t>(index)] : none;
}

int RowList::PlaceOf(const std::string& row) const {
    // Long lists come sorted.
    if (rows_.empty() || !ComesBefore(row, rows_.back())) return Count();
    return static_cast<int>(std::ranges::upper_bound(rows_, row, ComesBefore) - rows_.begin());
}

void RowList::Add(const std::string& row) {
    const int place = sorted_ ? PlaceOf(row) : Count();
    if (place <= chosen_) ++chosen_;
    rows_.insert(rows_.begin() + place, row);
    ++revision_;
}

void RowList::Replace(int index, std::string row) {
    if (!Contains(index)) return;
    if (sorted_) {
        const bool wasChosen = index == chosen_;
        Remove(index);
        const int place = PlaceOf(row);
        Add(row);
        if (wasChosen) chosen_ = place;
    } else {
        rows_[static_cast<std::size_t>(index)] = std::move(row);
        ++revision_;
    }
}

void RowList::Remove(int index) {
    if (!Contains(index)) return;
    rows_.erase(rows_.begin() + index);
    if (index == chosen_) {
        chosen_ = -1;
    } else if (index < chosen_) {
        --chosen_;
    }
    ++revision_;
}

void RowList::Clear() {
    chosen_ = -1;
    if (rows_.empty()) return;
    rows_.clear();
    ++revision_;
}

bool RowList::Choose(int index) {
    const int row = Contains(index) ? index : -1;
    return std::exchange(chosen_, row) != row;
}

int RowList::Find(std::string_view row) const {
    const auto found = std::ranges::find(rows_, row);
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int RowAfterKey(int code, int current, int count, int page) {
    const auto stepped = [&](int rows) {
        return std::clamp(current + rows, std::min(0, count - 1), count - 1);
    };
    switch (code) {
        case keyUp:
            return stepped(-1);
        case keyDown:
            return stepped(1);
        case keyPageUp:
            return stepped(-page);
        case keyPageDown:
            return stepped(page);
        case keyHome:
            return stepped(-count);
        case keyEnd:
            return stepped(count);
        default:
            return current;
    }
}

namespace {

/// The name of a row's property. Names are kept, since whoever visits properties may keep them too.
std::string_view RowName(int index) {
    static std::deque<std::string> names;
    while (static_cast<int>(names.size()) <= index)
        names.push_back("List(" + std::to_string(names.size()) + ")");
    return names[static_cast<std::size_t>(index)];
}

}  // namespace

void VisitRows(PropertyVisitor& visitor, const RowList& rows,
               const std::function<void(int, const std::string&)>& set) {
    VisitReadOnly(visitor, "ListCount", PropertyKind::Number, [&rows] { return rows.Count(); });
    for (int i = 0; i < rows.Count(); ++i) {
        Property row{
            RowName(i), PropertyKind::Text, [&rows, i]() -> PropertyValue { return rows.Row(i); }, {}};
        if (set) row.set = [set, i](const PropertyValue& value) { set(i, AsText(value)); };
        visitor.Visit(row);
    }
}

ListBox::ListBox(Container& container, std::string_view name, int index)
    : Control(container, name, index, ControlKind::ListBox) {
    MakeFocusable();
}

void ListBox::RowChosen(bool) {
    Click();
}

void ListBox::SetListIndex(int index) {
    if (index != -1 && !rows_.Contains(index)) return;
    if (rows_.Choose(index)) RowChosen(true);
}

void ListBox::UserPicks(int index) {
    if (Answers() && rows_.Contains(index)) RowChosen(rows_.Choose(index));
}

void ListBox::UserActivates() {
    if (Answers() && ListIndex() >= 0) DblClick();
}

void ListBox::KeyPressed(int code, int shift) {
    Control::KeyPressed(code, shift);
    if (!Answers()) return;
    if (code == keyReturn) {
        EndTyping();
        return UserActivates();
    }
    const int row = RowAfterKey(code, ListIndex(), ListCount(), VisibleRows());
    if (row == ListIndex()) return;
    EndTyping();
    UserPicks(row);
}

bool ListBox::WantsKey(int code, int shift) const {
    const bool types = code == keySpace || (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z');
    return IsStepKey(code) || (code == keyReturn && !PassesEnterOn()) || (types && IsPlainKey(shift));
}

int ListBox::RowPixels() const {
    constexpr int gap = 2;
    return OwnerForm().Fonts().Measure(CurrentFont(), "").height + gap;
}

int ListBox::VisibleRows() const {
    return std::max(1, (PixelHeight() - 2 * listFrame) / RowPixels());
}

void ListBox::CharacterTyped(int character) {
    Control::CharacterTyped(character);
    if (!Answers()) return;
    const int row = typed_.RowFor(rows_, ListIndex(), Utf8(static_cast<char32_t>(std::max(character, 0))));
    if (typed_.Typed().empty()) return;
    // Made anew, it counts from this letter on.
    typing_ = std::make_unique<Timer>(OwnerForm(), "Typing", this);
    typing_->Interval = typeAheadPause;
    typing_->Tick = [this] { EndTyping(); };
    if (row != ListIndex()) UserPicks(row);
}

void ListBox::FocusLost() {
    EndTyping();
    Control::FocusLost();
}

void ListBox::EndTyping() {
    typed_.Forget();
    typing_.reset();
}

void ListBox::VisitProperties(PropertyVisitor& visitor) {
    Control::VisitProperties(visitor);
    VisitColour(visitor, "ForeColor", ForeColor);
    VisitColour(visitor, "BackColor", BackColor);
    VisitProperty(
        visitor, "ListIndex", PropertyKind::Number, [this] { return ListIndex(); },
        [this](int index) { SetListIndex(index); });
    VisitProperty(
        visitor, "Text", PropertyKind::Text, [this] { return Text(); },
        [this](const std::string& row) {
            if (const int index = rows_.Find(row); index >= 0) SetListIndex(index);
        });
    VisitRows(visitor, rows_, [this](int index, const std::string& row) { SetList(index, row); });
    VisitFont(visitor, *this);
}

void ListBox::VisitEvents(EventVisitor& visitor) {
    Control::VisitEvents(visitor);
    VisitEvent(visitor, "DblClick", DblClick);
}

}  // namespace coinlet
