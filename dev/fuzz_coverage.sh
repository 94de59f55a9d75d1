#!/usr/bin/env bash
# Plays the kept seeds alone to the readers of tests/fuzz/targets and prints which of their lines they reach. Fails
# where that is less than 95 of 100.
#   fuzz_coverage.sh [--lines] [TARGET...]   with --lines, the lines that no seed reaches as well
# tests/fuzz/readers.tsv names the sources of each reader.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
programs=build/coverage/tests/fuzz
least=95

show_lines=false
if [ "${1:-}" = --lines ]; then show_lines=true; shift; fi
targets=${*:-$(cut -f1 tests/fuzz/readers.tsv | uniq)}

dev/setup.sh fuzz
cmake --preset coverage >/dev/null
cmake --build --preset coverage --target $(printf 'target_%s ' $targets)
export QT_QPA_PLATFORM=offscreen

faults=0
for target in $targets; do
    profile=build/coverage/$target.profdata
    program=$programs/target_$target
    LLVM_PROFILE_FILE=$profile.raw "$program" "tests/fuzz/seeds/$target" >/dev/null
    llvm-profdata merge -sparse "$profile.raw" -o "$profile"
    # For each source a line SF:NAME, a line DA:NUMBER,COUNT for each of its lines, and LF: and LH:, how many there are
    # and were reached.
    llvm-cov export -format=lcov "$program" -instr-profile="$profile" |
        awk -F'[:,]' -v target="$target" -v show_lines="$show_lines" -v least="$least" '
            FNR == NR { if ($0 ~ "^" target "\t") wanted[substr($0, length(target) + 2)] = 1; next }
            /^SF:/ { name = $2; sub(".*/src/", "src/", name); is_wanted = name in wanted; missed = "" }
            !is_wanted { next }
            /^DA:/ && $3 == 0 { missed = missed " " $2 }
            /^LF:/ { lines = $2 }
            /^LH:/ {
                reached = $2
                delete wanted[name]
                share = 100 * reached / lines
                printf "%-12s %-36s %4d of %4d lines  %5.1f %%\n", target, name, reached, lines, share
                if (show_lines == "true" && missed != "") print "    not" missed
                if (share < least) faults++
            }
            END {
                for (name in wanted) { print target ": never built " name; faults++ }
                exit faults > 0
            }' tests/fuzz/readers.tsv - || faults=$((faults + 1))
done
if [ "$faults" -gt 0 ]; then echo "$faults targets below $least %"; exit 1; fi
