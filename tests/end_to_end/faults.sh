#!/usr/bin/env bash
# A disk that is full, breaks in the middle of a write, turns read-only or goes away, a clock that jumps, all while a day
# is being typed, and a kill in the middle of a write: what is in the file, what the user is told, and that the next save
# brings everything.
# Usage: faults.sh PROGRAM FAULTY_DESKTOP_LIBRARY
source "$(dirname "$0")/desk.sh"
library=$2

export FAULTS="$home/faults"
folder="$home/data/Tallyvane"
mkdir -p "$folder"
printf '2026-01-%02d@#@5.5@#@6@#@@#@@#@@#@@#@@#@5.8@#@@#@0\n' {1..28} >"$days"

becomes() { printf '%s\n' "$*" >"$FAULTS"; }

message_is_up() { [[ $(xdotool getwindowfocus) != "$window" && $(xdotool getwindowfocus getwindowname) == Tallyvane ]]; }

# Types a reading into a new day.
type_day() {
    in_front
    plus
    type_reading 1 "$1"
    xdotool key Return
}

# Nothing of ours says anything when the other program has the keys.
is_silent() {
    sleep 0.3
    [[ $(xdotool getwindowfocus getwindowname) == xmessage ]] || fail "$1: something is said"
}

# The first half of the new form is there, and the second is not.
half_written() { ! head -1 "$days" | grep -q $'\r' && tail -1 "$days" | grep -q $'\r'; }

saved() { grep -q "@#@$1@#@" "$days"; }

report() { printf '%-26s %-42s %s\n' "$1" "$2" "$3"; }

LD_PRELOAD="$library" start
cp "$days" "$home/before"

# A disk that fails with a message: the file stays as it was, what was typed stays in the window.
for disk in full broken; do
    reading=$([[ $disk == full ]] && echo 11.1 || echo 12.2)
    type_day "$reading"
    cp "$days" "$home/before"
    becomes "$disk"
    xmessage "another program" &
    other=$!
    until_true message_is_up
    cmp "$days" "$home/before" || fail "$disk: the file changed"
    becomes
    xdotool key Return
    kill "$other"
    in_front
    go_to_another_program
    until_true saved "$reading"
    come_back
    report "disk $disk" "old file whole; error message" "typed day saved after the fault"
done

# A disk that can't be written at all: silence, and the same.
type_day 13.3
cp "$days" "$home/before"
becomes read-only
go_to_another_program
is_silent read-only
cmp "$days" "$home/before" || fail "read-only: the file changed"
becomes
come_back
go_to_another_program
until_true saved 13.3
come_back
report "disk read-only" "old file whole; silence" "typed day saved after the fault"

# A folder that goes away and comes back.
type_day 14.4
mv "$folder" "$home/away"
go_to_another_program
is_silent "folder away"
[[ ! -e $days ]] || fail "folder away: a new table appeared"
rm -rf "$folder"
mv "$home/away" "$folder"
come_back
go_to_another_program
until_true saved 14.4
come_back
report "folder away" "old file whole; silence" "typed day saved after its return"

# A disk that answers late: a word tells of it, the window stays alive, and what is typed meanwhile waits.
saving() { xdotool search --onlyvisible --name '^Saving\.\.\.$' >/dev/null; }
not_saving() { ! saving; }
in_front
plus
type_reading 1 17.7
becomes slow
go_to_another_program
until_true saving
before=$(average_under 2)
kill "$other"
xdotool windowactivate "$window"
xdotool key Tab # into the next reading
xdotool type 18.8
[[ -z ${PICTURES:-} ]] || import -window root "$PICTURES/saving.png"
saving || fail "slow: the save was over too soon to tell"
becomes
until_true not_saving
until_true strip_differs 2 "$before"
xdotool key Return
go_to_another_program
until_true saved '17.7@#@18.8'
come_back
report "disk slow" "\"Saving...\" is shown" "typed day and later keys saved"

# A clock that jumps a year ahead, and back behind the start: days are saved, and the journal's date is the clock's.
for jump in '31536000 15.5 +1' '-31536000 16.6 -1'; do
    read -r seconds reading years <<<"$jump"
    becomes "clock $seconds"
    type_day "$reading"
    click_from_bottom 708 140 # the date into the journal
    go_to_another_program
    until_true saved "$reading"
    come_back
    report "clock by $seconds s" "saved as ever; silence" "no day lost"
done
becomes
xdotool key ctrl+q
ends_well
for years in 1 -1; do
    grep -q "$(date -d "$years year" +%Y)" "$folder/QVXLogData" || fail "the clock did not jump: $(cat "$folder/QVXLogData")"
done

# Killed in the middle of a write, after its first half: the next start brings it to its end, keeps what was there, and
# says so.
cp "$days" "$home/before"
sed -i 's/$/\r/' "$days" # a form that is written anew from the first line on
LD_PRELOAD="$library" start
becomes stop
kill -TERM "$pid"
until_true half_written
kill -KILL "$pid"
wait "$pid" 2>/dev/null || true
becomes
cp "$days" "$home/mixture"
! cmp -s "$days" "$home/before" || fail "killed: it was not in the middle"
start
until_true message_is_up
cmp "$days" "$home/before" || fail "killed: the table is not whole"
cmp "$folder/7VXData damaged $(date +%F)" "$home/mixture" || fail "killed: what was there is not kept"
[[ -z $(ls "$folder" | grep Unfinished) ]] || fail "killed: the record stays"
xdotool key Return
in_front
xdotool key ctrl+q
ends_well
report "killed inside a write" "new table whole; a message" "no day lost"

for ((day = 1; day <= 28; ++day)); do
    grep -q "^2026-01-$(printf %02d "$day")@#@5.5@#@6@#@" "$days" || fail "day $day is lost"
done
echo "no day was lost"
