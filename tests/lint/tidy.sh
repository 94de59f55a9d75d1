#!/usr/bin/env bash
# clang-tidy has nothing to say about any source of the program and of its player. (Tests hold to it too: name them on
# the command line to have them read.) A file that passed and hasn't changed since, nor any header or setting, isn't
# read again.
#   tidy.sh TREE BUILD [FILE...]
#
# Nearly all of its time goes into the headers of libraries, so sources of a folder are read as one text. Where it has
# anything to say about that, each of them is read by itself and has the last word.
set -euo pipefail
cd "$1"
build="$2"
shift 2
if [ $# -eq 0 ]; then set -- $(find src dev -name '*.cpp' | sort); fi

passed="$build/tidy-passed"
mkdir -p "$passed"
headers=$(find src dev -name '*.h' | sort)
settings=$(find . -name .clang-tidy -not -path './build/*' | sort)
common=$(cat $settings $headers | sha256sum | cut -c1-16)
# Texts stand in folders like those of their sources, with the same settings.
texts=$(mktemp -d)
trap 'rm -rf "$texts"' EXIT
cp --parents $settings "$texts"
export build passed common texts

stamp_of() { echo "$passed/$({ echo "$common"; cat "$1"; echo "$1"; } | sha256sum | cut -c1-32)"; }

# Its own compiler warnings are of no interest here: the build has stricter ones.
tidy() { clang-tidy --quiet --extra-arg=-Wno-unknown-warning-option "$@" 2>/dev/null; }

# check TEXT SOURCE...
check() {
    local text source failed=0
    text="$texts/$(dirname "$2")/$1.cpp"
    shift
    # What it has no command for, it passes.
    if [ $# -gt 1 ] && grep -qF "\"$text\"" "$texts/compile_commands.json" &&
        tidy -p "$texts" "$text" >/dev/null; then
        for source in "$@"; do touch "$(stamp_of "$source")"; done
        return
    fi
    for source in "$@"; do
        if tidy -p "$build" "$source"; then touch "$(stamp_of "$source")"; else echo "$source: see above"; failed=1; fi
    done
    return $failed
}
export -f stamp_of tidy check

for source in "$@"; do
    if [ ! -e "$(stamp_of "$source")" ]; then echo "$source"; fi
done >"$texts/unread"

# lists: a line for each text, of its sources; those of most first, so that no processor is left alone with them.
while read -r folder; do
    awk -v most=20 -f cmake/joined_sources.awk $headers $(find tests/support "$folder" -name '*.h') \
        $(grep "^$folder/[^/]*$" "$texts/unread") |
        awk '$1 == 0 { print 1, $2; next } { sources[$1] = sources[$1] " " $2; ++count[$1] }
             END { for (i in sources) print count[i] sources[i] }'
done < <(sed 's|/[^/]*$||' "$texts/unread" | sort -u) | sort -rn | cut -d' ' -f2- >"$texts/lists"
number=0
while read -r -a sources; do
    number=$((number + 1))
    folder=$texts/$(dirname "${sources[0]}")
    mkdir -p "$folder"
    cat "${sources[@]}" >"$folder/$number.cpp"
done <"$texts/lists"

# Each text is compiled as the first of its sources is.
awk -v texts="$texts" -v tree="$PWD" '
    $1 == "\"directory\":" { directory = $0; next }
    $1 == "\"command\":" { command = $0; next }
    $1 == "\"file\":" { split($0, quoted, "\""); directories[quoted[4]] = directory; commands[quoted[4]] = command; next }
    FILENAME ~ /lists$/ {
        source = tree "/" $1
        if (!(source in commands)) next
        folder = $1
        sub("[^/]*$", "", folder)
        text = texts "/" folder FNR ".cpp"
        command = commands[source]
        at = index(command, "-c " source)
        printf "%s{\n%s\n%s\n  \"file\": \"%s\"\n}", count++ ? "," : "[\n", directories[source],
               substr(command, 1, at + 2) text substr(command, at + 3 + length(source)), text
    }
    END { print count ? "\n]" : "[]" }' "$build/compile_commands.json" "$texts/lists" >"$texts/compile_commands.json"

cat -n "$texts/lists" | xargs -r -P "$(nproc)" -L 1 bash -c 'check "$@"' check
