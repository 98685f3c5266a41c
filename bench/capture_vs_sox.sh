#!/usr/bin/env bash
# Processor time of a 20-second take at 44100 Hz: the program's window (window_capture_bench) beside sox's `rec`, the
# recorder a clinician might use instead, both capturing from the test sound server's pipe source while a tone is fed
# into it at the pace of real time. Start the server first: SONALYS_TEST_RATE=44100 scripts/pulse-test-server.sh start bench
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
seconds="${1:-20}"
fifo="$(pactl list modules | sed -n 's/^\s*Argument: .*file=\([^ ]*\).*/\1/p' | head -1)"
[ -p "$fifo" ] || { echo "no test pipe source: start scripts/pulse-test-server.sh first" >&2; exit 1; }

echo "== Sonalys, through its window"
"$here/build/bench/window_capture_bench" "$seconds" 2>/dev/null | grep -E "Hz|processor|thread"

echo "== sox rec, the same length, fed the same way"
python3 - "$fifo" "$seconds" <<'PY' &
import math, struct, sys, time
fifo, seconds = sys.argv[1], int(sys.argv[2]) + 3
block = 441  # 10 ms at 44100 Hz
start = time.monotonic()
with open(fifo, "wb", buffering=0) as out:
    for n in range(seconds * 100):
        out.write(b"".join(struct.pack("<h", int(8000 * math.sin(2 * math.pi * 441 * (n * block + i) / 44100)))
                           for i in range(block)))
        time.sleep(max(0.0, start + (n + 1) / 100 - time.monotonic()))
PY
feeder=$!
out="$(mktemp --suffix=.wav)"
/usr/bin/time -f "  processor time while capturing: %U s user + %S s system over %e s" \
    rec -q -r 44100 -c 1 -b 16 "$out" trim 0 "$seconds" 2>&1 | grep processor
kill "$feeder" 2>/dev/null || true
rm -f "$out"
