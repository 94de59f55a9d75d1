#include "shell/screen_choice.h"

#include <QByteArray>

#include <algorithm>
#include <span>
#include <string_view>
#include <xcb/xcb.h>

namespace coinlet {

namespace {

/// True if the user tells the toolkit where its windows are to be. Its options have one dash or two.
bool ChoosesByOption(std::string_view argument) {
    constexpr std::string_view options[] = {"-platform", "-display"};
    if (argument.starts_with("--")) argument.remove_prefix(1);
    return std::ranges::find(options, argument) != std::end(options);
}

bool IsOnWayland() {
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland";
}

bool ServerAnswers() {
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

}  // namespace

bool FindsScreen(int argc, char** argv) {
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || IsOnWayland()) return true;
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    return std::ranges::any_of(arguments, ChoosesByOption) || ServerAnswers();
}

}  // namespace coinlet
