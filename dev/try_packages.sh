#!/usr/bin/env bash
# Tries both packages in a Debian that has nothing else: the Debian package brings what it needs, and the archive runs
# with the libraries that docs/packaging.md names. Somebody without rights starts the program, which shows its window; a
# signal ends it, and its settings are where they belong.
#   dev/try_packages.sh          makes the packages of the release build, and a fresh Debian
#   dev/try_packages.sh BUILD    from a build that is ready
# Needs root, debootstrap and some 200 MB from Debian's servers. Where they aren't to be had, the packages are unpacked and
# started on this machine instead, and the last line says so. Set COINLET_ROOT to a folder to keep the fresh Debian there
# and to find it again.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
deb=$(dev/package.sh deb "$@")
archive=$(dev/package.sh tar "$@")
libraries=(libqt6widgets6 libqt6printsupport6 libturbojpeg0 libxcb-cursor0)

work=$(mktemp -d)
screen=
cleanup() {
    [ -z "$screen" ] || kill "$screen" 2>/dev/null || true
    for root in "$work"/*; do
        # This machine's own screens hang there: they stay.
        if mountpoint -q "$root/tmp/.X11-unix"; then umount "$root/tmp/.X11-unix" || return; fi
    done
    rm -rf --one-file-system "$work"
}
trap cleanup EXIT
chmod 755 "$work"

mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1400x1050x24 -nolisten tcp -noreset 3>"$work/display" 2>/dev/null &
screen=$!
read -r number <"$work/display"
export DISPLAY=":$number"

nobody=65534
# start WHAT SETTINGS COMMAND...: from the command to its end; SETTINGS is where the program must write them.
start() {
    local what=$1 settings=$2
    shift 2
    rm -f "$settings"
    "$@" &
    local program=$! waited=0
    until [ -n "$(xdotool search --onlyvisible --name '^Coinlet Designer' 2>/dev/null || true)" ]; do
        sleep 0.1
        waited=$((waited + 1))
        if [ $waited -gt 600 ] || ! kill -0 $program 2>/dev/null; then echo "$what: no window"; exit 1; fi
    done
    kill -TERM $program
    wait $program || { echo "$what: it ended with $?"; exit 1; }
    [ -s "$settings" ] || { echo "$what: no settings at $settings"; exit 1; }
    echo "$what: it runs"
}

clean=(env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin "DISPLAY=$DISPLAY" HOME=/home/somebody LC_ALL=C.UTF-8
    QT_QPA_PLATFORM=xcb DEBIAN_FRONTEND=noninteractive)

fresh=${COINLET_ROOT:-$work/fresh}
have_fresh() {
    [ "$(id -u)" -eq 0 ] && command -v debootstrap >/dev/null || return 1
    [ ! -e "$fresh/etc/debian_version" ] || return 0
    debootstrap --variant=minbase "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$fresh" >"$work/log" 2>&1
}
# another ROOT: a copy of the fresh Debian, with a home, the screen, and what is asked of its packages after it.
another() {
    local root=$1
    shift
    cp -a "$fresh" "$root"
    cp "$deb" "$root/coinlet-designer.deb"
    mkdir -p "$root/home/somebody" "$root/tmp/.X11-unix"
    chown $nobody:$nobody "$root/home/somebody"
    mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
    "${clean[@]}" chroot "$root" apt-get install -q -y --no-install-recommends "$@" >"$work/log" 2>&1 ||
        { cat "$work/log"; exit 1; }
}

home=home/somebody/.local/share/coinlet-designer
if have_fresh; then
    root=$work/deb
    another "$root" ./coinlet-designer.deb
    start "installed" "$root/$home/Coinlet.ini" "${clean[@]}" chroot --userspec=$nobody:$nobody "$root" coinlet-designer

    root=$work/archive
    another "$root" "${libraries[@]}"
    tar --directory="$root/home/somebody" --extract --no-same-owner --file="$archive"
    # Somebody's own folder, and one that he may only read.
    cp -a "$root/home/somebody/coinlet-designer" "$root/opt"
    chown -R $nobody:$nobody "$root/home/somebody/coinlet-designer"
    start "unpacked at home" "$root/home/somebody/coinlet-designer/Coinlet.ini" \
        "${clean[@]}" chroot --userspec=$nobody:$nobody "$root" /home/somebody/coinlet-designer/coinlet-designer
    start "unpacked where nobody may write" "$root/$home/Coinlet.ini" \
        "${clean[@]}" chroot --userspec=$nobody:$nobody "$root" /opt/coinlet-designer/coinlet-designer
    echo "both packages run in a fresh Debian"
else
    become=()
    mkdir -p "$work/home/somebody"
    if [ "$(id -u)" -eq 0 ]; then
        chown -R $nobody:$nobody "$work/home"
        become=(setpriv --reuid=$nobody --regid=$nobody --clear-groups)
    fi
    dpkg-deb --extract "$deb" "$work/deb"
    tar --directory="$work/home/somebody" --extract --no-same-owner --file="$archive"
    [ "$(id -u)" -ne 0 ] || chown -R $nobody:$nobody "$work/home/somebody/coinlet-designer"
    chmod -R a+rX "$work/deb"
    here=("${clean[@]}" "HOME=$work/home/somebody" "${become[@]}")
    start "installed" "$work/$home/Coinlet.ini" "${here[@]}" "$work/deb/usr/bin/coinlet-designer"
    start "unpacked at home" "$work/home/somebody/coinlet-designer/Coinlet.ini" "${here[@]}" \
        "$work/home/somebody/coinlet-designer/coinlet-designer"
    echo "skipped: no fresh Debian is to be had here; both packages run on this machine"
fi
