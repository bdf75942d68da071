#!/bin/bash
# The tool for Windows prints the same bytes as the one for this machine, whatever a path looks like.
# Arguments: the two tools, the folder of the sample board, and the command that runs a Windows program.
set -euo pipefail
tool=$1
native=$2
board=$3
shift 3
wine=("$@")
[ -x "$native" ] || { echo "$native is missing; build the preset release first" >&2; exit 1; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

same() {
  local status=0 expected=0
  "$native" "$@" >native.out 2>native.err <input || expected=$?
  "${wine[@]}" "$tool" "$@" >wine.out 2>wine.err <input || status=$?
  tr -d '\r' <wine.err >wine.lines
  if [ $status != $expected ] || ! cmp native.out wine.out || ! diff native.err wine.lines; then
    echo "differs: kestrin $*; exit status $expected and $status" >&2
    exit 1
  fi
}

cp "$board/board.tech" input
sed 's/$/\r/' "$board/board.traces" >crlf.traces
mkdir 'Platine ü 基板 Ω'
cp "$board"/board.* 'Platine ü 基板 Ω'
mv 'Platine ü 基板 Ω/board.tech' 'Platine ü 基板 Ω/ß 板.tech'
mkdir empty

same dump "$board"
same dump --strict "$board"
same dump crlf.traces
same dump --tech -
same dump --traces crlf.traces --tech 'Platine ü 基板 Ω/ß 板.tech'
same dump 'Platine ü 基板 Ω'
same check 'Platine ü 基板 Ω'
same board "$board"
same diff "$board" 'Platine ü 基板 Ω' --format json
same summary empty
same summary 'Ω missing.tech'
for tool_of in native wine; do
  [ $tool_of = native ] && run=("$native") || run=("${wine[@]}" "$tool")
  "${run[@]}" draw "$board" -o "Ω $tool_of.svg"
  "${run[@]}" draw "$board" -o "Ω $tool_of.svg"  # replaces it
done
cmp 'Ω native.svg' 'Ω wine.svg'

# Commands whose libraries are not there for Windows say so.
refused() {
  local library=$1
  shift
  if "${wine[@]}" "$tool" "$@" 2>wine.err; then echo "kestrin $* works without $library" >&2; exit 1; fi
  grep -q "built without $library" wine.err || { cat wine.err >&2; exit 1; }
}
refused libsodium anonymise "$board" copy
refused Cairo draw "$board" -o board.png
