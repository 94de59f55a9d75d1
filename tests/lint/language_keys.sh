#!/usr/bin/env bash
# Every text that the code looks up stands in the tables of both languages, and both hold the same keys. The code
# has each key in one place, under a name: those of names that are read out in a file of their own.
set -euo pipefail
cd "$1"

faults=0
complain() { echo "$1"; faults=$((faults + 1)); }

keys_of() { LC_ALL=C grep -aoE '^[0-9]{3}' "data/Data/$1.txt"; }
names="src/core/text_keys.h src/core/name_keys.h"
used() { grep -ohE '"[0-9]{3}"' $names | tr -d '"' | sort -u; }

[ "$(used | wc -l)" -gt 0 ] || complain "no key found in the code"
while IFS= read -r hit; do complain "$hit: a key by its number; $names names them"; done \
    < <(grep -rnE '"[0-9]{3}"' src --include='*.cpp' --include='*.h' --exclude=text_keys.h --exclude=name_keys.h || true)
for language in Nederlands English; do
    while IFS= read -r key; do
        keys_of "$language" | grep -qx "$key" || complain "data/Data/$language.txt: no text for $key"
    done < <(used)
    if LC_ALL=C grep -aqvE $'^[0-9]{3} .*\r$' "data/Data/$language.txt"; then
        complain "data/Data/$language.txt: a line that is no key, blank and text, ended by CR LF"
    fi
done
diff <(keys_of Nederlands) <(keys_of English) || complain "the languages differ in their keys"
if [ "$faults" -gt 0 ]; then echo "$faults faults"; exit 1; fi
