#!/usr/bin/env bash
# Installs the Debian package on a Debian that has nothing else, and does the jobs of the README there, as a user
# without rights and without a display: clean-system.sh PACKAGE [FOLDER_FOR_THE_SYSTEM]
# It needs root, mmdebstrap and Debian's archive, and takes minutes.
set -euo pipefail
package=$(realpath "$1")
fail() { echo "$*" >&2; exit 1; }
[ "$(id -u)" -eq 0 ] || fail "a clean system is made by root only"
command -v mmdebstrap >/dev/null || fail "mmdebstrap is missing, which makes the clean system"

root=${2:-}
if [ -z "$root" ]; then
  root=$(mktemp -d)
  trap 'rm -rf "$root"' EXIT
fi
if [ ! -e "$root/etc/debian_version" ]; then
  mmdebstrap --quiet --variant=apt bookworm "$root"
  cp -L /etc/resolv.conf "$root/etc/resolv.conf"
  chroot "$root" apt-get update -qq
fi
cp "$package" "$root/root/corvane.deb"
# inside COMMAND...: on the clean system, with its own /proc, by which the loader finds a program's own libraries.
inside() { unshare --mount --pid --fork --mount-proc="$root/proc" chroot "$root" "$@"; }
# What the package only recommends is left out: the jobs must do without.
inside env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq -o Dpkg::Use-Pty=0 --no-install-recommends --reinstall \
  /root/corvane.deb >/dev/null
inside sh -c 'id worker >/dev/null 2>&1 || useradd -m worker'
work=$root/home/worker
rm -rf "$work"/*

# worker COMMAND...: in the user's folder of the clean system, with no variable of this one.
worker() {
  inside setpriv --reuid=worker --regid=worker --init-groups \
    env -i HOME=/home/worker PATH=/usr/bin:/bin LANG=C.UTF-8 sh -c 'cd && exec "$@"' sh "$@"
}
examples=/usr/share/doc/corvane/examples

worker corvane-host --version
worker corvane-host --help | grep -q marks || fail "--help says nothing of marks"
worker corvane-host marks "$examples/sticker-sheet.svg" -o marked.svg --placement auto --size 5mm
[ "$(grep -c 'brevia Regmark' "$work/marked.svg")" -ge 4 ] || fail "no marks were placed"
for format in png pdf svg; do
  worker corvane-host export marked.svg -o "copy.$format"
  [ -s "$work/copy.$format" ] || fail "no $format was written"
done
worker corvane-host export "$examples/tea-carton.svg" -o carton.pdf --step Crease=Folding --summary
grep -q 'Crease (Structural/Folding): 8 paths' "$work/carton.txt" || fail "the summary does not know the creases"
worker corvane-host info --check "$examples/tea-carton.svg" | grep -q 'no findings' || fail "preflight finds what is not so"
worker corvane-host info marked.svg | grep -q Regmark || fail "info does not know the layer of marks"
worker env QT_QPA_PLATFORM=offscreen corvane-host --screenshot window.png marked.svg
[ -s "$work/window.png" ] || fail "the window made no picture of itself"

# Marks that are too large for the sheet make the plug-in speak, in each of its languages another sentence.
for language in en de es fr ja pt-BR; do
  code=0
  worker corvane-host --language "$language" marks "$examples/full-bleed-poster.svg" -o poster.svg --size 900mm \
    2>"$work/said.$language" || code=$?
  [ "$code" -eq 3 ] || fail "$language: the code is $code: $(cat "$work/said.$language")"
done
[ "$(sort -u "$work"/said.* | wc -l)" -ge 6 ] || fail "not every language says it: $(cat "$work"/said.*)"

# What all users share is open to another user.
worker touch /var/lib/corvane-host/shared/of-worker
inside apt-get purge -y -qq -o Dpkg::Use-Pty=0 corvane >/dev/null
[ ! -e "$root/var/lib/corvane-host" ] || fail "a purge leaves the shared data"
echo "installed, used and purged on a clean system"
