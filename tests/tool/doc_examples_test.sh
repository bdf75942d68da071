#!/bin/bash
# Runs the commands of a document, "    $ command", beside the sample board in "board", and compares the output of each
# with the lines after it. Arguments: the tool, the document.
set -euo pipefail
tool=$1
document=$2
examples=$(cd "$(dirname "$0")/../../examples" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$examples/board" "$work/board"
mkdir "$work/bin"
ln -s "$tool" "$work/bin/kestrin"
export PATH=$work/bin:$PATH
cd "$work"

# A script that prints each command and then its output, and the same as the document has it.
awk '/^    \$ / { print "echo " q($0) "\n" substr($0, 7) " || true" }
     function q(s) { gsub(/\047/, "\047\\\047\047", s); return "\047" s "\047" }' "$document" >script
awk '/^    \$ / { on = 1 } !/^    / { on = 0 } on' "$document" | sed '/^    \$ /!s/^    //' >expected
test -s script
bash script >actual 2>&1
diff expected actual
