#!/usr/bin/env bash
# The graph of real days, opened with real keys: shown, rebuilt by its boxes, resized, and printed by its button and by
# the menu's key into PDFs, whose text is read back.
source "$(dirname "$0")/desk.sh"

export HOME="$home" # where a print goes
mkdir -p "$home/data/Tallyvane"
sed -n '1,16s/,/@#@/gp' "$(dirname "$0")/../data/patient-01.csv" >"$days"

graph_window() { graph=$(xdotool search --onlyvisible --name '^Graph$' | tail -1) && [[ -n $graph ]]; }
picture() { import -window "$graph" -crop 499x397+20+14 rgb:- | md5sum; }
differs() { [[ $(picture) != "$1" ]]; }
click_in_graph() { xdotool mousemove --window "$graph" "$1" "$2" click 1; }

# Accepts both dialogs, and keeps the PDF under another name.
print_into() {
    until_true has_keys 'Page Setup'
    xdotool key Return
    until_true has_keys Print
    xdotool key Return
    until_true grep -q '%%EOF' "$home/print.pdf"
    mv "$home/print.pdf" "$1"
}

start
until_true has_question
xdotool key Return # the dates are not in the form of this desktop
in_front
click_from_bottom 200 465 # a reading of the first day
xdotool key Escape shift+Next
click_from_bottom 640 548
until_true graph_window
until_true active "$graph"
one=$(picture)
click_in_graph 570 79
until_true differs "$one"
two=$(picture)
click_in_graph 570 79
until_true differs "$two"
[[ $(picture) == "$one" ]] || fail "the same boxes show another graph"

xdotool windowsize "$graph" 900 600
until_true differs "$one"
click_in_graph $((615 + 900 - 716)) 354
print_into "$home/button.pdf"
in_front
xdotool windowactivate "$graph"
until_true active "$graph"
xdotool key ctrl+p
print_into "$home/menu.pdf"

for print in button menu; do
    pdftotext -layout "$home/$print.pdf"
    grep -q 'Date Range: 1991-04-21 - 1991-05-06' "$home/$print.txt" || fail "the days on paper: $(cat "$home/$print.txt")"
    grep -q 'Tallyvane® Graph' "$home/$print.txt" || fail "the title on paper"
done
grep -q -- '-- *Before Supper' "$home/button.txt" || fail "the legend"
! grep -q 'Before Supper' "$home/menu.txt" || fail "a legend where there is none"

in_front
xdotool key ctrl+q
ends_well
echo "the graph shows and prints what is selected"
