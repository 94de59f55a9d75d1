#!/usr/bin/env bash
# clang-tidy has nothing to say about any source of the program and of its player. (Tests hold to it too, but
# their macros take it half a minute a file: name them on the command line to have them read.) A file that passed
# and hasn't changed since, nor any header or setting, isn't read again.
#   tidy.sh TREE BUILD [FILE...]
set -euo pipefail
cd "$1"
passed="$2/tidy-passed"
mkdir -p "$passed"
common=$(cat .clang-tidy $(find src dev -name '*.h' | sort) | sha256sum | cut -c1-16)
export passed common build="$2"

check() {
    stamp="$passed/$( { echo "$common"; cat "$1"; echo "$1"; } | sha256sum | cut -c1-32)"
    [ -e "$stamp" ] && exit 0
    # Its own compiler warnings are of no interest here: the build has stricter ones.
    if clang-tidy -p "$build" --quiet --extra-arg=-Wno-unknown-warning-option "$1" 2>/dev/null; then touch "$stamp"; else echo "$1: see above"; exit 1; fi
}
export -f check
shift 2
if [ $# -eq 0 ]; then set -- $(find src dev -name '*.cpp' | sort); fi
printf '%s\n' "$@" | xargs -P "$(nproc)" -I{} bash -c 'check {}'
