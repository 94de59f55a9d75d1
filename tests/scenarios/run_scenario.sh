#!/usr/bin/env bash
# Plays one script in a fresh application folder:
#   run_scenario.sh PLAYER DATA SCRIPT
# In the scripts of recovery/, and with WITH_STATE=1 before it in all, unsaved work comes back after a restart, as it
# does for users.
# A script NAME.fails.play is one that must fail; its last comment `# fails: TEXT` is found in the output.
set -euo pipefail
player=$1 data=$2 script=$3

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -R "$data" "$work/application"
# Scripts begin with an empty store, whatever is delivered in it.
rm -rf "$work/application/Ontwerpen"
mkdir -p "$work/application/Ontwerpen" "$work/application/Collection"

options=(--folder "$work/application" --out "$work/out")
if [ -n "${WITH_STATE:-}" ] || [[ $script == */recovery/* ]]; then options+=(--state "$work/state"); fi
status=0
output=$("$player" "${options[@]}" "$script" 2>&1) || status=$?
printf '%s\n' "$output"

case $script in
    *.fails.play)
        reason=$(sed -n 's/^# fails: //p' "$script" | tail -n 1)
        if [ -z "$reason" ]; then echo "no comment tells how it fails"; exit 1; fi
        if [ "$status" -ne 1 ]; then echo "it should fail; status $status"; exit 1; fi
        case $output in
            *"$reason"*$'\n'"0 passed, 1 failed") ;;
            *) echo "it should fail with: $reason"; exit 1 ;;
        esac
        ;;
    *) exit "$status" ;;
esac
