#!/bin/sh
# Builds the tool and shows the sample board. Packages that a fresh Debian 12 lacks are installed first.
set -eu
cd "$(dirname "$0")"

echo "Installing what is missing ..." >&2
scripts/install-packages.sh $(cat scripts/build-packages)
echo "Building the tool, a minute or two the first time ..." >&2
log=$(mktemp)
trap 'rm -f "$log"' EXIT
build() {
  [ -f build/release/build.ninja ] || cmake --preset release
  cmake --build --preset release --target kestrin_tool
}
if [ -t 2 ]; then
  build >&2
elif ! build >"$log" 2>&1; then
  cat "$log" >&2
  exit 1
fi
build/release/bin/kestrin summary examples/board
