#!/usr/bin/env bash
# Makes a package of the release build, in its folder packages/, and prints its path:
#   dev/package.sh deb           a Debian package, which installs the program for all users of a machine
#   dev/package.sh tar           the application folder as one file, to be unpacked and used anywhere
#   dev/package.sh deb|tar BUILD  the same from a build that is ready, into BUILD/packages/
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
kind=${1:-}
case "$kind" in
    deb | tar) ;;
    *) sed -n '2,5s/^# //p' "$0" >&2; exit 2 ;;
esac

build=${2:-build/release}
if [ $# -lt 2 ]; then
    dev/setup.sh package
    cmake --preset release >/dev/null
    cmake --build --preset release --target coinlet-designer >&2
fi
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' $build/CMakeCache.txt)
architecture=$(dpkg --print-architecture)
packages=$build/packages
mkdir -p $packages
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
# One time for all files, so that the same sources make the same package.
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || date +%s)}
settle_times() { find "$1" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +; }

if [ "$kind" = tar ]; then
    root=$stage/coinlet-designer
    cp -r $build/coinlet-designer "$root"
    # What a trial run left there is no part of it.
    rm -f "$root/Coinlet.ini"
    cp README.md LICENSE "$root"
    strip "$root/coinlet-designer"
    settle_times "$root"
    package=$packages/coinlet-designer-$version-$architecture.tar.xz
    tar --directory="$stage" --sort=name --owner=0 --group=0 --numeric-owner --xz --create \
        --file="$package" coinlet-designer
    echo "$package"
    exit 0
fi

root=$stage/debian/coinlet-designer
DESTDIR=$root cmake --install $build --prefix /usr --strip >/dev/null
documents=$root/usr/share/doc/coinlet-designer
install -Dm644 packaging/debian/copyright "$documents/copyright"
install -Dm644 packaging/debian/changelog "$documents/changelog"
# Their licence stands in the copyright file, as in every package.
rm "$root/usr/share/coinlet-designer/Fonts/LICENCE.txt"
gzip -9n "$documents/changelog" "$root"/usr/share/man/man1/*
find "$root" -type d -exec chmod 755 {} +
find "$root" -type f ! -path '*/bin/*' -exec chmod 644 {} +

mkdir "$root/DEBIAN"
# The tool that finds the libraries wants to stand in a source package.
: >"$stage/debian/control"
depends=$(cd "$stage" && dpkg-shlibdeps -O -e"$root/usr/bin/coinlet-designer" | sed -n 's/^shlibs:Depends=//p')
fonts=$(paste -sd, dev/display_fonts.txt | sed 's/,/, /g')
sed -e "s/@VERSION@/$version/" -e "s/@ARCHITECTURE@/$architecture/" -e "s/@DEPENDS@/$depends/" \
    -e "s/@FONTS@/$fonts/" -e "s/@INSTALLED_SIZE@/$(du -sk "$root/usr" | cut -f1)/" \
    packaging/debian/control.in >"$root/DEBIAN/control"
(cd "$root" && find usr -type f -print0 | sort -z | xargs -0 md5sum) >"$root/DEBIAN/md5sums"
settle_times "$root"
package=$packages/coinlet-designer_${version}_$architecture.deb
dpkg-deb --root-owner-group -Zxz --build "$root" "$package" >/dev/null
echo "$package"
