#!/usr/bin/env bash
# Each floor includes only floors that src/CMakeLists.txt lets it use, itself or by way of another, and Qt only
# where it is linked; and each use that a floor is granted it has, so that the list tells what there is.
#   floors.sh TREE FLOORS   FLOORS is written by the build: a line a floor, "name: used used [Qt]", from the ground up.
set -euo pipefail
cd "$1/src"

faults=0
complain() { echo "$1"; faults=$((faults + 1)); }
includes() { grep -rnoP "^\s*#\s*include\s*$2" "$1" --include='*.h' --include='*.cpp' || true; }

declare -A may_use has_qt
while IFS=: read -r floor uses; do
    may_use[$floor]=" $floor "
    for used in $uses; do
        if [ "$used" = Qt ]; then has_qt[$floor]=yes; continue; fi
        may_use[$floor]+="${may_use[$used]}"
        [ -n "$(includes "$floor" "\"$used/")" ] || complain "src/CMakeLists.txt: $floor has no use for $used"
    done
done < "$2"
[ ${#may_use[@]} -gt 0 ] || complain "$2 names no floor"

for folder in */; do
    floor=${folder%/}
    if [ -z "${may_use[$floor]+named}" ]; then complain "src/$floor: a folder that is no floor"; continue; fi
    while IFS=: read -r file line target; do
        used=${target%%/*}
        [[ ${may_use[$floor]} == *" $used "* ]] || complain "src/$file:$line: $floor may not include $target"
    done < <(includes "$floor" '"\K[^"]+')
    [ -n "${has_qt[$floor]+linked}" ] || while IFS= read -r hit; do
        complain "src/$hit: no Qt on this floor"
    done < <(includes "$floor" '<Q')
done
if [ "$faults" -gt 0 ]; then echo "$faults faults"; exit 1; fi
