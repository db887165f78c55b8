#!/usr/bin/env bash
# Installs the build into a temporary prefix, then runs the installed tools and game from there.
set -euo pipefail
build=$1
prefix=$(mktemp -d "${TMPDIR:-/tmp}/quorbit install XXXX")  # a path with a space on purpose
trap 'rm -rf "$prefix"' EXIT
cmake --install "$build" --prefix "$prefix" >/dev/null

fail() { echo "FAIL: $*" >&2; exit 1; }
for f in bin/quorbit2 bin/quorbit-sim bin/quorbit-level \
         share/quorbit2/Levels/Beginner1.lvl share/quorbit2/Music/planet9.mid \
         share/quorbit2/Solutions/Beginner1.replay \
         share/applications/quorbit2.desktop share/icons/hicolor/48x48/apps/quorbit2.png \
         share/icons/hicolor/scalable/apps/quorbit2.svg share/man/man6/quorbit-sim.6.gz \
         share/man/man6/quorbit-level.6.gz; do
  [ -e "$prefix/$f" ] || fail "$f is not installed"
done
levels=$(ls "$prefix/share/quorbit2/Levels" | wc -l)
echo "installed $levels levels"

# The installed runner plays an installed level.
result=$(cd / && "$prefix/bin/quorbit-sim" "$prefix/share/quorbit2/Levels/Beginner1.lvl" | tail -n 1)
case "$result" in '{"result":"won"'*) ;; *) fail "quorbit-sim on Beginner1: $result" ;; esac

# The installed game starts away from the build, finds its levels in share/quorbit2, plays a level
# and quits.
home=$(mktemp -d)
export XDG_RUNTIME_DIR="$home/run"; mkdir -p -m 700 "$XDG_RUNTIME_DIR"
trap 'rm -rf "$prefix" "$home"' EXIT
out=$(cd / && HOME="$home" XDG_CONFIG_HOME="$home/.config" QT_QPA_PLATFORM=offscreen \
      SDL_AUDIODRIVER=dummy "$prefix/bin/quorbit2" --start "Beginner 1" --fast --quit-after-ms 5000 \
      --shots "$home/shots" --screen-delay-ms 200 --report 2>&1) || fail "the installed game exited with an error: $out"
echo "$out"
echo "$out" | grep -qE "^cycles [1-9]" || fail "the installed game did not play: $out"
echo "install test passed"
