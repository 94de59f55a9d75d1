#include "controls/text_box.h"

#include "base/text.h"

#include <algorithm>
#include <cstddef>

namespace coinlet {

std::string TypedText(std::string_view character, bool multiLine) {
    if (character == "\r" || character == "\n" || character == "\r\n") return multiLine ? "\r\n" : "";
    std::string text(character);
    std::erase_if(text, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; });
    return text;
}

std::string EditedLine(std::string_view before, std::string_view edited) {
    if (FirstLine(edited) == edited) return std::string(edited);
    const auto startsInCharacter = [](std::string_view text) {
        return !text.empty() && (static_cast<unsigned char>(text.front()) & 0xC0) == 0x80;
    };
    const std::size_t most = std::min(before.size(), edited.size());
    std::size_t inFront = 0, behind = 0;
    while (inFront < most && before[inFront] == edited[inFront])
        ++inFront;
    while (inFront > 0 && startsInCharacter(edited.substr(inFront)))
        --inFront;
    while (behind < most - inFront &&
           before[before.size() - 1 - behind] == edited[edited.size() - 1 - behind])
        ++behind;
    while (startsInCharacter(edited.substr(edited.size() - behind)))
        --behind;
    const std::size_t end = edited.size() - behind;
    const std::string_view inserted = edited.substr(inFront, end - inFront);
    return std::string(edited.substr(0, inFront)).append(FirstLine(inserted)).append(edited.substr(end));
}

TextBox::TextBox(Container& container, std::string_view name, int index)
    : Control(container, name, index, ControlKind::TextBox) {
    MakeFocusable();
}

void TextBox::SetText(const std::string& text) {
    const std::string_view taken = MultiLine ? std::string_view(text) : FirstLine(text);
    if (taken == text_) return;
    text_ = taken;
    Change();
}

void TextBox::UserTypes(std::string_view character) {
    UserEdits(text_ + TypedText(character, MultiLine));
}

void TextBox::UserEdits(const std::string& text) {
    if (Answers() && !Locked) SetText(MultiLine ? text : EditedLine(text_, text));
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
