#!/usr/bin/env bash
# Installs a build into a temporary prefix, in the folders the build was configured with, then
# runs the installed tools and game from there. Usage: install_test.sh BUILD
set -euo pipefail
build=$1
fail() { echo "FAIL: $*" >&2; exit 1; }

# The install folders from the build's cache; empty ones take their GNU defaults.
cached() { sed -n "s/^CMAKE_INSTALL_$1:[A-Z]*=//p" "$build/CMakeCache.txt"; }
bin=$(cached BINDIR); root=$(cached DATAROOTDIR); data=$(cached DATADIR); man=$(cached MANDIR)
root=${root:-share}; data=${data:-$root}; man=${man:-$root/man}

home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
prefix="$home/quorbit install"  # a path with a space on purpose
cmake --install "$build" --prefix "$prefix" >/dev/null

for f in "$bin/quorbit2" "$bin/quorbit-sim" "$bin/quorbit-level" "$bin/quorbit-edit" \
         "$data/quorbit2/Levels/Beginner1.lvl" "$data/quorbit2/Music/planet9.mid" \
         "$data/quorbit2/Solutions/Beginner1.replay" \
         "$root/applications/quorbit2.desktop" "$root/icons/hicolor/48x48/apps/quorbit2.png" \
         "$root/icons/hicolor/scalable/apps/quorbit2.svg" "$man/man6/quorbit-sim.6.gz" \
         "$man/man6/quorbit-level.6.gz" "$root/applications/quorbit-edit.desktop" \
         "$root/icons/hicolor/48x48/apps/quorbit-edit.png" \
         "$root/icons/hicolor/scalable/apps/quorbit-edit.svg" "$man/man6/quorbit-edit.6.gz"; do
  [ -e "$prefix/$f" ] || fail "$f is not installed"
done
echo "installed $(ls "$prefix/$data/quorbit2/Levels" | wc -l) levels in $data/quorbit2"

# The installed runner plays an installed level.
result=$(cd / && "$prefix/$bin/quorbit-sim" "$prefix/$data/quorbit2/Levels/Beginner1.lvl" | tail -n 1)
case "$result" in '{"result":"won"'*) ;; *) fail "quorbit-sim on Beginner1: $result" ;; esac

# The installed game starts away from the build, finds its levels from its own folder (no
# standard data folder holds them), plays a level and quits.
export XDG_RUNTIME_DIR="$home/run"; mkdir -p -m 700 "$XDG_RUNTIME_DIR"
out=$(cd / && HOME="$home" XDG_CONFIG_HOME="$home/.config" XDG_DATA_HOME="$home/none" \
      XDG_DATA_DIRS="$home/none" QT_QPA_PLATFORM=offscreen SDL_AUDIODRIVER=dummy \
      "$prefix/$bin/quorbit2" --start "Beginner 1" --fast --quit-after-ms 5000 \
      --shots "$home/shots" --screen-delay-ms 200 --report 2>&1) ||
  fail "the installed game exited with an error: $out"
echo "$out"
grep -qE "^cycles [1-9]" <<<"$out" || fail "the installed game did not play: $out"
# The installed editor starts away from the build with an installed level and keeps running
# until it is stopped (status 124 from timeout).
status=0
(cd / && HOME="$home" XDG_CONFIG_HOME="$home/.config" QT_QPA_PLATFORM=offscreen \
  timeout 5 "$prefix/$bin/quorbit-edit" "$prefix/$data/quorbit2/Levels/Beginner1.lvl") || status=$?
[ "$status" -eq 124 ] || fail "the installed editor ended with status $status"
echo "install test passed"
