#!/bin/sh
# ./test.sh       builds the release and runs its tests
# ./test.sh all   also checks formatting, layers, names and the reference, runs the tests with the sanitizers and clang-tidy,
#                 the fuzz targets briefly, the thread tests with the thread sanitizer, and the tests for Windows
#                 under Wine
# Installs missing packages first (Debian 12).
set -eu
cd "$(dirname "$0")"

run_presets() {
  for preset; do
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"
    cmake --build --preset "$preset"
  done
  for preset; do
    ctest --preset "$preset" --parallel "$(nproc)" --progress
  done
}

case "${1-}" in
  "")
    scripts/install-packages.sh $(cat scripts/build-packages)
    run_presets release
    ;;
  all)
    scripts/install-packages.sh $(cat scripts/build-packages scripts/check-packages)
    clang-format-14 --dry-run --Werror $(git ls-files '*.h' '*.cpp')
    black --quiet --check -l 120 python tests/python
    scripts/check-layers
    scripts/check-usings
    scripts/make-reference
    run_presets release sanitize fuzz thread windows
    ;;
  *)
    echo "usage: ./test.sh [all]" >&2
    exit 2
    ;;
esac
