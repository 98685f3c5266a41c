#!/usr/bin/env bash
# A test server that died without its stop leaves its pipe behind: the next start must still come up. Runs on a
# server of its own (its own runtime folder), so that the shared one is never touched.
set -euo pipefail
script="$1"
work="$(mktemp -d)"
trap 'SONALYS_PULSE_STATE="$work" "$script" stop restart >/dev/null 2>&1 || true; rm -rf "$work"' EXIT
unset PULSE_SERVER
export SONALYS_PULSE_STATE="$work" PULSE_RUNTIME_PATH="$work/run" HOME="$work"
"$script" start restart
kill -9 "$(sed -n 's/^server=//p' "$work/restart.state")"
sleep 0.5
"$script" start restart
pactl list short sources | grep -q sonalys_capture
