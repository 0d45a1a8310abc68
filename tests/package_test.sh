#!/usr/bin/env bash
# The Debian packages in use: the sample client is built from and against what the -dev package holds, then orda_batch and orda_client
# configure simulated devices in a bare Debian 12, each when nothing was installed yet but its package and the libraries'. Called by
# `./dev package --try`: package_test.sh DIRECTORY, which has the .deb files. Ends with 77 where a bare Debian cannot be made.
set -euo pipefail
packages=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "package_test: $*" >&2; exit 1; }
skip() { echo "package_test: skipped: $*" >&2; exit 77; }

for package in "$packages"/*.deb; do
  dpkg-deb --extract "$package" "$work/root"
done
# The sample as the package has it.
cmake -S "$work/root/usr/share/doc/orda-batchcfg-dev/examples/consumer" -B "$work/consumer" -DCMAKE_PREFIX_PATH="$work/root/usr" >"$work/consumer.log" &&
  cmake --build "$work/consumer" >>"$work/consumer.log" &&
  cmake --install "$work/consumer" --prefix "$work/client" >>"$work/consumer.log" || fail "no client can be built: $(cat "$work/consumer.log")"
QT_QPA_PLATFORM=offscreen TMPDIR=$work "$work/client/bin/consumer" || fail "the run of the client that was built and installed failed"

[ "$(id -u)" -eq 0 ] || skip "a bare Debian is made by root only"
command -v mmdebstrap >/dev/null || skip "mmdebstrap is not installed"
rm -rf "$packages/pictures"
echo "package_test: making a bare Debian 12" >&2
batch='cd /home/guard && LC_ALL=C.UTF-8 orda_batch apply osd --demo 20 --set position=hide --yes'
run='cd /home/guard && LC_ALL=C.UTF-8 QT_DEBUG_PLUGINS=1 orda_client --demo 20 --run audio --screenshots pictures'
if ! mmdebstrap --quiet --mode=root --variant=minbase --format=null \
  --customize-hook="touch '$work/made'" \
  --customize-hook="copy-in $(echo "$packages"/liborda-batchcfg*.deb "$packages"/orda-{batch,client}_*.deb) /tmp" \
  --customize-hook='chroot "$1" sh -c "apt-get install --yes --no-install-recommends /tmp/lib*.deb /tmp/orda-batch_*.deb && useradd --create-home guard" >&2' \
  --customize-hook="chroot \"\$1\" runuser --user guard -- sh -c '$batch' >'$work/batch.log' 2>&1; echo \$? >'$work/batch.result'" \
  --customize-hook='chroot "$1" sh -c "apt-get install --yes --no-install-recommends /tmp/orda-client_*.deb" >&2' \
  --customize-hook="chroot \"\$1\" runuser --user guard -- sh -c '$run' >'$work/run.log' 2>'$work/plugins.log'; echo \$? >'$work/result'" \
  --customize-hook="if [ -d \"\$1/home/guard/pictures\" ]; then cp -r \"\$1/home/guard/pictures\" '$packages'; fi" \
  bookworm /dev/null >"$work/debian.log" 2>&1; then
  [ -e "$work/made" ] || skip "no bare Debian could be made: $(tail -n 5 "$work/debian.log")"
  fail "the package cannot be installed: $(tail -n 20 "$work/debian.log")"
fi
[ "$(cat "$work/batch.result")" = 0 ] || fail "orda_batch ended with $(cat "$work/batch.result"): $(tail -n 3 "$work/batch.log")"
cat "$work/run.log"
[ "$(cat "$work/result")" = 0 ] || fail "orda_client ended with $(cat "$work/result"): $(tail -n 3 "$work/plugins.log")"
grep -qE 'success:[1-9][0-9]*, failure:0' "$work/run.log" || fail "orda_client printed no summary"
grep -q 'loaded library.*imageformats/libqsvg.so' "$work/plugins.log" || fail "Qt could not draw the theme's check marks and arrows: no SVG"
echo "package_test: passed; pictures of the run: $packages/pictures" >&2
