#!/usr/bin/env bash
# A day's readings, typed with real keys, are in the file as soon as the program loses the focus.
source "$(dirname "$0")/desk.sh"

start
in_front
plus
for reading in 5.6 7.2 6.1 8.4 5.9 9.3 6.8; do
    xdotool type "$reading"
    xdotool key Tab
done
[[ ! -s $days ]] || fail "saved before the focus was lost"
go_to_another_program
today='[0-9]{4}-[0-9]{2}-[0-9]{2}'
until_true day_is "$today@#@5\.6@#@7\.2@#@6\.1@#@8\.4@#@5\.9@#@9\.3@#@6\.8@#@7\.0@#@@#@[0-9]{12}"

# A second day whose typing is taken back, then the close button of the window.
come_back
plus
xdotool type 12
xdotool key Escape
xdotool type x # no cell is open any more
xdotool key alt+F4
ends_well
until_true day_is "$today(@#@){10}[0-9]{12}"
[[ $(wc -l <"$days") == 2 ]] || fail "two days were added: $(cat "$days")"
echo "a day was typed, kept and closed"
