#!/usr/bin/env bash
# Renders every sound effect and every whole music track through the game's own audio (SDL's
# disk driver, the game's sound font and music volume) and measures them with sox: RMS and peak
# level in dB of full scale, and the samples at full scale (clipped). Prints one table, and the
# spread of RMS levels of the effects and of the tracks.
# Usage: scripts/measure-audio.sh [BUILD_FOLDER]   (default: build, configured already)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
cmake --build "$build" --target quorbit-render-audio quorbit_music >/dev/null
render="$build/bin/quorbit-render-audio"
out="$build/audio-levels"
mkdir -p "$out"

# One row: name, seconds, RMS dB, peak dB, clipped samples.
measure() {
  local name=$1 wav=$2 clipped stats
  clipped=$(grep -o '[0-9]* clipped' <<<"$3" | cut -d' ' -f1)
  stats=$(sox "$wav" -n stats 2>&1)
  printf '%-20s %7.2f %8.2f %8.2f %8d\n' "$name" \
    "$(awk '/^Length s/ { print $3 }' <<<"$stats")" \
    "$(awk '/^RMS lev dB/ { print $4 }' <<<"$stats")" \
    "$(awk '/^Pk lev dB/ { print $4 }' <<<"$stats")" "$clipped"
}

spread() {
  awk -v what="$1" '{ if (NR == 1 || $3 > hi) hi = $3; if (NR == 1 || $3 < lo) lo = $3 }
    END { printf "%s: RMS from %.2f to %.2f dB, spread %.2f dB\n", what, lo, hi, hi - lo }'
}

printf '%-20s %7s %8s %8s %8s\n' name seconds "RMS dB" "peak dB" clipped
effects=$(sed 's/#.*//' data/sounds/effects.txt | awk 'NF >= 2 { print $2 " " $1 }' | sort -u)
while read -r type number; do
  wav="$out/effect-$type-$number.wav"
  log=$("$render" effect "$type" "$number" "$wav" 2>/dev/null)
  measure "$type-$number" "$wav" "$log"
done <<<"$effects" | tee "$out/effects.txt"
for mid in "$build"/bin/Music/*.mid; do
  name=$(basename "$mid" .mid)
  wav="$out/music-${name//[^A-Za-z0-9]/_}.wav"
  log=$("$render" music "$mid" "$wav" 2>/dev/null)
  measure "$name" "$wav" "$log"
done | tee "$out/tracks.txt"
spread effects <"$out/effects.txt"
spread tracks <"$out/tracks.txt"
