#!/usr/bin/env bash
# The end of the program when the table can't be written: the user is asked, by whatever way the program is closed, and
# nothing that was typed is lost, neither in another folder nor by a signal.
source "$(dirname "$0")/desk.sh"

export XDG_STATE_HOME="$home/state" HOME="$home"
folder="$home/data/Tallyvane"
mkdir -p "$folder" "$home/stick"

asked_anew() { asked && [[ $(xdotool getwindowfocus) != "$question" ]]; }

asked() { has_keys Tallyvane && [[ $(xdotool getwindowfocus) != "$window" ]]; }

# What stands in the table's place is a folder: told at the start.
mkdir "$days"
"$program" 2>"$home/errors" &
pid=$!
until_true main_window
until_true asked
xdotool key Return
add_day_of_two_readings
xdotool key ctrl+q
until_true asked

# Once more, in vain; then into another folder.
question=$(xdotool getwindowfocus)
xdotool key Return
until_true asked_anew
xdotool key Right Return
answer 'Select a folder to save in' "$home/stick"
until_true asked
xdotool key Return
ends_well
saved=("$home"/stick/*/7VXData)
grep -q '@#@5\.6@#@7@#@' "${saved[0]}" || fail "not saved elsewhere: $(find "$home/stick")"
rmdir "$days"

# A signal while the question is up: nobody answers, and the next start offers what was kept.
start
add_day_of_two_readings
mkdir "$days"
xdotool key alt+F4
until_true asked
kill -TERM "$pid"
ends_well
kept=("$XDG_STATE_HOME"/Tallyvane/Unsaved*/7VXData)
[[ $(stat -c %a "${kept[0]}") == 600 ]] || fail "not kept for the owner alone"
rmdir "$days"
"$program" 2>"$home/errors" &
pid=$!
until_true has_keys Tallyvane
xdotool key Return
until_true main_window
in_front
xdotool key ctrl+q
ends_well
grep -q '@#@5\.6@#@7@#@' "$days" || fail "not put in place: $(cat "$days")"
[[ ! -e ${kept[0]} ]] || fail "still kept"

# A window's place that can't be written is no reason for a question.
rm -f "$folder/QVXWindowData"
mkdir "$folder/QVXWindowData"
start
in_front
xdotool key ctrl+q
ends_well
echo "the end loses nothing and traps nobody"
