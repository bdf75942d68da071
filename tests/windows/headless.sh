#!/bin/sh
# headless.sh PREFIX COMMAND [ARGUMENT...]: runs a command with a display that nobody sees. Then ends Wine, which would
# go on using that display for other programs with the same PREFIX.
WINEPREFIX=$1
shift
export WINEPREFIX
xvfb-run --auto-servernum --server-args="-screen 0 800x600x24" "$@"
status=$?
wineserver -k
exit $status
