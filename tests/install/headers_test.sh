#!/bin/bash
# Compiles every installed header and every program in the documents on its own, with the warnings that a careful host
# enables, and checks what the headers promise at compile time.
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
if LC_ALL=C grep -rn '[^[:print:][:blank:]]' .; then echo "some compilers would read this in another encoding" >&2; exit 1; fi

mkdir "$work/programs"
cd "$work/programs"
for header in $headers; do echo "#include <$header>" >"${header//\//-}.cpp"; done
awk '/^```/ { shown = /^```cpp/; file = "shown-" ++count ".cpp"; next } shown { print >file }' \
  "$source"/README.md "$source"/docs/integration.md

# Every root, list and coordinate list is a plain pointer.
cat >host-lines.cpp <<'END'
#include <kestrin/kestrin.h>
template <class T>
long long Count(const kestrin::CArray<T*, T*>* list) {
  return list->GetSize();
}
long long WalkAsHostsDo(kestrin::CPC_KESTRIN_GET& session, bool isWanted) {
  auto* geom = session.m_pGeom;
  auto* board = geom->m_pBoard;
  const auto* pins = geom->m_pPins;
  auto list = geom->m_pComponents->GetAt(0)->m_pTexts;
  list = board->m_pTexts;
  auto* net = session.m_pTraces->m_pNetArray->GetAt(0);
  auto* wires = isWanted ? net->m_pWirArray : nullptr;
  const auto* path = static_cast<kestrin::CMGeomPath*>(board->m_pDrawObjs->GetAt(0));
  auto* xy = path->m_pCoords;
  return Count(pins) + Count(list) + Count(wires) + Count(net->m_pWirArray) + xy->GetSize();
}
END

# Other headers define macros with these names. They may be included before or after the library's.
cat >host.inc <<'END'
struct Window : kestrin::CWnd {
  kestrin::BOOL UpdateData(kestrin::BOOL save) override { return save == FALSE ? TRUE : CWnd::UpdateData(); }
};
END
macros=$'#define FALSE (0)\n#define TRUE 1'
printf '%s\n' "$macros" '#include <kestrin/kestrin.h>' '#include "host.inc"' >macros-first.cpp
printf '%s\n' '#include <kestrin/kestrin.h>' "$macros" '#include "host.inc"' >macros-last.cpp
printf '%s\n' '#include <kestrin/kestrin.h>' 'namespace kestrin {' '#include "host.inc"' '}' >no-macros.cpp
# Code that must not compile, with a part of the message.
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

  diff <(echo "$headers") <("$compiler" -std=c++20 -MM -I"$work/include" kestrin-kestrin.h.cpp |
    grep -o 'kestrin/[a-z_/]*\.h\b' | LC_ALL=C sort -u) || { echo "kestrin.h leaves headers out" >&2; exit 1; }

  for header in $headers; do
    if "$compiler" -std=c++17 -fsyntax-only -I"$work/include" "${header//\//-}.cpp" 2>log ||
      grep 'error:' log | grep -qv 'kestrin needs C++20'; then
      echo "$header says something else in C++17 than that it needs C++20:" >&2
      cat log >&2
      exit 1
    fi
  done
done
