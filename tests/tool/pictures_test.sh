#!/bin/sh
# Checks that the pictures in the documentation are what the tool draws. Arguments: the tool.
set -eu
root=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$root/scripts/make-pictures" "$1" "$work"
for picture in "$work"/*.svg; do
  cmp "$picture" "$root/docs/pictures/${picture##*/}" || {
    echo "docs/pictures is not what the tool draws; run scripts/make-pictures" >&2
    exit 1
  }
done
