#!/usr/bin/env bash
# Each floor includes only the floors it may use, and Qt only where windows, fonts and codecs are.
set -euo pipefail
cd "$1/src"

declare -A may_use=(
    [base]="base"
    [launch]="base launch"
    [surface]="base surface"
    [controls]="base surface controls"
    [core]="base surface controls core"
    [tools]="base surface controls core filters colour tools"
    [filters]="base surface controls core filters"
    [designers]="base surface controls core designers"
    [libraries]="base surface controls core libraries filters"
    [store]="base surface controls core store"
    [collection]="base surface controls core collection"
    [colour]="base surface controls core colour"
    [app]="base surface controls core tools filters designers libraries store collection colour app"
    [media]="base surface media"
    [shell]="base surface controls shell"
)
declare -A may_use_qt=([media]=yes [shell]=yes)

faults=0
complain() { echo "$1"; faults=$((faults + 1)); }

for folder in */; do
    floor=${folder%/}
    if [ -z "${may_use[$floor]+told}" ]; then complain "src/$floor: a folder that no floor is named for"; continue; fi
    while IFS=: read -r file line target; do
        used=${target%%/*}
        case " ${may_use[$floor]} " in
            *" $used "*) ;;
            *) complain "src/$file:$line: $floor may not include $target" ;;
        esac
    done < <(grep -rnoP '^\s*#\s*include\s*"\K[^"]+' "$floor" --include='*.h' --include='*.cpp' || true)
    if [ -z "${may_use_qt[$floor]+told}" ]; then
        while IFS= read -r hit; do complain "src/$hit: no Qt on this floor"; done \
            < <(grep -rnP '^\s*#\s*include\s*<Q' "$floor" || true)
    fi
done
if [ "$faults" -gt 0 ]; then echo "$faults faults"; exit 1; fi
