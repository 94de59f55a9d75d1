#!/usr/bin/env bash
# Looks at every form in a fresh application folder as assistive tools see it:
#   check_accessible_tree.sh TREE DATA LANGUAGE
set -euo pipefail
tree=$1 data=$2 language=$3

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -R "$data" "$work/application"
mkdir -p "$work/application/Ontwerpen" "$work/application/Collection"
HOME=$work QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work \
    "$tree" --folder "$work/application" --language "$language" --check
