#include "controls/menu.h"

#include "controls/form.h"
#include "controls/menu_letters.h"

#include <algorithm>

namespace coinlet {

MenuItem::MenuItem(Form& form, std::string_view name, std::string_view caption, int index)
    : Element(form, name, index), Caption(caption) {
    form.menus_.push_back(this);
}

MenuItem::MenuItem(MenuItem& parent, std::string_view name, std::string_view caption, int index)
    : Element(parent.OwnerForm(), name, index), Caption(caption), parent_(&parent) {
    parent.entries_.push_back(this);
}

MenuItem::MenuItem(MenuItem& parent, std::string_view name, int index)
    : MenuItem(parent, name, std::string_view{}, index) {}

MenuItem::~MenuItem() {
    std::erase(parent_ ? parent_->entries_ : OwnerForm().menus_, this);
    for (MenuItem* entry : entries_) {
        entry->parent_ = nullptr;
    }
}

bool MenuItem::CanBeChosen() const {
    if (!entries_.empty() || IsSeparator()) return false;
    for (const MenuItem* item = this; item; item = item->parent_) {
        const bool popsUp = !item->parent_ && item != this;
        if (!item->Enabled || !(item->Visible || popsUp)) return false;
    }
    return true;
}

void MenuItem::VisitProperties(PropertyVisitor& visitor) {
    Element::VisitProperties(visitor);
    VisitField(visitor, "Caption", Caption);
    VisitReadOnly(visitor, "Letter", PropertyKind::Text, [this] {
        const auto& menu = parent_ ? parent_->entries_ : OwnerForm().Menus();
        const auto place = static_cast<std::size_t>(std::ranges::find(menu, this) - menu.begin());
        return MenuLetters(menu)[place].letter;
    });
    VisitField(visitor, "Checked", Checked);
    VisitField(visitor, "Enabled", Enabled);
    VisitField(visitor, "Visible", Visible);
    VisitField(visitor, "Shortcut", Shortcut);
}

void MenuItem::VisitEvents(EventVisitor& visitor) {
    VisitEvent(visitor, "Click", Click);
}

}  // namespace coinlet
