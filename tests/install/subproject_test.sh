#!/bin/bash
# Unpacks the source archive and adds it to the build of a host, without flex and bison. It builds the library, shared
# and static or only what BUILD_SHARED_LIBS asks for, but no tool, tests or benchmarks. The libraries have the same bytes
# as those of the build tree, which was built in another folder.
# Arguments: the build tree, the C++ compiler.
set -euo pipefail
tree=$1 compiler=$2
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

pack() { SOURCE_DATE_EPOCH=1700000000 "$here/../../scripts/make-source-archive" "$tree" "$work/$1"; }
pack first.tar.xz
(umask 077 && pack second.tar.xz)
cmp "$work"/{first,second}.tar.xz
tar -C "$work" -xf "$work/first.tar.xz"
sources=$(echo "$work"/kestrin-*)

# Configures the host with the given arguments after the first, which is the list of what it should link.
configure() {
  cmake -G Ninja -S "$here/subproject" -B "$work/build" -DKESTRIN_SOURCE="$sources" -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_DISABLE_FIND_PACKAGE_FLEX=ON -DCMAKE_DISABLE_FIND_PACKAGE_BISON=ON --no-warn-unused-cli \
    "${@:2}" >/dev/null
  linked=$(ninja -C "$work/build" -t targets all | sed -nE 's/.*_LINKER__(.*)_[A-Za-z]*$/\1/p' | sort | xargs)
  [ "$linked" = "$1" ] || { echo "links: $linked"; exit 1; }
}

configure "host_of_kestrin host_of_kestrin_static kestrin_static" -DBUILD_SHARED_LIBS=OFF
configure "host_of_kestrin host_of_kestrin_static kestrin kestrin_static" -UBUILD_SHARED_LIBS
cmake --build "$work/build" >"$work/log" || { cat "$work/log"; exit 1; }
"$here/run_host.sh" "$work/build/host_of_kestrin"
"$here/run_host.sh" "$work/build/host_of_kestrin_static"

for file in libkestrin.a libkestrin.so; do cmp "$work/build/_deps/kestrin-build/lib/$file" "$tree/lib/$file"; done
