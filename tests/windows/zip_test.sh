#!/bin/bash
# Makes the ZIP and cross-builds hosts with nothing but that: the example with a dialog and the small host through
# find_package, which links kestrin.dll, and the small host through pkg-config, statically. They end up in prefix/bin,
# beside the DLLs that the ZIP brings.
# Arguments: the build tree, a folder to work in, which is emptied, the C++ compiler, and that of resources.
set -euo pipefail
build=$1 work=$2 compiler=$3 resources=$4
examples=$(cd "$(dirname "$0")/../../examples" && pwd)
rm -rf "$work"
mkdir -p "$work/hosts"
cd "$work"

quietly() { "$@" >log 2>&1 || { cat log; exit 1; }; }

quietly cpack --config "$build/CPackConfig.cmake" -B "$work"
quietly cmake -E tar xf kestrin-*.zip
mv kestrin-*/ prefix

cat >hosts/CMakeLists.txt <<END
cmake_minimum_required(VERSION 3.25)
project(hosts LANGUAGES CXX)
add_subdirectory($examples/host host)
add_subdirectory($examples/windows_dialog windows_dialog)
END
quietly cmake -G Ninja -S hosts -B built -DCMAKE_SYSTEM_NAME=Windows -DCMAKE_CXX_COMPILER="$compiler" \
  -DCMAKE_RC_COMPILER="$resources" -DCMAKE_PREFIX_PATH="$work/prefix"
quietly cmake --build built
cp built/host/host.exe built/windows_dialog/windows_dialog.exe prefix/bin

export PKG_CONFIG_LIBDIR=$work/prefix/lib/pkgconfig
# shellcheck disable=SC2046  # a list of words
"$compiler" -std=c++20 -static "$examples/host/host.cpp" $(pkg-config --cflags --libs kestrin-static) \
  -o prefix/bin/static_host.exe
