#pragma once

#include "controls/control.h"
#include "controls/house_colours.h"
#include "controls/timer.h"
#include "controls/type_ahead.h"
#include "surface/colour.h"
#include "surface/font_properties.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace coinlet {

/// Rows of text with one choice; what list boxes and combo boxes share.
class RowList {
public:
    explicit RowList(bool sorted = false) : sorted_(sorted) {}

    int Count() const { return static_cast<int>(rows_.size()); }
    /// Row `index`, or an empty text outside the list.
    const std::string& Row(int index) const;
    bool Contains(int index) const { return index >= 0 && index < Count(); }
    /// Appends a row, or puts it in its place in a sorted list. The chosen row stays the chosen one.
    void Add(const std::string& row);
    /// Replaces a row where it stands; in a sorted list it goes to the place of its new text. The chosen row
    /// stays the chosen one. An index outside the list is passed over.
    void Replace(int index, std::string row);
    /// Removes a row; if it was the chosen one, none is. An index outside the list is passed over.
    void Remove(int index);
    void Clear();
    /// The first row with exactly that text, or -1.
    int Find(std::string_view row) const;

    /// The index of the chosen row, or -1.
    int Chosen() const { return chosen_; }
    /// Chooses a row; -1, or an index outside the list, chooses none. True if that is another choice.
    bool Choose(int index);

    bool Sorted() const { return sorted_; }
    void SetSorted(bool sorted) { sorted_ = sorted; }
    /// Grows with every change of the rows; a shell fills its list again only then.
    std::uint64_t Revision() const { return revision_; }

private:
    /// Where a row belongs in a sorted list: behind its equals.
    int PlaceOf(const std::string& row) const;

    std::vector<std::string> rows_;
    bool sorted_;
    int chosen_ = -1;
    std::uint64_t revision_ = 0;
};

/// A list with one row chosen, or none (-1). Another `ListIndex`, by the user or in code, raises `Click`;
/// the user's click on the chosen row raises it again; removing rows and clearing raise nothing. Letters that
/// the user types lead to a row (see TypeAhead).
class ListBox : public Control, public FontProperties {
public:
    ListBox(Container& container, std::string_view name, int index = noIndex);

    Colour ForeColor = fieldTextColour;
    Colour BackColor = fieldColour;
    /// Rows stand in order, without regard to case. To be set before rows are added.
    void SetSorted(bool sorted) { rows_.SetSorted(sorted); }

    int ListCount() const { return rows_.Count(); }
    /// Row `index`, or an empty text outside the list.
    const std::string& List(int index) const { return rows_.Row(index); }
    /// The assignments pass over an index outside the list.
    void SetList(int index, const std::string& row) { rows_.Replace(index, row); }
    void AddItem(const std::string& row) { rows_.Add(row); }
    void RemoveItem(int index) { rows_.Remove(index); }
    void Clear() { rows_.Clear(); }
    int ListIndex() const { return rows_.Chosen(); }
    /// -1 chooses none.
    void SetListIndex(int index);
    /// The chosen row, or an empty text.
    const std::string& Text() const { return rows_.Row(rows_.Chosen()); }

    /// A double click, or Enter, on the chosen row.
    Event<> DblClick;

    /// The user's click on a row, also on the chosen one. An index outside the list does nothing.
    void UserPicks(int index);
    /// The user's double click, or Enter, on the chosen row.
    virtual void UserActivates();
    /// The height of a row, in pixels.
    int RowPixels() const;
    /// How many whole rows are seen at once; at least 1.
    int VisibleRows() const;

    /// Arrows, page keys, Home and End move the choice, the page keys by the rows that are seen; Enter
    /// activates it.
    void KeyPressed(int code, int shift) override;
    void CharacterTyped(int character) override;
    void FocusLost() override;
    /// Runs from the first letter that the user types until a pause ends them; else there is none.
    Timer* TypingTimer() const { return typing_.get(); }
    bool WantsKey(int code, int shift) const override;
    /// A list that does something on Enter keeps the key.
    bool PassesEnterOn() const override { return !DblClick; }

    const RowList& Rows() const { return rows_; }
    void VisitProperties(PropertyVisitor& visitor) override;
    void VisitEvents(EventVisitor& visitor) override;

protected:
    /// Tells of a choice; `another` is false if the row was the chosen one already.
    virtual void RowChosen(bool another);
    /// A click into the list is a choice of a row, which comes as such.
    void Clicked() override {}
    /// Puts the choice on a row, or on none, without an event.
    void ChooseSilently(int index) { rows_.Choose(index); }

private:
    void EndTyping();

    RowList rows_;
    TypeAhead typed_;
    std::unique_ptr<Timer> typing_;
};

/// The width of the frame around the rows of a list, in pixels.
constexpr int listFrame = 1;

/// The row that a key leads to from row `current` (-1: none) of `count`, of which `page` are seen at once;
/// `current` for other keys.
int RowAfterKey(int code, int current, int count, int page);

/// The number of rows, and each row as a property of its own, `List(i)`; `set` is empty for rows that can
/// only be read.
void VisitRows(PropertyVisitor& visitor, const RowList& rows,
               const std::function<void(int, const std::string&)>& set);

}  // namespace coinlet
