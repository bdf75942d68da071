#!/bin/sh
# Runs the tool on the sample board under memcheck: no invalid access, no uninitialized value, no leak.
# Arguments: the tool, the folder of the sample board.
set -eu
tool=$1 board=$2
pictures=$(mktemp -d)
trap 'rm -rf "$pictures"' EXIT

memcheck() {
  valgrind --quiet --suppressions="$(dirname "$0")/memcheck.supp" \
    --error-exitcode=99 --leak-check=full --errors-for-leak-kinds=all "$tool" "$@" >/dev/null
}
files="--tech $board/board.tech --neutral $board/board.neutral --geometry $board/board.geometry
       --traces $board/board.traces"
memcheck summary "$board"
memcheck board "$board"
memcheck check "$board" --strict --format json
memcheck draw "$board" --tags -o "$pictures/board.svg"
memcheck draw "$board" --view bottom -o "$pictures/board.html"
# shellcheck disable=SC2086  # a list of words
memcheck dump $files
# shellcheck disable=SC2086
memcheck dump $files --strict
