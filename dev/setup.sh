#!/usr/bin/env bash
# Installs what is missing for building and running the program ("run"), also for its packages ("package"), for
# its tests ("test"), for its targets of libFuzzer ("fuzz"), or for making its pictures, fonts and manuals anew ("assets").
# Changes nothing when all is there.
set -euo pipefail

run_packages=(g++ cmake ninja-build pkg-config qt6-base-dev libturbojpeg0-dev
    libx11-dev libxcb1-dev libxcb-cursor-dev fonts-liberation)
# Fonts of many kinds for the texts on tags: the program offers what is installed.
mapfile -t display_fonts <"$(dirname "${BASH_SOURCE[0]}")/display_fonts.txt"
run_packages+=("${display_fonts[@]}")
package_packages=(dpkg-dev)
test_packages=("${package_packages[@]}" lintian appstream desktop-file-utils
    libgtest-dev libbenchmark-dev libxcb-xfixes0-dev libxcb-xtest0-dev libsm-dev xvfb xauth x11-xserver-utils xdotool
    dbus-daemon at-spi2-core poppler-utils clang-format clang-tidy)
fuzz_packages=("${test_packages[@]}" clang libclang-rt-14-dev llvm)
assets_packages=(python3 python3-pil python3-numpy python3-cairo python3-fonttools librsvg2-bin fonts-symbola
    weasyprint faketime)

packages=("${run_packages[@]}")
case "${1:-run}" in
    package) packages+=("${package_packages[@]}") ;;
    test) packages+=("${test_packages[@]}") ;;
    fuzz) packages+=("${fuzz_packages[@]}") ;;
    assets) packages+=("${test_packages[@]}" "${assets_packages[@]}") ;;
esac

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed; then
        missing+=("$package")
    fi
done
if [ ${#missing[@]} -eq 0 ]; then exit 0; fi

install=(apt-get install -y --no-install-recommends "${missing[@]}")
if [ "$(id -u)" -eq 0 ]; then
    become=()
elif command -v sudo >/dev/null && { sudo -n true 2>/dev/null || [ -t 0 ]; }; then
    become=(sudo)
else
    echo "Some packages are missing. Please have them installed, then start again:" >&2
    echo "  apt-get update && ${install[*]}" >&2
    exit 1
fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${become[@]}" apt-get update -q
"${become[@]}" "${install[@]}"
