#include "shell/x11_busy_sign.h"

#include <QGuiApplication>
#include <QWindow>

#include <cstdlib>
#include <memory>
#include <string>
#include <utility>
#include <xcb/xcb.h>
#include <xcb/xcb_cursor.h>

// The library's own header has macros of very common names.
extern "C" char* XDisplayString(Display* display);

namespace coinlet {

namespace {

struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
struct FreeCursors {
    void operator()(xcb_cursor_context_t* cursors) const { xcb_cursor_context_free(cursors); }
};

BusySign::Windows OwnWindows() {
    BusySign::Windows own;
    for (const QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->handle() && window->isVisible())
            own.push_back(static_cast<std::uint32_t>(window->winId()));
    }
    return own;
}

xcb_screen_t* ScreenOf(xcb_connection_t* connection, int number) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screens.rem > 1 && number > 0; --number)
        xcb_screen_next(&screens);
    return screens.data;
}

/// The pointer on the program's windows, by a connection of its own: the toolkit's is the business of the
/// toolkit's thread.
class WaitPointer {
public:
    explicit WaitPointer(std::string display) : display_(std::move(display)) {}

    /// Without a server that answers nothing happens.
    void Show(const BusySign::Windows& on) {
        if (!connection_ && !Load()) return;
        for (const xcb_window_t window : on)
            xcb_change_window_attributes(connection_.get(), window, XCB_CW_CURSOR, &pointer_);
        // What the toolkit asks for from now on comes later than this.
        std::free(
            xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
    }

    void TakeOff() {
        // The toolkit gives each window the pointer that it is to have, whatever it has.
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        QGuiApplication::restoreOverrideCursor();
        // Not earlier: a server may refuse to show others a pointer whose owner has gone.
        connection_.reset();
    }

private:
    /// The one that the toolkit shows for an hourglass, of the desktop's theme.
    bool Load() {
        int number = 0;
        std::unique_ptr<xcb_connection_t, Disconnect> server(xcb_connect(display_.c_str(), &number));
        if (xcb_connection_has_error(server.get()) != 0) return false;
        xcb_cursor_context_t* loaded = nullptr;
        if (xcb_cursor_context_new(server.get(), ScreenOf(server.get(), number), &loaded) < 0) return false;
        const std::unique_ptr<xcb_cursor_context_t, FreeCursors> cursors(loaded);
        for (const char* name : {"wait", "watch"}) {
            pointer_ = xcb_cursor_load_cursor(cursors.get(), name);
            if (pointer_ == XCB_CURSOR_NONE) continue;
            connection_ = std::move(server);
            return true;
        }
        return false;
    }

    std::string display_;
    std::unique_ptr<xcb_connection_t, Disconnect> connection_;  ///< While the pointer is shown.
    xcb_cursor_t pointer_ = XCB_CURSOR_NONE;
};

}  // namespace

BusySign X11BusySign() {
    const auto* server = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!server || !server->display()) return {};
    const auto pointer = std::make_shared<WaitPointer>(XDisplayString(server->display()));
    return {.windows = OwnWindows,
            .show = [pointer](const BusySign::Windows& on) { pointer->Show(on); },
            .takeOff = [pointer] { pointer->TakeOff(); }};
}

}  // namespace coinlet
