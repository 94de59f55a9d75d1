#pragma once

#include "controls/element.h"

#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

/// An entry of a menu, or a menu: what has entries of its own opens them and raises nothing. An entry with
/// the caption "-" is a rule between groups. A menu that isn't visible isn't in the menu bar and can be
/// popped up.
class MenuItem : public Element {
public:
    /// A menu of the form.
    MenuItem(Form& form, std::string_view name, std::string_view caption, int index = noIndex);
    /// An entry of another menu.
    MenuItem(MenuItem& parent, std::string_view name, std::string_view caption, int index = noIndex);
    /// For arrays; captions follow.
    MenuItem(MenuItem& parent, std::string_view name, int index);
    ~MenuItem() override;

    std::string Caption;
    bool Checked = false;
    bool Enabled = true;
    bool Visible = true;
    /// A standard key such as "Ctrl+N", or nothing. It never acts while a field that wants it has the focus.
    std::string Shortcut;

    Event<> Click;

    MenuItem* Parent() const { return parent_; }
    const std::vector<MenuItem*>& Entries() const { return entries_; }
    bool IsSeparator() const { return Caption == "-"; }
    /// The user can choose it: it is enabled, no rule and no menu, and so is all that it lies in. A popup
    /// menu itself need not be visible for that.
    bool CanBeChosen() const;

    void VisitProperties(PropertyVisitor& visitor) override;
    void VisitEvents(EventVisitor& visitor) override;

private:
    MenuItem* parent_ = nullptr;
    std::vector<MenuItem*> entries_;
};

}  // namespace coinlet
