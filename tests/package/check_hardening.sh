#!/usr/bin/env bash
# check_hardening.sh PROGRAM BUILD
#
# Reads off the program itself that it was built to stop at a flaw: the flags alone don't tell what the linker made.
set -euo pipefail
program=$1 build=$2
faults=0
complain() { echo "$1"; faults=$((faults + 1)); }

header=$(readelf --wide --file-header "$program")
segments=$(readelf --wide --program-headers "$program")
dynamic=$(readelf --wide --dynamic "$program")
symbols=$(nm --dynamic --undefined-only "$program")

grep -Eq 'Type: +DYN ' <<<"$header" || complain "it loads at a fixed place"
grep -Eq 'FLAGS_1.*\bPIE\b' <<<"$dynamic" || complain "it is a library, not a program that loads anywhere"
grep -q 'GNU_RELRO' <<<"$segments" || complain "its tables of functions stay writable"
grep -Eq '\bBIND_NOW\b|FLAGS_1.*\bNOW\b' <<<"$dynamic" || complain "functions are looked up late, in tables that stay writable"
if grep -Eq 'GNU_STACK.* RWE ' <<<"$segments"; then complain "its stack can be executed"; fi
grep -q '__stack_chk_fail' <<<"$symbols" || complain "no guard before return addresses"
# Calls that know their buffer leave a trace only where a size is known neither too early nor too late, and such a call
# the program need not have: here the commands that compiled it tell.
unguarded=$(grep '"command":.* -c .*/src/' "$build/compile_commands.json" | grep -vc -e '-D_FORTIFY_SOURCE=2' || true)
[ "$unguarded" -eq 0 ] || complain "$unguarded sources were compiled without calls that know their buffer"
grep -q '__glibcxx_assert_fail' <<<"$symbols" || complain "containers don't look at their indices"
if [ "$faults" -gt 0 ]; then echo "$faults faults"; exit 1; fi
