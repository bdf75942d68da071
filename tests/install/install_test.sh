#!/bin/bash
# Installs the library into a fresh prefix, moves it, and builds and runs the example host against it, with nothing of
# the build tree on any path: through find_package, shared and static, then through pkg-config, shared and static, and
# through find_package where only one library is installed.
# Arguments: the build tree, the C++ compiler.
set -euo pipefail
build=$1 compiler=$2
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/moved"
prefix=$work/moved
libdir=$(dirname "$(find "$prefix" -name libkestrin.so)")
cp -r "$here/../../examples/host" "$here/static_host" "$work"
cd "$work"

find_by_cmake() { cmake "$@" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_CXX_COMPILER="$compiler"; }

find_by_cmake -S host -B by-cmake >/dev/null
cmake --build by-cmake >/dev/null
"$here/run_host.sh" by-cmake/host

find_static() { find_by_cmake -S static_host -B "static-$1" -DREQUEST="$1" -DHOST_SOURCE=../host/host.cpp; }

find_static 0.1 >/dev/null
cmake --build static-0.1 >/dev/null
"$here/run_host.sh" static-0.1/static_host
for request in 0 0.2 1.0; do
  if find_static "$request" >log 2>&1; then echo "find_package(kestrin $request) takes this version"; exit 1; fi
  grep -q 'considered but not accepted' log || { cat log; exit 1; }
done

export PKG_CONFIG_PATH=$libdir/pkgconfig
for library in kestrin kestrin-static; do
  # shellcheck disable=SC2046  # a list of words
  "$compiler" -std=c++20 -Wall -Wextra -Wconversion -pedantic -Werror host/host.cpp \
    $(pkg-config --cflags --libs $library) -Wl,-rpath,"$libdir" -o by-pkg-config-$library
  "$here/run_host.sh" ./by-pkg-config-$library
done
if ldd by-pkg-config-kestrin-static static-0.1/static_host | grep libkestrin; then exit 1; fi

version=$(pkg-config --modversion kestrin)
[ "$("$prefix/bin/kestrin" --version)" = "kestrin $version" ]
[[ "$(./by-pkg-config-kestrin 2>&1)" = *"runs with kestrin $version" ]]
grep -qF "kVersion[] = \"$version\"" "$prefix/include/kestrin/version.h"
bash -n "$prefix/share/bash-completion/completions/kestrin"
test -s "$prefix/share/man/man1/kestrin.1"

# Where BUILD_SHARED_LIBS asked for one library, kestrin::kestrin is that one. The libraries come from the build tree.
for shared in OFF ON; do
  cmake -G Ninja -S "$here/../.." -B one -DBUILD_SHARED_LIBS=$shared -DKESTRIN_BUILD_{TOOL,TESTS,BENCH}=OFF \
    -DCMAKE_INSTALL_LIBDIR=lib -DCMAKE_CXX_COMPILER="$compiler" >/dev/null
  cp -a "$build"/lib/libkestrin.* one/lib
  cmake --install one --prefix "$work/only-$shared" >/dev/null
  cmake -S host -B host-$shared -DCMAKE_PREFIX_PATH="$work/only-$shared" -DCMAKE_CXX_COMPILER="$compiler" >/dev/null
  cmake --build host-$shared >/dev/null
  "$here/run_host.sh" host-$shared/host
done
[ "$(find only-OFF only-ON -name 'libkestrin.*' -type f -printf '%P ')" = "lib/libkestrin.a lib/libkestrin.so.$version " ]
