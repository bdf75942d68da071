#!/bin/sh
# Builds the tool and shows the sample board: all that a fresh Debian 12 needs is installed first.
set -eu
cd "$(dirname "$0")"

scripts/install-packages.sh $(cat scripts/build-packages)
[ -f build/release/build.ninja ] || cmake --preset release >/dev/null
cmake --build --preset release --target kestrin_tool >/dev/null
exec build/release/bin/kestrin summary examples/board
