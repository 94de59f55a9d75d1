#pragma once

#include <concepts>
#include <functional>
#include <span>
#include <string_view>
#include <utility>

namespace coinlet {

/// A place for one handler. An event without a handler is raised into the void.
template <class... Arguments>
class Event {
public:
    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    /// Sets the handler; it replaces an earlier one.
    template <class Handler>
    requires std::invocable<Handler&, Arguments...> Event& operator=(Handler handler) {
        handler_ = std::move(handler);
        return *this;
    }

    /// Runs a copy of the handler: it may replace itself, or remove the control that the event belongs to.
    void operator()(Arguments... arguments) const {
        if (!handler_) return;
        const auto handler = handler_;
        handler(std::forward<Arguments>(arguments)...);
    }
    explicit operator bool() const { return static_cast<bool>(handler_); }

private:
    std::function<void(Arguments...)> handler_;
};

/// Press, move and release of the pointer: button (1 left, 2 right, 4 middle, 0 none), shift state (1 shift,
/// 2 control, 4 alt, added), and the place: in the units of a picture's scale, or in pixels from another
/// control's corner.
using PointerEvent = Event<int, int, float, float>;
/// Key down and key up: key code and shift state. The codes of letters and digits are those of their
/// capitals.
using KeyEvent = Event<int, int>;

/// Key codes that the program itself knows.
constexpr int keyBackspace = 8;
constexpr int keyReturn = 13;
constexpr int keyShift = 16;
constexpr int keyEscape = 27;
constexpr int keySpace = 32;
constexpr int keyPageUp = 33, keyPageDown = 34, keyEnd = 35, keyHome = 36;
constexpr int keyLeft = 37, keyUp = 38, keyRight = 39, keyDown = 40;
constexpr int keyF10 = 121;

constexpr bool IsStepKey(int code) {
    return code >= keyPageUp && code <= keyDown;
}
/// The shift state of a key or pointer event, added up.
constexpr int shiftHeld = 1, controlHeld = 2, altHeld = 4;
/// True unless a key is held that makes a command of every other one.
constexpr bool IsPlainKey(int shift) {
    return (shift & (controlHeld | altHeld)) == 0;
}

/// An event by its name, to be raised from outside: `raise` takes `arguments` numbers (missing ones are 0).
struct NamedEvent {
    std::string_view name;
    int arguments = 0;
    std::function<void(std::span<const double>)> raise;
};

class EventVisitor {
public:
    virtual ~EventVisitor() = default;
    virtual void Visit(const NamedEvent& event) = 0;
};

void VisitEvent(EventVisitor& visitor, std::string_view name, const Event<>& event);
void VisitEvent(EventVisitor& visitor, std::string_view name, const Event<int>& event);
void VisitEvent(EventVisitor& visitor, std::string_view name, const KeyEvent& event);
void VisitEvent(EventVisitor& visitor, std::string_view name, const PointerEvent& event);

}  // namespace coinlet
