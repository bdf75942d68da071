#!/bin/bash
# Installs the library into a fresh prefix, moves it, and builds and runs the example host against it, with nothing of
# the build tree on any path: through find_package, then through pkg-config.
# Arguments: the build tree, the C++ compiler.
set -euo pipefail
build=$1 compiler=$2
source=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/moved"
prefix=$work/moved
libdir=$(dirname "$(find "$prefix" -name libkestrin.so)")
cp -r "$source/examples/host" "$work/host"
cd "$work"

run() {
  "$1" "$source"/examples/board/board.{tech,neutral,geometry,traces} >"$work/out" 2>"$work/err"
  grep -qx 'XIN: 5 segments, pins U_1-6 Y_1-1 C_4-1' "$work/out" || { cat "$work/out"; exit 1; }
  grep -q 'board.traces: 382 lines, 377 imported, 0 skipped' "$work/err" || { cat "$work/err"; exit 1; }
}

cmake -S host -B by-cmake -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_CXX_COMPILER="$compiler" >/dev/null
cmake --build by-cmake >/dev/null
run by-cmake/host

export PKG_CONFIG_PATH=$libdir/pkgconfig
# shellcheck disable=SC2046  # a list of words
"$compiler" -std=c++20 -Wall -Wextra -Wconversion -pedantic -Werror host/host.cpp \
  $(pkg-config --cflags --libs kestrin) -Wl,-rpath,"$libdir" -o by-pkg-config
run ./by-pkg-config

[ "$("$prefix/bin/kestrin" --version)" = "kestrin $(pkg-config --modversion kestrin)" ]
bash -n "$prefix/share/bash-completion/completions/kestrin"
test -s "$prefix/share/man/man1/kestrin.1"
