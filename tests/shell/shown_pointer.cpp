#include "shown_pointer.h"

#include <cstdlib>
#include <memory>
#include <xcb/xfixes.h>

namespace coinlet::test {

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

}  // namespace

std::optional<PointerLook> ShownPointer() {
    const std::unique_ptr<xcb_connection_t, Disconnect> server(xcb_connect(nullptr, nullptr));
    // A client has to say what it speaks before it asks for anything.
    const std::unique_ptr<xcb_xfixes_query_version_reply_t, Free> version(
        xcb_xfixes_query_version_reply(server.get(), xcb_xfixes_query_version(server.get(), 1, 0), nullptr));
    const std::unique_ptr<xcb_xfixes_get_cursor_image_reply_t, Free> shown(
        xcb_xfixes_get_cursor_image_reply(server.get(), xcb_xfixes_get_cursor_image(server.get()), nullptr));
    if (!version || !shown) return {};
    const std::uint32_t* pixels = xcb_xfixes_get_cursor_image_cursor_image(shown.get());
    const int count = xcb_xfixes_get_cursor_image_cursor_image_length(shown.get());
    return PointerLook{shown->width, shown->height, shown->xhot, shown->yhot, {pixels, pixels + count}};
}

}  // namespace coinlet::test
