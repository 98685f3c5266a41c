#!/usr/bin/env bash
# Regenerates the seed inputs of the fuzz targets: a few small WAV files of the shapes the reader meets (made by
# sox, then cut or extended by hand) and a few label files.
set -euo pipefail
cd "$(dirname "$0")/seeds"
wav=fuzz_wav_reader
mrk=fuzz_mrk_reader
rm -rf "$wav" "$mrk"
mkdir -p "$wav" "$mrk"

tone() {  # tone OUT RATE CHANNELS BITS
    sox -R -n -r "$2" -c "$3" -b "$4" "$1" synth 0.002 sine 440 sine 660
}
tone "$wav/mono16-22050.wav" 22050 1 16
tone "$wav/stereo16-44100.wav" 44100 2 16
tone "$wav/mono8-11025.wav" 11025 1 8
tone "$wav/stereo24-48000.wav" 48000 2 24
sox -R -n -r 8000 -c 1 -e floating-point -b 32 "$wav/float-8000.wav" synth 0.002 sine 440

# A LIST chunk between "fmt " and "data", and a chunk after the data.
base="$wav/mono16-22050.wav"
{
    head -c 4 "$base"
    printf '\x00\x00\x00\x00'  # a RIFF size left at 0, as some writers do
    tail -c +9 "$base" | head -c 28
    printf 'LIST\x0c\x00\x00\x00INFOINAM\x00\x00\x00\x00'
    tail -c +37 "$base"
    printf 'cue \x04\x00\x00\x00\x00\x00\x00\x00'
} >"$wav/list-and-trailer.wav"
head -c 60 "$base" >"$wav/truncated.wav"
printf 'RIFF\x24\xf0\xff\x7fWAVEfmt \x10\x00\x00\x00\x01\x00\x01\x00\x22\x56\x00\x00\x44\xac\x00\x00\x02\x00\x10\x00data\x00\xf0\xff\x7f\x01\x00\x02\x00' \
    >"$wav/claims-2gb.wav"

printf '1;;0;;22050;;4410;;4470;;Vowel;;' >"$mrk/one-label.mrk"
printf '3;;0;;100;;10;;20;;x;y;;0;;100;;30;;40;;end;;;0;;100;;50;;60;;z;;' >"$mrk/semicolons.mrk"
printf '2;;1;;2;;3;;4;;;;5;;6;;7;;8;;b;;' >"$mrk/empty-text.mrk"
printf '2;;1;;2;;3;;4;;Hi;;5;;6' >"$mrk/cut-short.mrk"
printf '60;;1;;2;;3;;4;;a;;' >"$mrk/count-60.mrk"
