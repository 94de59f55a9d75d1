#include "screen.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <xcb/xcb.h>

namespace coinlet::test {

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <class Reply>
using Owned = std::unique_ptr<Reply, Free>;

}  // namespace

Screen::Screen() : connection_(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(connection_) != 0) throw std::runtime_error("no display");
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
}

Screen::~Screen() {
    xcb_disconnect(connection_);
}

std::uint32_t Screen::Atom(const std::string& name) const {
    const auto cookie =
        xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_, cookie, nullptr));
    return reply ? reply->atom : 0;
}

std::vector<OpenWindow> Screen::Windows() const {
    std::vector<OpenWindow> shown;
    const Owned<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection_, xcb_query_tree(connection_, root_), nullptr));
    if (!tree) return shown;
    const xcb_window_t* windows = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const Owned<xcb_get_window_attributes_reply_t> state(xcb_get_window_attributes_reply(
            connection_, xcb_get_window_attributes(connection_, windows[i]), nullptr));
        const Owned<xcb_get_geometry_reply_t> place(
            xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, windows[i]), nullptr));
        if (!state || !place || state->map_state != XCB_MAP_STATE_VIEWABLE) continue;
        if (state->_class != XCB_WINDOW_CLASS_INPUT_OUTPUT) continue;
        shown.push_back({windows[i], QRect(place->x, place->y, place->width, place->height)});
    }
    return shown;
}

std::string Screen::TitleOf(const OpenWindow& window) const {
    constexpr std::uint32_t longest = 1024;
    const Owned<xcb_get_property_reply_t> title(xcb_get_property_reply(
        connection_,
        xcb_get_property(connection_, 0, window.id, Atom("_NET_WM_NAME"), Atom("UTF8_STRING"), 0, longest),
        nullptr));
    if (!title) return {};
    return {static_cast<const char*>(xcb_get_property_value(title.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(title.get()))};
}

QPoint Screen::Pointer() const {
    const Owned<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(connection_, xcb_query_pointer(connection_, root_), nullptr));
    return reply ? QPoint(reply->root_x, reply->root_y) : QPoint();
}

bool Screen::HasTheKeys(const OpenWindow& window) const {
    const Owned<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
    return focus && focus->focus == window.id;
}

void Screen::AskToClose(const OpenWindow& window) const {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window.id;
    message.type = Atom("WM_PROTOCOLS");
    message.data.data32[0] = Atom("WM_DELETE_WINDOW");
    message.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(connection_, 0, window.id, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection_);
}

QImage Screen::Grab(const QRect& part) {
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, part.x(), part.y(), part.width(), part.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

}  // namespace coinlet::test
