#!/bin/bash
# Compares what the shared library shows with the list that is kept beside this script, so that no change of the
# interface goes unseen. With --update it writes the list anew.
# Arguments: the shared library.
set -euo pipefail
list=$(dirname "$0")/exported_symbols.txt

# Functions, and the tables of classes that are used through their virtual functions. Instantiations of the standard
# library's templates are no promise.
shown() {
  nm --dynamic --defined-only --demangle "$1" | cut -d' ' -f3- | grep -E '^(vtable for )?kestrin::' |
    sed 's/\[abi:[^]]*\]//' | LC_ALL=C sort -u
}

if [ "$1" = --update ]; then
  shown "$2" >"$list"
else
  diff "$list" <(shown "$1") || { echo "the exported symbols changed; see $0 --update" >&2; exit 1; }
fi
