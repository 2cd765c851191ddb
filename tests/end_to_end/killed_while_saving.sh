#!/usr/bin/env bash
# Kills the program in the middle of saving a large table, again and again, and looks at what is left of the days.
# Usage: killed_while_saving.sh PROGRAM [ROUNDS [DAYS]]
set -euo pipefail
program=$1
rounds=${2:-15}
days=${3:-20000}
source "$(dirname "$0")/cut_saves.sh"
trap 'kill -KILL "${pid:-}" 2>/dev/null || true; rm -rf "$home"' EXIT

kill_group() {
    kill -KILL -- "-$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
}

lay_out_days
measure
for ((round = 0; round < rounds; ++round)); do cut_one kill_group; done
report kills
