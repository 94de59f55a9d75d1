#include "controls/text_box.h"

#include <algorithm>

namespace coinlet {

std::string TypedText(std::string_view character, bool multiLine) {
    if (character == "\r" || character == "\n" || character == "\r\n") return multiLine ? "\r\n" : "";
    std::string text(character);
    std::erase_if(text, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; });
    return text;
}

TextBox::TextBox(Container& container, std::string_view name, int index)
    : Control(container, name, index, ControlKind::TextBox) {
    MakeFocusable();
}

void TextBox::SetText(const std::string& text) {
    if (text == text_) return;
    text_ = text;
    Change();
}

void TextBox::UserTypes(std::string_view character) {
    UserEdits(text_ + TypedText(character, MultiLine));
}

void TextBox::UserEdits(const std::string& text) {
    if (Answers() && !Locked) SetText(text);
}

void TextBox::VisitProperties(PropertyVisitor& visitor) {
    Control::VisitProperties(visitor);
    VisitProperty(
        visitor, "Text", PropertyKind::Text, [this] { return text_; },
        [this](const std::string& text) { SetText(text); });
    VisitColour(visitor, "ForeColor", ForeColor);
    VisitColour(visitor, "BackColor", BackColor);
    VisitField(visitor, "MultiLine", MultiLine);
    VisitField(visitor, "VerticalScroll", VerticalScroll);
    VisitField(visitor, "Locked", Locked);
    VisitFont(visitor, *this);
}

void TextBox::VisitEvents(EventVisitor& visitor) {
    Control::VisitEvents(visitor);
    VisitEvent(visitor, "Change", Change);
}

}  // namespace coinlet
