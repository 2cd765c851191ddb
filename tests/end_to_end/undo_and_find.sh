#!/usr/bin/env bash
# Each change is undone to the last byte, and days are found and selected, by keys and clicks, in a month of real days
# and in 2,000 of them. Then a first start, with a reading in the other unit.
source "$(dirname "$0")/desk.sh"
readings="$(dirname "$0")/../data/patient-20.csv"

# So many days, the last of which is yesterday.
lay_out() {
    mkdir -p "$(dirname "$days")"
    seq $(($1 - 1)) -1 0 | sed 's/.*/yesterday -& days/' | date -f - +%F |
        paste -d, - <(for ((i = 0; i < $1; i += 130)); do head -130 "$readings"; done | head -"$1" | cut -d, -f2-) |
        sed 's/,/@#@/g' >"$days"
}

is_saved() { cmp -s "$days" "$home/$1"; }
# Has the days saved, and waits until they are as they were.
must_be_as() {
    go_to_another_program
    until_true is_saved "$1"
    come_back
}
lines_are() { [[ $(wc -l <"$days") == "$1" ]]; }
must_have_lines() {
    go_to_another_program
    until_true lines_are "$1"
    come_back
}
press() { for key in "$@"; do xdotool key "$key"; done; }
into_the_table() {
    click_from_bottom 620 441 # an average: no cell opens
    xdotool key Escape
}

for number in 30 2000; do
    lay_out "$number"
    start
    in_front
    plus # so that there is something to save
    xdotool key ctrl+z
    go_to_another_program
    sleep 0.3
    come_back
    cp "$days" "$home/before"

    # A figure on a cell, an emptied cell, a day, a sort, days that are removed.
    into_the_table
    press ctrl+End Right 9 7 Return Right Right Delete
    plus
    press 5 Return
    click_from_bottom 118 481 # the heading "Before"
    into_the_table
    xdotool key alt+d
    xdotool key 7
    click_from_bottom 45 219 # the button that removes
    must_have_lines $((number - 6)) # the last six days before today, and today
    cp "$days" "$home/after"
    press ctrl+z ctrl+z ctrl+z ctrl+z ctrl+z ctrl+z
    must_be_as before
    press ctrl+y ctrl+shift+z ctrl+y ctrl+y ctrl+y ctrl+y
    must_be_as after
    press ctrl+z ctrl+z ctrl+z ctrl+z ctrl+z ctrl+z
    must_be_as before

    # A date as typed leads to its day, where F2 opens the cell.
    day=$(date -d "yesterday -20 days" +%F)
    xdotool key ctrl+g
    until_true has_keys "Go to Day"
    xdotool type "$day"
    xdotool key Return
    in_front
    press Home Right F2
    xdotool type 111
    xdotool key Return
    go_to_another_program
    until_true day_is "$day@#@111@#@.*"
    come_back

    # The same day by what stands in it.
    xdotool key ctrl+f
    until_true has_keys Find
    xdotool type "$day"
    press Return Tab Tab Down
    xdotool key Escape
    in_front
    press Home Right Right 1 2 Return
    go_to_another_program
    until_true day_is "$day@#@111@#@12@#@.*"
    come_back

    # Today is added when it is asked for.
    xdotool key ctrl+t
    until_true inactive
    xdotool key Return
    in_front
    press 6 Return
    go_to_another_program
    until_true day_is "$(date +%F)@#@6@#@.*"
    come_back
    xdotool key ctrl+q
    ends_well
done

# A first start, with readings in mg/dL.
rm -r "$(dirname "$days")"
start
in_front
plus
xdotool type 120
for x in 400 440 480; do # the link behind the line beside the journal's tab
    click_from_bottom "$x" 187
    sleep 0.4
    inactive && break
done
until_true has_keys Preferences
xdotool key Return
in_front
until_true grep -qx 250 "$(dirname "$days")/Brindlemarks Preferences"
xdotool key ctrl+q
ends_well
echo "each change was undone, each day found"
