#include "controls/element.h"

#include "controls/form.h"

namespace coinlet {

Element::Element(Form& form, std::string_view name, int index) : form_(&form), name_(name), index_(index) {
    form.elements_.push_back(this);
    ++form.elementRevision_;
}

Element::~Element() {
    std::erase(form_->elements_, this);
    ++form_->elementRevision_;
}

void Element::VisitProperties(PropertyVisitor& visitor) {
    VisitReadOnly(visitor, "Name", PropertyKind::Text, [this] { return std::string(name_); });
    if (index_ != noIndex) VisitReadOnly(visitor, "Index", PropertyKind::Number, [this] { return index_; });
    VisitField(visitor, "Tag", Tag);
}

void Element::VisitEvents(EventVisitor&) {}

}  // namespace coinlet
