#!/bin/sh
# ./demo.sh: builds the tool and prints a summary of the sample board. Installs missing packages first (Debian 12).
set -eu
cd "$(dirname "$0")"

echo "Installing missing packages ..." >&2
scripts/install-packages.sh $(cat scripts/build-packages)
echo "Building the tool; the first time, this takes a minute or two ..." >&2
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
