#!/usr/bin/env bash
# A disk that is full, breaks in the middle of a write, turns read-only or goes away, and a clock that jumps, all while a
# day is being typed: what is in the file, what the user is told, and that the next save brings everything.
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

saved() { grep -q "@#@$1@#@" "$days"; }

report() { printf '%-26s %-42s %s\n' "$1" "$2" "$3"; }

LD_PRELOAD="$library" start
cp "$days" "$home/before"

# A disk that fails with a message: the file stays as it was, what was typed stays in the window.
for disk in full broken; do
    type_day "$([[ $disk == full ]] && echo 11.1 || echo 12.2)"
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
    until_true saved "$([[ $disk == full ]] && echo 11.1 || echo 12.2)"
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
[[ ! -e $days ]] || fail "folder away: a new file appeared"
rm -rf "$folder"
mv "$home/away" "$folder"
come_back
go_to_another_program
until_true saved 14.4
come_back
report "folder away" "old file whole; silence" "typed day saved after its return"

# A clock that jumps a year ahead, and back behind the start.
for seconds in 31536000 -31536000; do
    becomes "clock $seconds"
    type_day 15.5
    go_to_another_program
    until_true saved 15.5
    come_back
    report "clock by $seconds s" "saved as ever; silence" "no day lost"
done
becomes

for ((day = 1; day <= 28; ++day)); do
    grep -q "^2026-01-$(printf %02d "$day")@#@5.5@#@6@#@" "$days" || fail "day $day is lost"
done
xdotool key ctrl+q
ends_well
echo "no day was lost"
