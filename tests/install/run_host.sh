#!/bin/bash
# Runs a build of the example host on the sample board and checks what it prints.
# Arguments: the program, or a command that runs it.
set -euo pipefail
board=$(cd "$(dirname "$0")/../../examples/board" && pwd)
printed=$("$@" "$board"/board.{tech,neutral,geometry,traces} 2>&1 | tr -d '\r')
for line in 'XIN: 5 segments, pins U_1-6 Y_1-1 C_4-1' "$board/board.traces: 404 lines, 399 imported, 0 skipped"; do
  grep -qxF "$line" <<<"$printed" || { echo "$* does not print: $line, but:"; echo "$printed"; exit 1; }
done
