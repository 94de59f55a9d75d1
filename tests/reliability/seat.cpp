#include "seat.h"

#include "base/numbers.h"

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

namespace coinlet::test {

namespace {

using namespace std::chrono_literals;

constexpr std::uint32_t enterKey = 0xFF0D, controlKey = 0xFFE3, rightKey = 0xFF53, downKey = 0xFF54;
const std::string searchPath = "PATH=/usr/local/bin:/usr/bin:/bin";
constexpr std::uint32_t white = 0xFFFFFF;

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using Owned = std::unique_ptr<Reply, Free>;

/// Starts a command whose input and output lie nowhere; `third`, if there is one, is its file 3.
pid_t Spawn(const std::vector<std::string>& command, const std::vector<std::string>& environment,
            int third = -1) {
    const auto pointers = [](const std::vector<std::string>& texts) {
        std::vector<char*> words;
        words.reserve(texts.size() + 1);
        for (const std::string& text : texts)
            words.push_back(const_cast<char*>(text.c_str()));
        words.push_back(nullptr);
        return words;
    };
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    for (const int file : {0, 1, 2})
        posix_spawn_file_actions_addopen(&files, file, "/dev/null", O_RDWR, 0);
    if (third >= 0) posix_spawn_file_actions_adddup2(&files, third, 3);
    pid_t child = -1;
    const int error = ::posix_spawnp(&child, command.front().c_str(), &files, nullptr,
                                     pointers(command).data(), pointers(environment).data());
    posix_spawn_file_actions_destroy(&files);
    if (error != 0) throw std::runtime_error("can't start " + command.front());
    return child;
}

}  // namespace

void WaitFor(const std::function<bool()>& condition, const std::string& what) {
    const auto end = std::chrono::steady_clock::now() + 60s;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) throw std::runtime_error("there is no " + what);
        std::this_thread::sleep_for(2ms);
    }
}

Seat::Seat(fs::path program, fs::path folder) : program_(std::move(program)), folder_(std::move(folder)) {
    fs::create_directories(Pictures());
    StartScreen();
}

Seat::~Seat() {
    Kill();
    if (connection_) xcb_disconnect(connection_);
    if (server_ > 0) {
        ::kill(server_, SIGTERM);
        ::waitpid(server_, nullptr, 0);
    }
}

void Seat::StartScreen() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    // The window of the program and nothing beside it.
    server_ =
        Spawn({"Xvfb", "-displayfd", "3", "-screen", "0", "1110x740x24", "-nolisten", "tcp", "-noreset"},
              {searchPath}, ends[1]);
    ::close(ends[1]);
    char letter = 0;
    display_ = ":";
    while (::read(ends[0], &letter, 1) == 1 && letter != '\n')
        display_ += letter;
    ::close(ends[0]);
    connection_ = xcb_connect(display_.c_str(), nullptr);
    if (xcb_connection_has_error(connection_) != 0) throw std::runtime_error("no screen");
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
}

void Seat::Start() {
    MoveAway();
    WaitFor([&] { return Windows().empty(); }, "empty screen");
    process_ = Spawn({program_.string(), "--folder", Application().string()},
                     {searchPath, "DISPLAY=" + display_, "HOME=" + (folder_ / "home").string(),
                      "QT_QPA_PLATFORM=xcb", "QT_QPA_PLATFORMTHEME=none", "LC_ALL=C.UTF-8"});
    WaitFor(
        [&] {
            const auto windows = Windows();
            if (windows.size() != 1) return false;
            main_ = windows.front();
            return ColourAt(PlaceOf(form_.Pic, 250, 250)) == white;
        },
        "canvas");
    Front(1);
}

void Seat::Send(int signal) const {
    if (::kill(process_, signal) != 0) throw std::runtime_error("the program is gone");
}

void Seat::Kill() {
    if (process_ < 0) return;
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
    process_ = -1;
}

void Seat::Fake(std::uint8_t type, std::uint8_t detail, int x, int y) const {
    xcb_test_fake_input(connection_, type, detail, XCB_CURRENT_TIME, root_, static_cast<std::int16_t>(x),
                        static_cast<std::int16_t>(y), 0);
    xcb_flush(connection_);
}

