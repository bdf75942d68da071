#!/bin/sh
# install-packages.sh PACKAGE...: installs the Debian packages that are missing. Prints nothing unless that fails.
set -eu

missing=
for package in "$@"; do
  dpkg-query -W -f='${Status}\n' "$package" 2>/dev/null | grep -q ' installed$' || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

as_root=
[ "$(id -u)" = 0 ] || as_root=sudo
export DEBIAN_FRONTEND=noninteractive
log=$(mktemp)
trap 'rm -f "$log"' EXIT
# shellcheck disable=SC2086  # $missing is a list
if ! { $as_root apt-get update && $as_root apt-get install -y --no-install-recommends $missing; } >"$log" 2>&1; then
  cat "$log" >&2
  echo "install-packages: could not install:$missing" >&2
  exit 1
fi
