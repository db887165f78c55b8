#!/usr/bin/env bash
# Plays the real game unattended: starts it with an empty home, chooses Beginner level 1 in the
# chooser, plays it (keys, and the level's shipped solution when there is one) until it is won,
# and checks that the win was saved. Keeps pictures of every screen in OUT/shots.
# Environment: QUORBIT2 (the game), MAKE_TEST_LEVELS, QUORBIT_SOURCE. Usage: e2e.sh OUT [--measure]
set -euo pipefail
out=${1:?usage: e2e.sh OUT [--measure]}
game=${QUORBIT2:?QUORBIT2 names the game binary}
rm -rf "$out"
mkdir -p "$out/home" "$out/shots"
export HOME="$out/home" XDG_CONFIG_HOME="$out/home/.config"

# The shipped levels when they are built, else small test levels.
program=$(dirname "$game")
replay=()
if [ -f "$program/Levels/Beginner1.lvl" ]; then
  solution="${QUORBIT_SOURCE:-}/data/solutions/Beginner1.replay"
  [ -f "$solution" ] && replay=(--replay "$solution")
else
  program="$out/program"
  "${MAKE_TEST_LEVELS:?}" "$program"
fi

if [ "${2:-}" = "--measure" ]; then
  # Fast play on a long level for ten seconds: how many cycles run, and what they paint.
  "${MAKE_TEST_LEVELS:?}" "$out/measure"
  "$game" --program-folder "$out/measure" --start "Beginner 3" --fast --shots "$out/shots" \
    --screen-delay-ms 300 --quit-after-ms 14000 --report 2>"$out/stderr.txt" | tee "$out/measure.txt"
  exit 0
fi

# P twice pauses and resumes; Enter switches to fast play.
"$game" --program-folder "$program" --shots "$out/shots" --keys "4:P,4:P,6:Return" \
  "${replay[@]}" --quit-after-ms 25000 --screenshot "$out/shots/window.png" --report \
  2>"$out/stderr.txt" | tee "$out/run.txt"

fail() { echo "e2e: $*" >&2; cat "$out/stderr.txt" >&2; exit 1; }
grep -q "^screen qb-ui-ChooseLevel" "$out/run.txt" || fail "the level chooser was not shown"
[ "$(grep -c '^screen qb-ui-RevealScreen' "$out/run.txt")" -ge 3 ] ||
  fail "expected the title card, the level-won screen and the next title card"
conf="$XDG_CONFIG_HOME/Quorbit2/Quorbit2.conf"
[ -f "$conf" ] || fail "no settings were saved"
grep -A4 '^\[HighestLevel\]' "$conf" | grep -q '^0=2$' || fail "the win of Beginner 1 was not saved"
[ -s "$out/shots/window.png" ] || fail "no picture of the play window"
echo "e2e: chose Beginner 1, won it, the next level opened and the progress was saved"
