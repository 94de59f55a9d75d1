#pragma once

#include "controls/house_colours.h"
#include "controls/list_box.h"

#include <string>

namespace coinlet {

/// A text field with a list that drops down. A choice of a row puts it into the text and raises `Click` only;
/// typing, or assigning another text, raises `Change` only and leaves no row chosen.
class ComboBox : public Control, public FontProperties {
public:
    ComboBox(Container& container, std::string_view name, int index = noIndex);

    Colour ForeColor = fieldTextColour;
    Colour BackColor = fieldColour;

    int ListCount() const { return rows_.Count(); }
    const std::string& List(int index) const { return rows_.Row(index); }
    void AddItem(const std::string& row) { rows_.Add(row); }
    /// The text stays, also when its row goes.
    void RemoveItem(int index) { rows_.Remove(index); }
    /// Empties the list and the text, without an event.
    void Clear();
    int ListIndex() const { return rows_.Chosen(); }
    /// Another index raises `Click`. -1 chooses none and empties the text. An index outside the list is
    /// passed over.
    void SetListIndex(int index);
    const std::string& Text() const { return text_; }
    /// The first line of a text of several.
    void SetText(const std::string& text);

    Event<> Change;

    /// The user's choice of a row, also of the chosen one.
    void UserPicks(int index);
    /// The user types one character behind the text; a control character types nothing.
    void UserTypes(std::string_view character);
    /// The user's editing made the text what it now is; of what it put in, the first line is taken.
    void UserEdits(const std::string& text);
    /// Up and down step through the rows.
    void KeyPressed(int code, int shift) override;
    bool WantsKey(int, int) const override { return true; }
    bool PassesEnterOn() const override { return true; }

    const RowList& Rows() const { return rows_; }
    void VisitProperties(PropertyVisitor& visitor) override;
    void VisitEvents(EventVisitor& visitor) override;

protected:
    /// A click into the field places the caret; `Click` is the choice of a row.
    void Clicked() override {}

private:
    void Choose(int index);

    RowList rows_;
    std::string text_;
};

}  // namespace coinlet
