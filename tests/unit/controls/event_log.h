#pragma once

#include "controls/control.h"

#include <string>
#include <utility>
#include <vector>

namespace coinlet::test {

/// What was raised, oldest first, as "name.Event" with its numbers behind it.
class EventLog {
public:
    void Add(std::string line) { lines_.push_back(std::move(line)); }
    /// What came since the last call.
    std::vector<std::string> Take() { return std::exchange(lines_, {}); }

    /// Writes down an event of a control.
    template <class EventMember, class T>
    void Listen(T& control, EventMember event, const std::string& name) {
        control.*event = [this, line = std::string(control.Name()) + "." + name](auto... arguments) {
            lines_.push_back((line + ... + (" " + Number(static_cast<double>(arguments)))));
        };
    }
    /// Writes down all events that every control has, but for the moves of the pointer.
    void ListenToAll(Control& control) {
        Listen(control, &Control::Click, "Click");
        Listen(control, &Control::MouseDown, "MouseDown");
        Listen(control, &Control::MouseUp, "MouseUp");
        Listen(control, &Control::KeyDown, "KeyDown");
        Listen(control, &Control::KeyPress, "KeyPress");
        Listen(control, &Control::KeyUp, "KeyUp");
        Listen(control, &Control::GotFocus, "GotFocus");
        Listen(control, &Control::LostFocus, "LostFocus");
    }

private:
    static std::string Number(double value) {
        std::string text = std::to_string(value);
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') text.pop_back();
        return text;
    }

    std::vector<std::string> lines_;
};

using Lines = std::vector<std::string>;

}  // namespace coinlet::test
