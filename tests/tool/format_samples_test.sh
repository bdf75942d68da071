#!/bin/bash
# Runs the tool on the sample lines of docs/file-formats.md, file by file. No line may be skipped.
# Arguments: the tool.
set -euo pipefail
document=$(dirname "$0")/../../docs/file-formats.md
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for file in tech neutral geometry traces; do
  awk -v file="$file" '/^## / { shown = tolower($2) == file } shown && /^    [^ ]/ { print substr($0, 5) }' \
    "$document" >"$work/$file"
  test -s "$work/$file"
  "$1" check --fail-on never "--$file" "$work/$file" | tee "$work/out"
  grep -q " lines read, 0 skipped$" "$work/out"
done
