#!/usr/bin/env bash
# Memory that is lost, read before it was written, or used after it was given back: all unit tests, and one road from
# the empty canvas to the saved tag, under valgrind and under the sanitizers, whose leak checker looks at each end.
# What the desktop's libraries keep (tests/shell/library_leaks.supp) is passed over, and nothing else. The last line
# tells how many runs were clean; the exit status is 1 if one wasn't.
#   dev/leaks.sh [valgrind|sanitizers] [FLOOR...]
#   dev/leaks.sh valgrind base surface    the unit tests of two floors alone
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
tools=(valgrind sanitizers)
case "${1:-}" in valgrind | sanitizers) tools=("$1"); shift ;; esac
floors=("$@")
if [ $# -eq 0 ]; then
    for folder in tests/unit/*/; do floors+=("$(basename "$folder")"); done
fi
export QT_QPA_PLATFORM=offscreen
export LSAN_OPTIONS=suppressions=$PWD/tests/shell/library_leaks.supp:print_suppressions=0
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
clean=0 runs=0

# check TOOL NAME COMMAND...
check() {
    local tool=$1 name=$2 begin=$SECONDS before=()
    shift 2
    if [ "$tool" = valgrind ]; then
        before=(valgrind -q --error-exitcode=9 --leak-check=full --errors-for-leak-kinds=definite
            --num-callers=30)
    fi
    runs=$((runs + 1))
    if "${before[@]}" "$@" >"$work/output" 2>&1; then
        clean=$((clean + 1))
        echo "$tool, $name: clean, $((SECONDS - begin)) s"
    else
        echo "$tool, $name: NOT CLEAN"
        grep -vE '^(\[ +OK|\[ RUN)' "$work/output" | head -n 100
    fi
}

for tool in "${tools[@]}"; do
    preset=release
    if [ "$tool" = sanitizers ]; then preset=sanitize; fi
    if [ "$tool" = valgrind ] && ! command -v valgrind >/dev/null; then
        echo "valgrind is missing: apt-get install valgrind" >&2
        exit 2
    fi
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset" --target coinlet-play "${floors[@]/#/unit_}" >"$work/build" ||
        { tail -n 40 "$work/build"; exit 2; }
    for floor in "${floors[@]}"; do
        check "$tool" "unit tests of $floor" "build/$preset/tests/unit_$floor" --gtest_brief=1
    done
    if [ $# -eq 0 ]; then
        rm -rf "$work/app"
        cp -R data "$work/app"
        rm -rf "$work/app/Ontwerpen"
        mkdir -p "$work/app/Ontwerpen" "$work/app/Collection"
        check "$tool" "a road" "build/$preset/coinlet-play" --folder "$work/app" --out "$work/out" \
            tests/scenarios/roads/three_minutes_by_keys.play
    fi
done
echo "$clean of $runs runs clean"
[ "$clean" -eq "$runs" ]
