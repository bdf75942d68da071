#!/bin/sh
# Builds the tool and shows the sample board: all that a fresh Debian 12 needs is installed first.
set -eu
cd "$(dirname "$0")"

scripts/install-packages.sh $(cat scripts/build-packages)
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { { [ -f build/release/build.ninja ] || cmake --preset release; } &&
       cmake --build --preset release --target kestrin_tool; } >"$log" 2>&1; then
  cat "$log" >&2
  exit 1
fi
build/release/bin/kestrin summary examples/board
