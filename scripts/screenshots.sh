#!/usr/bin/env bash
# Takes the README's pictures of a title card and a level-won screen from the real game under
# Xvfb: it plays a shipped level with its shipped solution and keeps the screens it shows.
# Usage: scripts/screenshots.sh [BUILD_DIR] [LEVEL]   (defaults: build, "Beginner 4")
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
level=${2:-Beginner 4}
game="$build/bin/quorbit2"
[ -x "$game" ] || { echo "no game at $game: build it first" >&2; exit 1; }
[ -f "$build/bin/Levels/${level// /}.lvl" ] || { echo "no shipped level $level in $build/bin" >&2; exit 1; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/home" "$work/shots"
# An empty home: the first level's title card, then the level played by its solution until won.
HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" SDL_AUDIODRIVER=dummy \
  xvfb-run -a -s "-screen 0 1280x1024x24" "$game" --start "$level" --fast \
  --replay "data/solutions/${level// /}.replay" --shots "$work/shots" --screen-delay-ms 2500 \
  --quit-after-ms 40000 >"$work/run.txt" 2>"$work/stderr.txt"

mapfile -t cards < <(ls "$work/shots"/*-qb-ui-RevealScreen.png 2>/dev/null)
[ ${#cards[@]} -ge 2 ] || { echo "expected a title card and a level-won screen" >&2; cat "$work/stderr.txt" >&2; exit 1; }
cp "${cards[0]}" docs/screenshots/title-card.png
cp "${cards[1]}" docs/screenshots/level-won.png
echo "docs/screenshots/title-card.png and level-won.png: $level"
