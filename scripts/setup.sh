#!/usr/bin/env bash
# Sets up a Debian 12 machine for Sonalys and then either starts the program on the demo data root (`run`)
# or builds and runs every test (`test`). Run it as root from anywhere; it installs only what is missing.
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$here"
mode="${1:-run}"
jobs="$(nproc 2>/dev/null || echo 2)"

packages=(
    build-essential cmake ninja-build pkg-config git
    clang lld libclang-rt-14-dev clang-format
    libgtest-dev libgmock-dev libbenchmark-dev
    qt6-base-dev qt6-multimedia-dev libpulse-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libqt6svg6
    libxkbcommon-dev libgl-dev
    libmp3lame-dev libmpg123-dev libfftw3-dev
    fonts-dejavu-core fonts-liberation fonts-liberation2 fonts-noto-cjk
    sox libsox-fmt-all espeak-ng gdal-bin dbview praat
    pulseaudio pulseaudio-utils xvfb xauth
)

install_missing() {
    local missing=()
    for package in "${packages[@]}"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing+=("$package")
    done
    if ((${#missing[@]})); then
        echo "Installing: ${missing[*]}"
        export DEBIAN_FRONTEND=noninteractive
        apt-get update -qq
        apt-get install -y -qq --no-install-recommends "${missing[@]}"
    fi
}

build() {  # build FOLDER [cmake options...]
    local folder="$1"
    shift
    cmake -S . -B "$folder" -G Ninja "$@" >/dev/null
    cmake --build "$folder" -j "$jobs"
}

check_format() {
    local files
    files=$(git ls-files -- 'src/*.cpp' 'src/*.h' 'tests/*.cpp' 'tests/*.h' 'bench/*.cpp' 'bench/*.h' 'fuzz/*.cpp')
    if [ -n "$files" ]; then
        echo "$files" | xargs clang-format --dry-run --Werror
    fi
    echo "Formatting: clean"
}

# The audio tests need a PulseAudio server with their test devices: one is started in user mode when none runs (or
# the devices are added to the one that runs) before the tests, and stopped by its process id after them.
start_test_sound_server() {
    "$here/scripts/pulse-test-server.sh" start setup
    trap stop_test_sound_server EXIT
}
stop_test_sound_server() {
    "$here/scripts/pulse-test-server.sh" stop setup
}

run_fuzzers() {  # run_fuzzers FOLDER SECONDS
    local folder="$1" seconds="$2" fuzzer corpus
    for fuzzer in "$folder"/fuzz/fuzz_*; do
        [ -x "$fuzzer" ] || continue
        corpus="$folder/corpus/$(basename "$fuzzer")"
        mkdir -p "$corpus"
        seeds="$here/fuzz/seeds/$(basename "$fuzzer")"
        echo "Fuzzing $(basename "$fuzzer") for ${seconds}s"
        "$fuzzer" -max_total_time="$seconds" -print_final_stats=0 "$corpus" $( [ -d "$seeds" ] && echo "$seeds" ) \
            >"$folder/$(basename "$fuzzer").log" 2>&1 || { tail -n 60 "$folder/$(basename "$fuzzer").log"; return 1; }
    done
}

case "$mode" in
run)
    install_missing
    build build -DCMAKE_BUILD_TYPE=RelWithDebInfo
    cd "$here/demo"
    if [ -x "$here/build/src/app/sonalys" ]; then
        exec "$here/build/src/app/sonalys"
    fi
    exec "$here/build/src/cli/sonalys-analyze" info pac001/wv001.wav
    ;;
test)
    install_missing
    check_format
    build build -DCMAKE_BUILD_TYPE=RelWithDebInfo
    start_test_sound_server
    (cd build && ctest --output-on-failure -j "$jobs")
    # The same tests again with the address and undefined-behaviour checkers watching.
    build build-sanitize -DCMAKE_BUILD_TYPE=Debug -DSONALYS_SANITIZE=ON
    (cd build-sanitize && ASAN_OPTIONS=detect_leaks=1 \
        LSAN_OPTIONS="suppressions=$here/scripts/lsan.supp" \
        UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
        ctest --output-on-failure -j "$jobs")
    stop_test_sound_server
    # The file readers under libFuzzer for a bounded time.
    CC=clang CXX=clang++ build build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DSONALYS_FUZZ=ON \
        -DSONALYS_WITH_QT=OFF -DSONALYS_BUILD_TESTS=OFF
    run_fuzzers build-fuzz "${SONALYS_FUZZ_SECONDS:-30}"
    echo "All tests passed."
    ;;
*)
    echo "usage: scripts/setup.sh run|test" >&2
    exit 1
    ;;
esac
