#!/usr/bin/env bash
# All sources stand as clang-format leaves them.
set -euo pipefail
cd "$1"
find src dev tests bench -name '*.h' -o -name '*.cpp' | xargs clang-format --dry-run --Werror
