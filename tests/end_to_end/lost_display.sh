#!/usr/bin/env bash
# When the display dies under the program, as at the hard end of a desktop session, what was typed is saved all the same.
source "$(dirname "$0")/desk.sh"

start
add_day_of_two_readings
kill -KILL "$display_server"
wait "$pid" 2>/dev/null && fail "a program without a display can't end well"
until_true grep -q '@#@5\.6@#@7@#@' "$days"
echo "the day outlived its display"
