#!/bin/sh
# Builds everything and runs every test, with g++ as released and with clang under the sanitizers and clang-tidy; runs
# the fuzz targets shortly, and what works in threads under the thread sanitizer.
# All that a fresh Debian 12 needs is installed first.
set -eu
cd "$(dirname "$0")"

scripts/install-packages.sh $(cat scripts/build-packages scripts/check-packages)
clang-format-14 --dry-run --Werror $(find kestrin tool support tests bench fuzz examples -name '*.h' -o -name '*.cpp')
mkdir -p build
doxygen
for preset in release sanitize fuzz thread; do
  [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"
  cmake --build --preset "$preset"
done
for preset in release sanitize fuzz thread; do
  ctest --preset "$preset" --parallel "$(nproc)" --progress
done
