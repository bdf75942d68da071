#!/bin/bash
# Adds the library's sources to the build of a host: it builds the library, shared and static, but no tool, tests or
# benchmarks. Builds without optimization because that is faster.
# Arguments: the source tree, the C++ compiler.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$(mktemp -d)
trap 'rm -rf "$build"' EXIT

cmake -G Ninja -S "$here/subproject" -B "$build" -DKESTRIN_SOURCE="$1" -DCMAKE_CXX_COMPILER="$2" >/dev/null
linked=$(ninja -C "$build" -t targets all | sed -nE 's/.*_LINKER__(.*)_$/\1/p' | sort | xargs)
[ "$linked" = "host_of_kestrin host_of_kestrin_static kestrin kestrin_static" ] || { echo "links: $linked"; exit 1; }
cmake --build "$build" >"$build/log" || { cat "$build/log"; exit 1; }
"$here/run_host.sh" "$build/host_of_kestrin"
"$here/run_host.sh" "$build/host_of_kestrin_static"
