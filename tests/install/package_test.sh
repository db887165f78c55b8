#!/usr/bin/env bash
# Builds the Debian package and checks its contents and its run-time dependencies.
set -euo pipefail
build=$1
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
(cd "$build" && cpack -G DEB -B "$out" >/dev/null)
deb=$(ls "$out"/*.deb)
echo "built $(basename "$deb") ($(du -k "$deb" | cut -f1) KiB)"

fail() { echo "FAIL: $*" >&2; exit 1; }
contents=$(dpkg-deb -c "$deb")
# Here-strings, not "echo | grep -q": grep -q stops at the first match, and under pipefail the
# echo that is still writing dies of SIGPIPE and fails the check now and then.
for f in ./usr/bin/quorbit2 ./usr/bin/quorbit-sim ./usr/bin/quorbit-level \
         ./usr/share/quorbit2/Levels/Expert20.lvl ./usr/share/quorbit2/Music/dbyd8.mid \
         ./usr/share/quorbit2/Solutions/Expert20.replay \
         ./usr/share/applications/quorbit2.desktop \
         ./usr/share/icons/hicolor/256x256/apps/quorbit2.png \
         ./usr/share/man/man6/quorbit2.6.gz ./usr/bin/quorbit-edit \
         ./usr/share/applications/quorbit-edit.desktop \
         ./usr/share/icons/hicolor/256x256/apps/quorbit-edit.png \
         ./usr/share/man/man6/quorbit-edit.6.gz; do
  grep -q " $f\$" <<<"$contents" || fail "$f is not in the package"
done
depends=$(dpkg-deb -f "$deb" Depends)
echo "Depends: $depends"
for d in libqt6widgets6 libqt6svg6 libsdl2-mixer-2.0-0 qt6-qpa-plugins fluid-soundfont-gm; do
  grep -q "$d" <<<"$depends" || fail "the package does not depend on $d"
done
[ "$(dpkg-deb -f "$deb" Section)" = games ] || fail "section is not games"
echo "package test passed"
