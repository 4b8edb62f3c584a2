#!/usr/bin/env bash
# Makes the Debian package of a build folder, has others' tools look at it, and does the main job with what is in it,
# from a folder that is not where it was built: package.sh BUILD_FOLDER SOURCE_FOLDER
set -euo pipefail
build=$1
source=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
fail() { echo "$*" >&2; exit 1; }

(cd "$build" && cpack -B "$scratch" >"$scratch/cpack.log" 2>&1) || { cat "$scratch/cpack.log" >&2; fail "cpack failed"; }
package=$(echo "$scratch"/*.deb)
root=$scratch/root
dpkg-deb -x "$package" "$root"

desktop-file-validate "$root/usr/share/applications/org.corvane.Host.desktop"
appstreamcli validate --no-net "$root/usr/share/metainfo/org.corvane.Host.metainfo.xml"
warnings=$(MANROFFSEQ='' man --warnings -l "$root/usr/share/man/man1/corvane-host.1.gz" 2>&1 >/dev/null)
[ -z "$warnings" ] || fail "man page: $warnings"
bash -n "$root/usr/share/bash-completion/completions/corvane-host"
lintian --fail-on error,warning --suppress-tags initial-upload-closes-no-bugs --allow-root "$package"

# Every option that the program knows is in the manual and is completed.
host=$root/usr/bin/corvane-host
manual=$(zcat "$root/usr/share/man/man1/corvane-host.1.gz" | tr -d '\\')
for option in $(for command in marks export info; do "$host" $command --help; done | grep -oE -- '--[a-z-]+' | sort -u); do
  grep -q -- "$option" <<<"$manual" || fail "manual lacks $option"
  grep -q -- "$option" "$root/usr/share/bash-completion/completions/corvane-host" || fail "completion lacks $option"
done

(cd "$scratch" && "$host" marks "$source/examples/sticker-sheet.svg" -o marked.svg)
[ "$(grep -c 'brevia Regmark' "$scratch/marked.svg")" -ge 4 ] || fail "no marks were placed"
