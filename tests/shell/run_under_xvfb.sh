#!/bin/sh
# run_under_xvfb.sh PROGRAM [ARGUMENT...]
#
# Runs a program on a screen of its own, which nobody sees and which ends with it. The server picks a free
# display by itself, so any number of these may run at once. SCREEN_SIZE is its size, if not the usual one;
# MONITORS are the screens that it is parted into, such as "800x600+0+0 1200x600+800+0"; DARK_DESKTOP is a file of
# colours that the toolkit finds where a desktop keeps its own.
set -eu

folder=$(mktemp -d)
server=
cleanup() {
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
    [ -z "$server" ] || wait "$server" 2>/dev/null || true
    rm -rf "$folder"
}
trap cleanup EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

# The server writes its number when it is ready.
mkfifo "$folder/display"
Xvfb -displayfd 3 -screen 0 "${SCREEN_SIZE:-1400x1050}x24" -nolisten tcp -noreset 3>"$folder/display" 2>"$folder/log" &
server=$!
read -r display <"$folder/display" || { cat "$folder/log" >&2; exit 1; }

# The first of them takes the place of the one that is there.
output=screen
for monitor in ${MONITORS:-}; do
    DISPLAY=":$display" xrandr --setmonitor "$output-monitor" \
        "$(echo "$monitor" | sed -E 's,([0-9]+)x([0-9]+),\1/\1x\2/\2,')" "$output" >/dev/null
    output=none
done

# Nothing of the desktop that the tests are started on plays a part in them.
theme=none
if [ -n "${DARK_DESKTOP:-}" ]; then
    theme=kde
    cp "$DARK_DESKTOP" "$folder/kdeglobals"
    export XDG_CONFIG_HOME="$folder" XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5
fi
unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS QT_STYLE_OVERRIDE XCURSOR_THEME XCURSOR_SIZE
DISPLAY=":$display" QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=$theme XCURSOR_PATH="$folder" \
    XDG_RUNTIME_DIR="$folder" "$@"
