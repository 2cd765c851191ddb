#!/usr/bin/env bash
# When the display dies under the program, as at the hard end of a desktop session, what was typed is saved all the same,
# or kept where it can't be saved.
source "$(dirname "$0")/desk.sh"
export XDG_STATE_HOME="$home/state" HOME="$home"

start
add_day_of_two_readings
kill -KILL "$display_server"
wait "$pid" 2>/dev/null && fail "a program without a display can't end well"
until_true grep -q '@#@5\.6@#@7@#@' "$days"

# Once more, with days that have waited since another program came to the front.
rm -r "$days" "$(dirname "$days")/Snapshots"
open_display
start
add_day_of_two_readings
mkdir "$days"
go_to_another_program
come_back
kill -KILL "$display_server"
wait "$pid" 2>/dev/null && fail "a program without a display can't end well"
kept=("$XDG_STATE_HOME"/Tallyvane/Unsaved*/7VXData)
grep -q '@#@5\.6@#@7@#@' "${kept[0]}" || fail "the days that waited are lost"
echo "the day outlived its display"
