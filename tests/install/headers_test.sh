#!/bin/bash
# Compiles every installed header alone, and every program in the documents, with the warnings that a careful host asks
# for; and tries what the headers promise at compile time.
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

# What does not compile, with a part of the message.
refused=(
  'text.Format("%s", name)' 'CString only'
  'text.Format("%s %s", text, name)' 'CString only'
  'text.Format("%d", "name")' 'format'
)

check="-std=c++20 -Wall -Wextra -Wconversion -pedantic -Werror -fsyntax-only -I$work/include"
for compiler; do
  # shellcheck disable=SC2086  # a list of words
  printf '%s\n' *.cpp | xargs -P "$(nproc)" -I{} "$compiler" $check {}

  # shellcheck disable=SC2086
  for ((i = 0; i < ${#refused[@]}; i += 2)); do
    printf '%s\n' '#include <kestrin/kestrin.h>' 'extern kestrin::CString text;' 'extern std::string name;' \
      "void Call() { ${refused[i]}; }" >refused
    if "$compiler" $check -x c++ refused 2>log; then echo "$compiler compiles ${refused[i]}" >&2; exit 1; fi
    grep -q "${refused[i + 1]}" log || { cat log >&2; exit 1; }
  done
done
