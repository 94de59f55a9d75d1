#include "controls/combo_box.h"

#include "base/text.h"
#include "controls/text_box.h"

namespace coinlet {

ComboBox::ComboBox(Container& container, std::string_view name, int index)
    : Control(container, name, index, ControlKind::ComboBox) {
    MakeFocusable();
}

void ComboBox::Clear() {
    rows_.Clear();
    text_.clear();
}

void ComboBox::Choose(int index) {
    rows_.Choose(index);
    text_ = rows_.Row(index);
    Click();
}

void ComboBox::SetListIndex(int index) {
    if (index == -1) text_.clear();
    if (index != ListIndex() && (index == -1 || rows_.Contains(index))) Choose(index);
}

void ComboBox::SetText(const std::string& text) {
    const std::string_view taken = FirstLine(text);
    if (taken == text_) return;
    text_ = taken;
    rows_.Choose(-1);
    Change();
}

void ComboBox::UserPicks(int index) {
    if (Answers() && rows_.Contains(index)) Choose(index);
}

void ComboBox::UserTypes(std::string_view character) {
    UserEdits(text_ + TypedText(character, false));
}

void ComboBox::UserEdits(const std::string& text) {
    if (Answers()) SetText(EditedLine(text_, text));
}

void ComboBox::KeyPressed(int code, int shift) {
    Control::KeyPressed(code, shift);
    if (!Answers() || (code != keyUp && code != keyDown)) return;
    // From the row that was typed, as from one that was chosen.
    const int start = ListIndex() >= 0 ? ListIndex() : rows_.Find(text_);
    const int row = RowAfterKey(code, start, ListCount(), 1);
    if (row != start) UserPicks(row);
}

void ComboBox::VisitProperties(PropertyVisitor& visitor) {
    Control::VisitProperties(visitor);
    VisitColour(visitor, "ForeColor", ForeColor);
    VisitColour(visitor, "BackColor", BackColor);
    VisitProperty(
        visitor, "ListIndex", PropertyKind::Number, [this] { return ListIndex(); },
        [this](int index) { SetListIndex(index); });
    VisitProperty(
        visitor, "Text", PropertyKind::Text, [this] { return text_; },
        [this](const std::string& text) { SetText(text); });
    VisitRows(visitor, rows_, {});
    VisitFont(visitor, *this);
}

void ComboBox::VisitEvents(EventVisitor& visitor) {
    Control::VisitEvents(visitor);
    VisitEvent(visitor, "Change", Change);
}

}  // namespace coinlet
