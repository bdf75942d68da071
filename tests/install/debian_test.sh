#!/bin/bash
# Installs the Debian packages in a bare Debian 12 and uses them there: the tool on the sample board, the library in
# the example host through find_package, shared and static, and through pkg-config. Of the sources, only the examples
# and these tests are copied in. It needs root, the network and debootstrap, so run it by hand after a build, on a
# Debian 12 whose apt configuration the bare one copies:
#     sudo tests/install/debian_test.sh build/release [MIRROR]
set -euo pipefail
build=$(cd "$1" && pwd) mirror=${2:-http://deb.debian.org/debian}
source=$(cd "$(dirname "$0")/../.." && pwd)
root=$(mktemp -d)
log=$root.log
leave() {
  status=$?
  for mounted in dev/pts dev proc; do umount "$root/$mounted" 2>/dev/null || true; done
  rm -rf --one-file-system "$root"
  [ $status = 0 ] && rm -f "$log" || { tail -n 40 "$log"; echo "failed, see $log"; }
}
trap leave EXIT

echo "making packages and a bare Debian 12"
export SOURCE_DATE_EPOCH=1700000000
rm -f "$build"/packages/*.deb
cpack --config "$build/CPackConfig.cmake" >"$log"
debootstrap --variant=minbase bookworm "$root" "$mirror" >>"$log"
cp /etc/resolv.conf /etc/hosts "$root/etc"
cp -r /etc/apt/apt.conf.d /etc/apt/sources.list* "$root/etc/apt"
mount -t proc proc "$root/proc"
mount --bind /dev "$root/dev"
mount --bind /dev/pts "$root/dev/pts"

mkdir -p "$root/try/tests"
cp -r "$build/packages" "$source/examples" "$root/try"
cp -r "$source/tests/install" "$root/try/tests"
"$source/scripts/make-source-archive" "$build" "$root/try/kestrin.tar.xz"
cat >"$root/try/run.sh" <<'END'
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive LC_ALL=C
cd /try
apt_install() { apt-get install -y --no-install-recommends "$@" >>log 2>&1 || { cat log; exit 1; }; }

apt-get update >log 2>&1
apt_install ./packages/kestrin_*.deb
kestrin --version
kestrin summary examples/board

apt_install ./packages/libkestrin*.deb cmake make g++ pkg-config
cmake -S examples/host -B shared >>log
cmake --build shared >>log
tests/install/run_host.sh shared/host
cmake -S tests/install/static_host -B static -DREQUEST=0.1 -DHOST_SOURCE=/try/examples/host/host.cpp >>log
cmake --build static >>log
tests/install/run_host.sh static/static_host
g++ -std=c++20 examples/host/host.cpp $(pkg-config --cflags --libs kestrin) -o by-pkg-config
tests/install/run_host.sh ./by-pkg-config
ldd shared/host | grep kestrin

apt_install file dpkg-dev libcairo2-dev libcli11-dev libsodium-dev ninja-build rapidjson-dev xz-utils
mkdir sources
tar -C sources --strip-components=1 -xf kestrin.tar.xz
cd sources
cmake --preset release -DKESTRIN_BUILD_TESTS=OFF -DKESTRIN_BUILD_BENCH=OFF >>../log
cmake --build --preset release >>../log
cpack --config build/release/CPackConfig.cmake >>../log
for package in build/release/packages/*.deb; do cmp "$package" "../packages/${package##*/}"; done
cd ..

apt-get purge -y kestrin libkestrin-dev libkestrin0.1 >>log 2>&1
left=$(find / -xdev -name '*kestrin*' -not -path '/try/*' -not -path '/proc/*' -not -path '/var/log/*')
[ -z "$left" ] || { echo "left behind:"; echo "$left"; exit 1; }
END
chroot "$root" env -i PATH=/usr/sbin:/usr/bin SOURCE_DATE_EPOCH=$SOURCE_DATE_EPOCH bash /try/run.sh
dpkg-deb --info "$build"/packages/libkestrin-dev*.deb | grep -E '^ (Package|Version|Depends|Description)' || true
echo "all well"
