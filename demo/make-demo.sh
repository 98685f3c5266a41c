#!/usr/bin/env bash
# Regenerates the demo recordings from synthetic speech (espeak-ng), as mono 16-bit WAV files.
set -euo pipefail
cd "$(dirname "$0")"
say() {  # say OUT.wav RATE VOICE TEXT
    espeak-ng -v "$3" -s 150 -w /tmp/sonalys-demo.wav "$4"
    sox /tmp/sonalys-demo.wav -r "$2" -c 1 -b 16 "$1"
    rm -f /tmp/sonalys-demo.wav
}
mkdir -p pac001 pac002 "Other Files"
say pac001/wv001.wav 22050 en "The rainbow is a division of white light into many beautiful colours."
say pac001/wv002.wav 22050 en+f3 "Aaaaaaaah. Eeeeeeeeh. Ooooooooh."
say pac002/qv001.wav 44100 en+m3 "Speech therapy helps people speak clearly."
# The client table: clients 1 and 2, whose folders hold the recordings above (needs the built command-line tool).
rm -f pacb.dbf
"${SONALYS_ANALYZE:-../build/src/cli/sonalys-analyze}" demo-table .
