#!/bin/bash
# Compiles every installed header alone, with the warnings that a careful host asks for, and compares the headers with
# those that Doxyfile documents.
# Arguments: the build tree, the C++ compilers.
set -euo pipefail
build=$1
shift
source=$(cd "$(dirname "$0")/../.." && pwd)
include=$(mktemp -d)
trap 'rm -rf "$include"' EXIT

cmake --install "$build" --component development --prefix "$include" >/dev/null
cd "$include/include"
headers=$(find . -name '*.h' -printf '%P\n' | LC_ALL=C sort)

documented=$(sed -nE 's|^(INPUT *=)? *(kestrin/[a-z_/]*\.h)(\.in)?( \\)?$|\2|p' "$source/Doxyfile" | LC_ALL=C sort)
diff <(echo "$headers") <(echo "$documented") || { echo "Doxyfile documents other headers" >&2; exit 1; }

for compiler; do
  echo "$headers" | xargs -P "$(nproc)" -I{} sh -c 'echo "#include <$2>" |
    "$1" -std=c++20 -Wall -Wextra -Wconversion -pedantic -Werror -fsyntax-only -I. -x c++ -' - "$compiler" {}
done
