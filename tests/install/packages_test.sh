#!/bin/bash
# Makes the Debian packages twice: they have the same bytes, and lintian finds nothing. Where a program that cpack needs is
# missing, it says so and makes no package.
# Arguments: the build tree.
set -euo pipefail
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Makes the packages in the folder $1.
pack() { cpack --config "$build/CPackConfig.cmake" -B "$work/$1" >"$work/log" 2>&1; }

export SOURCE_DATE_EPOCH=1700000000
pack first || { cat "$work/log"; exit 1; }
sleep 1  # the time on a clock must not matter
(TZ=Asia/Tokyo LC_ALL=C pack second) || { cat "$work/log"; exit 1; }
for package in "$work"/first/*.deb; do cmp "$package" "$work/second/${package##*/}"; done

# The owner has chosen no licence, packages outside of Debian close none of its bugs, and CPack writes the scripts.
tolerated=copyright-without-copyright-notice,initial-upload-closes-no-bugs,maintscript-calls-ldconfig
lintian --allow-root --fail-on error,warning --suppress-tags "$tolerated" "$work"/first/*.deb

for package in "$work"/first/*.deb; do
  name=$(dpkg-deb --field "$package" Package)
  version=$(dpkg-deb --field "$package" Version)
  dpkg-deb --fsys-tarfile "$package" | tar -xO "./usr/share/doc/$name/changelog.Debian.gz" | zcat |
    grep -qx "kestrin ($version) .*" || { echo "packaging/debian/changelog lacks version $version"; exit 1; }
done

for row in "file file" "dpkg-shlibdeps dpkg-dev"; do
  read -r program provider <<<"$row"
  mkdir "$work/without-$program"
  ln -s /usr/bin/* "$work/without-$program"
  rm "$work/without-$program/$program"
  if PATH=$work/without-$program pack third; then echo "cpack works without $program"; exit 1; fi
  grep -qx " *cpack needs $program: apt-get install $provider" "$work/log" || { cat "$work/log"; exit 1; }
  if ls "$work"/third/*.deb 2>/dev/null; then exit 1; fi
done
