#!/bin/bash
# Compiles every installed header alone, and every program in the documents, with the warnings that a careful host asks
# for.
# Arguments: the build tree, the C++ compilers.
set -euo pipefail
build=$1
shift
source=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --component development --prefix "$work" >/dev/null
cd "$work/include"
headers=$(find . -name '*.h' -printf '%P\n' | LC_ALL=C sort)

mkdir "$work/programs"
cd "$work/programs"
for header in $headers; do echo "#include <$header>" >"${header//\//-}.cpp"; done
printf '#include <%s>\n' kestrin/kestrin.h cmath cstdint cstdio iostream memory string utility >around.inc
awk '/^```/ { shown = /^```cpp/; if (shown) { file = "shown-" ++count ".cpp"; print "#include \"around.inc\"" >file }; next }
     shown { print >file }' "$source"/README.md "$source"/docs/integration.md

for compiler; do
  printf '%s\n' *.cpp | xargs -P "$(nproc)" -I{} "$compiler" -std=c++20 -Wall -Wextra -Wconversion -pedantic -Werror \
    -fsyntax-only -I"$work/include" {}
done
