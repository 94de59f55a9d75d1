#!/usr/bin/env bash
# check_packages.sh SOURCE BUILD
#
# The Debian package is one that its own tools have nothing to say about; the other is the application folder.
set -euo pipefail
source=$1 build=$2
faults=0
complain() { echo "$1"; faults=$((faults + 1)); }

desktop-file-validate "$source"/packaging/*.desktop || complain "desktop entry"
appstreamcli validate --no-net "$source"/packaging/*.metainfo.xml >"$build/appstream.log" 2>&1 || complain "metadata"
if grep -E '^[EW]:' "$build/appstream.log"; then complain "metadata"; fi

package=$("$source/dev/package.sh" deb "$build")
said=$(lintian --allow-root "$package" 2>&1) || complain "lintian failed"
if [ -n "$said" ]; then complain "$said"; fi
contents=$(dpkg-deb --contents "$package")
for file in usr/bin/coinlet-designer usr/share/coinlet-designer/Data/English.txt \
    usr/share/applications/coinlet-designer.desktop usr/share/man/man1/coinlet-designer.1.gz \
    usr/share/icons/hicolor/16x16/apps/coinlet-designer.png usr/share/icons/hicolor/256x256/apps/coinlet-designer.png \
    usr/share/icons/hicolor/scalable/apps/coinlet-designer.svg usr/share/coinlet-designer/Help/English.pdf; do
    grep -q " ./$file$" <<<"$contents" || complain "the package lacks $file"
done

archive=$("$source/dev/package.sh" tar "$build")
contents=$(tar --list --file="$archive")
for file in coinlet-designer Data/English.txt Help/Nederlands.pdf Ontwerpen/ Collection/ README.md LICENSE; do
    grep -qx "coinlet-designer/$file" <<<"$contents" || complain "the archive lacks $file"
done
if grep -qx "coinlet-designer/Coinlet.ini" <<<"$contents"; then complain "the archive holds somebody's settings"; fi
if [ "$faults" -gt 0 ]; then echo "$faults faults"; exit 1; fi