void Seat::MoveTo(int x, int y) const {
    Fake(XCB_MOTION_NOTIFY, 0, x, y);
}
void Seat::Press() const {
    Fake(XCB_BUTTON_PRESS, 1);
}
void Seat::Release() const {
    Fake(XCB_BUTTON_RELEASE, 1);
    const Owned<xcb_get_input_focus_reply_t> answered(
        xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
}
void Seat::ClickAt(int x, int y) const {
    MoveTo(x, y);
    Press();
    Release();
}

std::uint8_t Seat::CodeOf(std::uint32_t keysym) const {
    const xcb_setup_t* setup = xcb_get_setup(connection_);
    const int first = setup->min_keycode, count = setup->max_keycode - first + 1;
    const Owned<xcb_get_keyboard_mapping_reply_t> mapping(
        xcb_get_keyboard_mapping_reply(connection_,
                                       xcb_get_keyboard_mapping(connection_, static_cast<std::uint8_t>(first),
                                                                static_cast<std::uint8_t>(count)),
                                       nullptr));
    if (!mapping) throw std::runtime_error("no keyboard");
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
    const std::ptrdiff_t symbolsOfAKey = mapping->keysyms_per_keycode;
    for (int code = 0; code < count; ++code) {
        if (symbols[code * symbolsOfAKey] == keysym) return static_cast<std::uint8_t>(first + code);
    }
    throw std::runtime_error("no such key");
}

void Seat::Key(std::uint32_t keysym) const {
    const std::uint8_t code = CodeOf(keysym);
    Fake(XCB_KEY_PRESS, code);
    Fake(XCB_KEY_RELEASE, code);
}
void Seat::KeyWithControl(std::uint32_t keysym) const {
    Fake(XCB_KEY_PRESS, CodeOf(controlKey));
    Key(keysym);
    Fake(XCB_KEY_RELEASE, CodeOf(controlKey));
}
void Seat::Type(std::string_view letters) const {
    for (const char letter : letters)
        Key(static_cast<std::uint32_t>(letter));
}

void Seat::ChooseByKeys(int menu, int entry) const {
    // Into the first title of the menu bar; from there by keys.
    ClickAt(main_.x + 16, main_.y + 8);
    WaitFor([&] { return Windows().size() == 2; }, "menu");
    for (int i = 0; i < menu; ++i)
        Key(rightKey);
    // A menu that is opened by a key has its first entry chosen.
    for (int i = 0; i < (menu == 0 ? entry + 1 : entry); ++i)
        Key(downKey);
    Key(enterKey);
    MoveAway();
}

void Seat::ChooseByKeys(const MenuItem& entry) const {
    int menu = 0;
    for (const Element* const element : form_.Elements()) {
        const auto* const one = dynamic_cast<const MenuItem*>(element);
        if (one == entry.Parent()) break;
        if (one && !one->Parent() && one->Visible) ++menu;
    }
    const auto& entries = entry.Parent()->Entries();
    const auto before = std::ranges::count_if(
        entries.begin(), std::ranges::find(entries, &entry),
        [](const MenuItem* one) { return one->Visible && one->Enabled && !one->IsSeparator(); });
    ChooseByKeys(menu, static_cast<int>(before));
}

std::vector<Seat::Window> Seat::Windows() const {
    std::vector<Window> shown;
    const Owned<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection_, xcb_query_tree(connection_, root_), nullptr));
    if (!tree) throw std::runtime_error("the screen is gone");
    const xcb_window_t* windows = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const Owned<xcb_get_window_attributes_reply_t> state(xcb_get_window_attributes_reply(
            connection_, xcb_get_window_attributes(connection_, windows[i]), nullptr));
        const Owned<xcb_get_geometry_reply_t> place(
            xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, windows[i]), nullptr));
        if (!state || !place || state->map_state != XCB_MAP_STATE_VIEWABLE) continue;
        if (state->_class != XCB_WINDOW_CLASS_INPUT_OUTPUT) continue;
        shown.push_back({windows[i], place->x, place->y, place->width, place->height});
    }
    return shown;
}

Seat::Window Seat::Front(std::size_t windows) const {
    Window front;
    WaitFor(
        [&] {
            const auto shown = Windows();
            if (shown.size() != windows) return false;
            front = shown.back();
            const Owned<xcb_get_input_focus_reply_t> focus(
                xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
            return focus && focus->focus == front.id;
        },
        "window number " + std::to_string(windows) + " with the keys");
    return front;
}

Seat::Place Seat::PlaceOf(const Control& control, int x, int y) const {
    const int formHeight = RoundHalfEven(form_.Height / form_.ChildUnitsPerPixel());
    Place place{main_.x + x, main_.y + main_.height - formHeight + y};
    for (const auto* part = &control; part != nullptr;) {
        const Container& parent = part->Parent();
        place.x += RoundHalfEven(part->Left() / parent.ChildUnitsPerPixel());
        place.y += RoundHalfEven(part->Top() / parent.ChildUnitsPerPixel());
        part = dynamic_cast<const Control*>(&parent);
    }
    return place;
}

std::uint32_t Seat::ColourAt(Place place) const {
    const Owned<xcb_get_image_reply_t> image(xcb_get_image_reply(
        connection_,
        xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, root_, static_cast<std::int16_t>(place.x),
                      static_cast<std::int16_t>(place.y), 1, 1, ~0U),
        nullptr));
    if (!image) return 0;
    const std::uint8_t* bytes = xcb_get_image_data(image.get());
    return static_cast<std::uint32_t>(bytes[0] | bytes[1] << 8 | bytes[2] << 16);
}

}  // namespace coinlet::test
