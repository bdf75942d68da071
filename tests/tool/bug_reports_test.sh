#!/bin/sh
# Runs the example of docs/bug-reports.md: bug_reports_test.sh TOOL DOC BOARD. Without creduce, only up to the reduction.
set -eu
tool=$1 doc=$2 board=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/bin" "$work/secret"
ln -s "$tool" "$work/bin/kestrin"
PATH=$work/bin:$PATH
cp "$board"/board.* "$work/secret"
sed -i "s/^NET 'SDA'/NET 'GND'/" "$work/secret/board.neutral"
cd "$work"

kestrin anonymise secret copy
for set in secret copy; do
  kestrin check "$set" --fail-on never | sed -n "s/^[^ ]*\(:[0-9]*:\).* \[\([a-z-]*\)\]$/\1\2/p" >"$set.found"
done
test -s copy.found
cmp secret.found copy.found

sed -n '/^```sh$/,/^```$/p' "$doc" | grep -v '^```' >still-there
chmod +x still-there
(cd copy && ../still-there)

command -v creduce >/dev/null || { echo "creduce is not installed"; exit 0; }
(cd copy && creduce --not-c ../still-there board.neutral >../creduce.log) || { cat creduce.log; exit 1; }
cat copy/board.neutral
test "$(wc -l <copy/board.neutral)" -le 8
(cd copy && ../still-there)
