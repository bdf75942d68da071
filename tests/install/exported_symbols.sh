#!/bin/bash
# Compares the symbols that the shared library exports with the list beside this script, so that no change of the
# interface goes unnoticed. With --update, rewrites the list.
# Arguments: the shared library.
set -euo pipefail
list=$(dirname "$0")/exported_symbols.txt

# Functions and virtual tables of the library. Instantiations of the standard library's templates are not part of the
# interface.
shown() {
  nm --dynamic --defined-only --demangle "$1" | cut -d' ' -f3- | grep -E '^(vtable for )?kestrin::' |
    sed 's/\[abi:[^]]*\]//' | LC_ALL=C sort -u
}

if [ "$1" = --update ]; then
  shown "$2" >"$list"
else
  diff "$list" <(shown "$1") || { echo "the exported symbols changed; see $0 --update" >&2; exit 1; }
fi
