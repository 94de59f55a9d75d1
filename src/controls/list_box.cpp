#include "controls/list_box.h"

#include "base/text.h"

#include <algorithm>
#include <deque>

namespace coinlet {

const std::string& RowList::Row(int index) const {
    static const std::string none;
    return Contains(index) ? rows_[static_cast<std::size_t>(index)] : none;
}

int RowList::Add(const std::string& row) {
    const auto place =
        sorted_ ? std::upper_bound(rows_.begin(), rows_.end(), row, LessIgnoringCase) : rows_.end();
    const auto index = place - rows_.begin();
    rows_.insert(place, row);
    ++revision_;
    return static_cast<int>(index);
}

bool RowList::Replace(int index, const std::string& row) {
    if (!Contains(index)) return false;
    rows_[static_cast<std::size_t>(index)] = row;
    ++revision_;
    return true;
}

bool RowList::Remove(int index) {
    if (!Contains(index)) return false;
    rows_.erase(rows_.begin() + index);
    ++revision_;
    return true;
}

void RowList::Clear() {
    if (rows_.empty()) return;
    rows_.clear();
    ++revision_;
}

int RowList::Find(std::string_view row) const {
    const auto found = std::ranges::find(rows_, row);
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int RowAfterKey(int code, int current, int count) {
    constexpr int page = 10;
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

void ListBox::SetList(int index, const std::string& row) {
    rows_.Replace(index, row);
}

void ListBox::AddItem(const std::string& row) {
    // The chosen row stays the chosen one, also when another is put in before it.
    if (rows_.Add(row) <= listIndex_) ++listIndex_;
}

void ListBox::RemoveItem(int index) {
    if (!rows_.Remove(index)) return;
    if (index == listIndex_) {
        listIndex_ = -1;
    } else if (index < listIndex_) {
        --listIndex_;
    }
}

void ListBox::Clear() {
    rows_.Clear();
    listIndex_ = -1;
}

void ListBox::RowChosen(bool) {
    Click();
}

void ListBox::Choose(int index) {
    const bool another = index != listIndex_;
    listIndex_ = index;
    RowChosen(another);
}

void ListBox::SetListIndex(int index) {
    if (index != listIndex_ && (index == -1 || rows_.Contains(index))) Choose(index);
}

void ListBox::UserPicks(int index) {
    if (Answers() && rows_.Contains(index)) Choose(index);
}

void ListBox::UserActivates() {
    if (Answers() && rows_.Contains(listIndex_)) DblClick();
}

void ListBox::KeyPressed(int code, int shift) {
    Control::KeyPressed(code, shift);
    if (!Answers()) return;
    if (code == keyReturn) return UserActivates();
    const int row = RowAfterKey(code, listIndex_, ListCount());
    if (row != listIndex_) UserPicks(row);
}

void ListBox::VisitProperties(PropertyVisitor& visitor) {
    Control::VisitProperties(visitor);
    VisitColour(visitor, "ForeColor", ForeColor);
    VisitColour(visitor, "BackColor", BackColor);
    VisitProperty(
        visitor, "ListIndex", PropertyKind::Number, [this] { return listIndex_; },
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
