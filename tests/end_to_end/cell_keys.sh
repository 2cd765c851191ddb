#!/usr/bin/env bash
# Keys in an open cell that lead out of it or nowhere: no other day is written than the one that is seen, a move at an
# edge keeps what was typed, and the last digit of a weight is seen beside a scroll bar.
source "$(dirname "$0")/desk.sh"

mkdir -p "$(dirname "$days")"
for day in {1..40}; do
    printf '2026-%02d-%02d@#@5@#@@#@@#@@#@@#@@#@@#@5.0@#@8%02d@#@0\n' $((1 + day / 29)) $((1 + day % 28)) "$day"
done >"$days"
row() { sed -n "$1p" "$days"; }

start
in_front

# The table opens at its newest day; from there to its top.
click_from_bottom 620 441
xdotool key ctrl+Home

# In the third row: keys that no cell uses leave the day alone; Page Down leads the editing on by sixteen rows.
click_from_bottom 118 441
xdotool key ctrl+Home ctrl+End ctrl+space
type_reading 1 6.1
xdotool key Next
type_reading 1 6.2
xdotool key Prior
type_reading 1 6.3
xdotool key Return

# The list has scrolled by two rows. In the sixth row, before bed: Tab stays, and Escape then takes back only what was typed after it.
click_from_bottom 550 426
type_reading 7 8.8
xdotool key Tab
type_reading 7 9
before=$(average_under 7)
xdotool key Escape
until_true strip_differs 7 "$before"

# By the keyboard on to the weight, as the line at the cell says.
click_from_bottom 550 411
xdotool key Tab Return Right Right Return
xdotool type 777
xdotool key Return

go_to_another_program
until_true grep -q '@#@777@#@' "$days"
[[ $(row 3) == *'@#@6.3@#@'* ]] || fail "the third row: $(row 3)"
[[ $(row 19) == *'@#@6.2@#@'* ]] || fail "the row a page further down: $(row 19)"
[[ $(row 6) == *'@#@8.8@#@'* ]] || fail "the sixth row: $(row 6)"
[[ $(row 7) == *'@#@777@#@'* ]] || fail "the seventh row: $(row 7)"
[[ $(grep -c '@#@5@#@@#@@#@@#@@#@@#@@#@5.0' "$days") == 37 ]] || fail "another day was changed: $(cat "$days")"

# The weights end before the scroll bar begins: there nothing has their colour, which is 0, 75, 127.
come_back
eval "$(xdotool getwindowgeometry --shell "$window" | grep HEIGHT)"
import -window "$window" -crop "15x220+731+$((HEIGHT - 470))" "$home/bar.png"
import -window "$window" -crop "60x220+668+$((HEIGHT - 470))" "$home/weights.png"
has_weight_colour() { convert "$1" -depth 8 txt:- | grep -i '#004B7F' >/dev/null; }
has_weight_colour "$home/weights.png" || fail "no weights are seen"
has_weight_colour "$home/bar.png" && fail "weights stand under the scroll bar"
xdotool key ctrl+q
ends_well
echo "no key in a cell reaches another day"
