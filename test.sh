#!/bin/sh
# ./test.sh       builds the release and runs its tests
# ./test.sh all   also checks the format and the reference, builds with clang, the sanitizers and clang-tidy, fuzzes
#                 briefly, and runs the thread tests under the thread sanitizer
# Packages that a fresh Debian 12 lacks are installed first.
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
    scripts/check-layers
    scripts/make-reference
    run_presets release sanitize fuzz thread
    ;;
  *)
    echo "usage: ./test.sh [all]" >&2
    exit 2
    ;;
esac
