#!/usr/bin/env bash
# Another program writes the table while it is open here: a new day appears, what was typed here stays, and a cell that was
# changed on both sides is shown with both values.
source "$(dirname "$0")/desk.sh"

mkdir -p "$(dirname "$days")"
for ((day = 1; day <= 12; ++day)); do
    echo "$(date -d "2026-03-$day" +%F)@#@$((90 + day))@#@@#@@#@@#@@#@@#@@#@@#@@#@"
done >"$days"
start
in_front
go_to_another_program
until_true grep -q '@#@0[0-9]*$' "$days" # saved, with their keys
come_back

saved_line() { grep "^$1@#@" "$days"; }
picture() { import -window "$window" rgb:- | md5sum; }
differs() { [[ $(picture) != "$1" ]]; }

# A day there, while nothing is typed here: it comes in when it is seen.
before=$(picture)
cp "$days" "$home/there"
sed 's/^2026-03-12@#@102@#@/2026-03-12@#@102@#@7.7/; $a 2026-04-01@#@4.4@#@@#@@#@@#@@#@@#@@#@4.4@#@@#@063910598400' "$home/there" >"$days"
until_true differs "$before"
sleep 0.5
[[ -z ${PICTURES:-} ]] || import -window "$window" "$PICTURES/brought-in.png"

# The same reading on both sides, and another one here.
in_front
add_day_of_two_readings
xdotool key Return
sed -i 's/^2026-04-01@#@4.4@#@/2026-04-01@#@4.4@#@9.9/' "$days"
go_to_another_program
until_true saved_line "$(date +%F)@#@5.6@#@7"
come_back
grep -q '^2026-03-12@#@102@#@7.7@#@' "$days" || fail "the reading of the other program is lost"
grep -q '^2026-04-01@#@4.4@#@9.9@#@' "$days" || fail "what came last is lost"
[[ $(wc -l <"$days") == 14 ]] || fail "days: $(cat "$days")"
[[ -z $(ls "$(dirname "$days")" | grep -E 'before|another program') ]] || fail "a copy, and no conflict"

# Both sides change one cell: a window shows both values, and the other one is taken.
in_front
click_from_bottom 120 465 # the first reading
xdotool key ctrl+a
type_reading 1 55
sed -i 's/^2026-03-01@#@91@#@/2026-03-01@#@66@#@/' "$days"
xdotool key Return
go_to_another_program
conflict_window() { conflict=$(xdotool search --onlyvisible --name '^Two Values for One Reading$') && [[ -n $conflict ]]; }
gone_conflict() { ! conflict_window; }
until_true conflict_window
saved_line '2026-03-01@#@55' || fail "what is here does not stand: $(head -1 "$days")"
kill "$other"
[[ -z ${PICTURES:-} ]] || { sleep 0.5; import -window "$conflict" "$PICTURES/conflict.png"; }
grep -q '^2026-03-01@#@66@#@' "$(dirname "$days")/7VXData of another program $(date +%F)" || fail "the other value is not kept"
xdotool windowactivate "$conflict"
until_true has_keys 'Two Values for One Reading'
xdotool key Tab Tab space # the button that takes it
until_true gone_conflict
# A version that a synchroniser leaves beside: it is offered, and its day comes in.
in_front
{ cat "$days"; echo '2026-05-01@#@3.3@#@@#@@#@@#@@#@@#@@#@3.3@#@@#@063913190400'; } >"$days.sync-conflict-20261124-000000-ABCDEFG"
until_true has_question
[[ -z ${PICTURES:-} ]] || import -window "$(xdotool getwindowfocus)" "$PICTURES/copy-in-conflict.png"
xdotool key Return
until_true saved_line '2026-05-01@#@3.3'
ls "$(dirname "$days")" | grep -q "^7VXData brought in $(date +%F)$" || fail "the other version is offered again"

in_front
xdotool key ctrl+q
ends_well
saved_line '2026-03-01@#@66' || fail "the other value was not taken: $(head -1 "$days")"
echo "nothing of either side was lost"
