#pragma once

#include "controls/event.h"
#include "controls/property.h"

#include <concepts>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace coinlet {

class Form;

/// The index of an element that is in no array.
constexpr int noIndex = -1;

/// Whatever a form is made of and can be addressed by name: controls, menu entries, timers. An element is
/// told its form when it is made and strikes itself off when it ends; both may happen at run time.
class Element {
public:
    /// `name` must outlive the element; names are literals.
    Element(Form& form, std::string_view name, int index);
    virtual ~Element();
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

    std::string_view Name() const { return name_; }
    /// Index in its array, or noIndex.
    int Index() const { return index_; }
    Form& OwnerForm() const { return *form_; }

    /// Free for whoever wants to remember something with the element.
    std::string Tag;

    virtual void VisitProperties(PropertyVisitor& visitor);
    virtual void VisitEvents(EventVisitor& visitor);

private:
    Form* form_;
    std::string_view name_;
    int index_;
};

/// Elements of one name, told apart by an index. It starts at `first`, which need not be 0.
template <std::derived_from<Element> T>
class ControlArray {
public:
    /// `further` is what a kind of element is told between its name and its index.
    template <class Parent, class... Further>
    ControlArray(Parent& parent, std::string_view name, int first, int count, Further... further)
        : first_(first) {
        for (int i = first; i < first + count; ++i)
            items_.push_back(std::make_unique<T>(parent, name, further..., i));
    }

    /// The element of that index; an index outside the array is a fault of the program and throws.
    T& operator[](int index) { return *items_.at(static_cast<std::size_t>(index - first_)); }
    const T& operator[](int index) const { return *items_.at(static_cast<std::size_t>(index - first_)); }
    int First() const { return first_; }
    int Last() const { return first_ + static_cast<int>(items_.size()) - 1; }
    bool Contains(int index) const { return index >= First() && index <= Last(); }

    /// Calls `handler(index)` from the event `event` of every element: `Bind(&VistaButton::Click, ...)`.
    template <class EventMember, class Handler>
    void Bind(EventMember event, Handler handler) {
        for (auto& item : items_) {
            (*item).*
                event = [handler, index = item->Index()](auto... arguments) { handler(index, arguments...); };
        }
    }

private:
    int first_;
    std::vector<std::unique_ptr<T>> items_;
};

}  // namespace coinlet
