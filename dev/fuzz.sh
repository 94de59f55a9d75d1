#!/usr/bin/env bash
# Gives the readers of tests/fuzz/targets broken bytes, guided by the branches that they take (libFuzzer).
#   fuzz.sh MINUTES [TARGET...]   so many minutes each, one after the other; all of them if none is named
#   fuzz.sh --keep [TARGET...]    what was learnt becomes kept seeds: the fewest that reach the same branches
#   fuzz.sh --figures             what was done so far
# A sitting goes on where the last one stopped: build/fuzz/corpus has what was learnt, tests/fuzz/figures.tsv adds up
# (minutes are those of the processor).
# What is found lies in build/fuzz/found. Once it is mended, it is kept as tests/fuzz/seeds/TARGET/found_WHAT_IT_WAS.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
figures=tests/fuzz/figures.tsv
# Told whole: a target may work in a folder of its own.
work=$PWD/build/fuzz
programs=$work/tests/fuzz
# Small files that live for a moment, in memory if there is such a folder.
if [ -w /dev/shm ]; then export TMPDIR=/dev/shm; fi

build() {
    dev/setup.sh fuzz
    cmake --preset fuzz >/dev/null
    cmake --build --preset fuzz
}

all_targets() { for file in tests/fuzz/targets/*.cpp; do basename "$file" .cpp; done; }

# figure TARGET COLUMN: 0 for a target that hasn't run yet.
figure() { awk -F'\t' -v target="$1" -v column="$2" '$1 == target { found = $column } END { print found + 0 }' "$figures"; }

# A seed that was a finding tells so by its name.
findings() { find "tests/fuzz/seeds/$1" -name 'found_*' 2>/dev/null | wc -l; }

# note TARGET RUNS EDGES SECONDS: adds to its line; edges are those of the last run, seconds those of the processor.
note() {
    local runs minutes edges="$3"
    runs=$(($(figure "$1" 2) + $2))
    minutes=$(awk -v before="$(figure "$1" 4)" -v seconds="$4" 'BEGIN { printf "%.1f", before + seconds / 60 }')
    if [ "$edges" -eq 0 ]; then edges=$(figure "$1" 3); fi
    { printf 'target\truns\tedges\tminutes\tfindings\n'
      { awk -F'\t' -v target="$1" 'NR > 1 && $1 != target' "$figures"
        printf '%s\t%d\t%d\t%s\t%d\n' "$1" "$runs" "$edges" "$minutes" "$(findings "$1")"
      } | sort; } >"$figures.new"
    mv "$figures.new" "$figures"
}

# Memory fills up with what the toolkit keeps of fonts: a target starts anew every few minutes.
longest_run=300

# run TARGET SECONDS: false if something was found.
run() {
    local target=$1 seconds=$2 log=$work/$1.log corpus=$work/corpus/$1 found=$work/found/$1 seeds=$PWD/tests/fuzz/seeds/$1
    mkdir -p "$corpus" "$found" "$seeds"
    COINLET_SOUND_FILES="$corpus" "$programs/target_$target"
    while [ "$seconds" -gt 0 ]; do
        local part=$((seconds < longest_run ? seconds : longest_run)) outcome=0 spent
        seconds=$((seconds - part))
        spent=$(TIMEFORMAT='%U %S'; { time \
            "$programs/target_$target" "$corpus" "$seeds" -max_total_time="$part" -timeout=60 \
            -rss_limit_mb=4000 -entropic_scale_per_exec_time=1 -artifact_prefix="$found/" -print_final_stats=1 \
            >"$log" 2>&1; } 2>&1) || outcome=$?
        note "$target" "$(awk '/^stat::number_of_executed_units/ { n = $2 } END { print n + 0 }' "$log")" \
            "$(awk '$3 == "cov:" { n = $4 } END { print n + 0 }' "$log")" "$(awk '{ print $1 + $2 }' <<<"$spent")"
        if [ "$outcome" -ne 0 ]; then
            echo "$target: found something; see $log and $found (COINLET_FUZZ_SCRIPT=FILE makes a script of one for the program)"
            return 1
        fi
    done
    awk -F'\t' -v target="$target" '$1 == target { print $1 ": " $2 " runs, " $3 " edges, " $4 " minutes" }' "$figures"
}

keep() {
    local target=$1 seeds=$PWD/tests/fuzz/seeds/$1 kept=$work/kept/$1 corpus=$work/corpus/$1
    rm -rf "$kept"
    mkdir -p "$kept" "$seeds" "$corpus"
    # Seeds that somebody gave a name stay; the others have their checksums for names.
    find "$seeds" -regextype posix-extended -type f ! -regex '.*/[0-9a-f]{40}' -exec cp {} "$kept" \;
    "$programs/target_$target" -merge=1 -use_counters=0 -timeout=60 -rss_limit_mb=4000 \
        "$kept" "$seeds" "$corpus" 2>&1 | grep -E 'MERGE-OUTER: .* new files' || true
    rm -rf "$seeds"
    mv "$kept" "$seeds"
    echo "$target: $(find "$seeds" -type f | wc -l) seeds, $(du -bs "$seeds" | cut -f1) bytes"
}

[ -f "$figures" ] || printf 'target\truns\tedges\tminutes\tfindings\n' >"$figures"
case "${1:-}" in
    --figures) column -t -s $'\t' "$figures" ;;
    --keep)
        shift
        build
        for target in ${*:-$(all_targets)}; do keep "$target"; done
        ;;
    [0-9]*)
        minutes=$1
        shift
        build
        sound=true
        for target in ${*:-$(all_targets)}; do run "$target" $((minutes * 60)) || sound=false; done
        $sound
        ;;
    *)
        sed -n '2,/^[^#]/ s/^# \{0,1\}//p' "${BASH_SOURCE[0]}"
        exit 1
        ;;
esac
