#!/bin/sh
# Builds everything and runs every test, with g++ as released and with clang under the sanitizers and clang-tidy.
# All that a fresh Debian 12 needs is installed first.
set -eu
cd "$(dirname "$0")"

scripts/install-packages.sh $(cat scripts/build-packages scripts/check-packages)
clang-format-14 --dry-run --Werror $(find kestrin tool tests bench examples -name '*.h' -o -name '*.cpp')
mkdir -p build
doxygen
for preset in release sanitize; do
  [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"
  cmake --build --preset "$preset"
done
for preset in release sanitize; do
  ctest --preset "$preset" --parallel "$(nproc)" --progress
done
