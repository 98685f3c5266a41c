#!/usr/bin/env bash
# A PulseAudio server for the audio tests: a named pipe as the default source (the tests write sound into it) and a
# null sink as the default sink (the tests record its monitor), both 16-bit mono at 11025 Hz (SONALYS_TEST_RATE
# gives another rate, for measurements at 44100 Hz), so that what goes in comes out sample for sample. The sink never rewinds: a rewind would make its monitor hear some sound twice.
#
#   pulse-test-server.sh start NAME   when no server runs, starts one in user mode; when one runs, adds the two
#                                     devices to it and makes them its defaults. Notes under NAME what it did.
#   pulse-test-server.sh stop NAME    undoes what `start NAME` did: stops the server it started, by its process id,
#                                     or removes the devices it added and gives the old defaults back.
#
# A start under another NAME that finds the devices already there does nothing, and so does its stop. The tests find
# the pipe's path in the server's module list.
set -euo pipefail

command="${1:-}"
name="${2:-default}"
state_dir="${SONALYS_PULSE_STATE:-/tmp/sonalys-pulse-$(id -u)}"
state="$state_dir/$name.state"
source_name=sonalys_capture
sink_name=sonalys_playback
spec="format=s16le rate=${SONALYS_TEST_RATE:-11025} channels=1"

server_up() { pactl info >/dev/null 2>&1; }

has_test_source() { pactl list short sources 2>/dev/null | awk '{print $2}' | grep -qx "$source_name"; }

# The pipe source makes its fifo itself and refuses one that is already there: a server that died without its stop
# leaves it behind. Only called when no source of ours is loaded, so nothing reads the old fifo any more.
remove_stale_fifo() { rm -f "$state_dir/capture.fifo"; }

start_server() {
    local config="$state_dir/server.pa" pid
    remove_stale_fifo
    cat >"$config" <<EOF
load-module module-native-protocol-unix
load-module module-null-sink sink_name=$sink_name $spec norewinds=1
load-module module-pipe-source source_name=$source_name file=$state_dir/capture.fifo $spec
set-default-sink $sink_name
set-default-source $source_name
EOF
    # Run as root the server warns that it is meant for a user session; that is fine here.
    pulseaudio -n --daemonize=no --exit-idle-time=-1 --use-pid-file=no --file="$config" \
        </dev/null >"$state_dir/server.log" 2>&1 &
    pid=$!
    for _ in $(seq 100); do
        if server_up && has_test_source; then
            echo "server=$pid" >"$state"
            echo "PulseAudio test server started (pid $pid)"
            return 0
        fi
        kill -0 "$pid" 2>/dev/null || break
        sleep 0.1
    done
    echo "PulseAudio test server did not come up; its log:" >&2
    cat "$state_dir/server.log" >&2
    kill "$pid" 2>/dev/null || true
    return 1
}

add_devices() {
    local sink source
    remove_stale_fifo
    {
        echo "default_sink=$(pactl get-default-sink)"
        echo "default_source=$(pactl get-default-source)"
        sink=$(pactl load-module module-null-sink sink_name=$sink_name $spec norewinds=1)
        echo "module=$sink"
        source=$(pactl load-module module-pipe-source source_name=$source_name file="$state_dir/capture.fifo" $spec)
        echo "module=$source"
    } >"$state"
    pactl set-default-sink "$sink_name"
    pactl set-default-source "$source_name"
    echo "Test devices added to the running PulseAudio server"
}

start() {
    mkdir -p "$state_dir"
    if [ -f "$state" ]; then
        # Started under this name and not stopped yet: the note of what to undo is kept, whatever runs now.
        if server_up && has_test_source; then return 0; fi
        rm -f "$state"  # left behind by a server that is gone
    fi
    if ! server_up; then
        start_server
    elif ! has_test_source; then
        add_devices
    else
        : >"$state"  # the devices were there already: nothing to undo
    fi
}

stop_server() {
    local pid="$1"
    kill "$pid" 2>/dev/null || return 0
    for _ in $(seq 50); do
        kill -0 "$pid" 2>/dev/null || { echo "PulseAudio test server stopped (pid $pid)"; return 0; }
        sleep 0.1
    done
    kill -9 "$pid" 2>/dev/null || true
}

stop() {
    [ -f "$state" ] || return 0
    local key value
    while IFS='=' read -r key value; do
        case "$key" in
        server) stop_server "$value" ;;
        module) pactl unload-module "$value" 2>/dev/null || true ;;
        default_sink) [ -n "$value" ] && pactl set-default-sink "$value" 2>/dev/null || true ;;
        default_source) [ -n "$value" ] && pactl set-default-source "$value" 2>/dev/null || true ;;
        esac
    done <"$state"
    rm -f "$state"
}

case "$command" in
start) start ;;
stop) stop ;;
*)
    echo "usage: scripts/pulse-test-server.sh start|stop [NAME]" >&2
    exit 1
    ;;
esac
