#!/usr/bin/env bash
# Formant tracking speed side by side: Sonalys's computeFormants against Praat's `To Formant (burg)`, both timed
# without file loading, on the same ten minutes of 22050 Hz speech made by espeak-ng.
# Usage: bench/formants_vs_praat.sh [BUILD_FOLDER]
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="$(cd "${1:-$here/build}" && pwd)"  # absolute: Praat reads paths from its script's folder
work="$build/bench-speech"
mkdir -p "$work"
speech="$work/speech.wav"

if [ ! -s "$speech" ]; then
    # A reading passage repeated with varied word order, spoken at 22050 Hz, cut to exactly ten minutes.
    words="the north wind and the sun were disputing which was the stronger when a traveller came along
        wrapped in a warm cloak they agreed that the one who first succeeded in making the traveller take his
        cloak off should be considered stronger than the other then the north wind blew as hard as he could"
    awk -v words="$words" 'BEGIN { n = split(words, w, /[ \n]+/); srand(5);
        for (i = 1; i <= 9000; i++) { printf "%s ", w[int(rand() * n) + 1]; if (i % 14 == 0) print "." } }' \
        >"$work/text.txt"
    espeak-ng -s 160 -f "$work/text.txt" -w "$work/long.wav"
    sox "$work/long.wav" "$speech" trim 0 600
    rm -f "$work/long.wav"
fi

seconds="$(soxi -D "$speech")"
read -r praatFrames praatTime < <(praat --run "$here/bench/praat_formant.praat" "$speech" 3)
ours="$("$build/bench/bench_formants" --wav="$speech" --benchmark_repetitions=3 \
    --benchmark_report_aggregates_only=true --benchmark_format=csv 2>/dev/null | grep '_median')"

printf 'Formant tracking of %.1f s of 22050 Hz speech, file loading excluded\n' "$seconds"
printf '  %-42s %7.3f s  (%d frames)\n' "Praat To Formant (burg), best of 3" "$praatTime" "$praatFrames"
echo "$ours" | awk -F, -v praat="$praatTime" '{
    name = $1; gsub(/"|BM_|\/real_time_median/, "", name); seconds = $3 / 1000;
    printf "  %-42s %7.3f s  %.1f times faster\n", name ", median of 3", seconds, praat / seconds }'
