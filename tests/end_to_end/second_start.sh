#!/usr/bin/env bash
# A second start brings the running window to the front and ends; after a kill the next start is a first one again.
source "$(dirname "$0")/desk.sh"

start
first=$pid
in_front
go_to_another_program
"$program" || fail "the second start ended with $?"
until_true active "$window"
kill -0 "$first" || fail "the running program is gone"

kill -KILL "$first"
wait "$first" 2>/dev/null || true
start
kill -TERM "$pid"
ends_well
echo "one program at a time"
