#!/usr/bin/env bash
# Real readings come in from a file, go out again as they were, are archived and read, and go on paper with the details
# of a day: all by the keyboard, with the files and the text of the PDF compared.
source "$(dirname "$0")/desk.sh"

export HOME="$home" # where a report goes
readings="$home/meter.csv" # with the dates of this desktop
awk -F, -v OFS=, '{ split($1, d, "/"); $1 = sprintf("%d-%02d-%02d", d[3], d[1], d[2]); print }' \
    "$(dirname "$0")/../data/patient-27.csv" >"$readings"
mkdir -p "$home/data/Tallyvane/Details"
printf 'true\n180\n140\n80\n60\ntrue\ntrue\ntrue\n' >"$home/data/Tallyvane/Brindlemarks Preferences"
first_day=$(head -1 "$readings" | cut -d, -f1)
printf 'Metformin@@@500 mg@@@at noon\nendofmeds\nbread$%%$milk\nswimming\n' >"$home/data/Tallyvane/Details/$first_day"

start

without_average() { awk -F, -v OFS=, '{ $9 = ""; print }' "$1"; }

came_out_as_it_was() { cmp <(without_average "$readings") <(without_average "$home/out.txt"); }

# Exports by commas, or by tabs when the choice is moved by an arrow key, under the name "out".
export_days() {
    choose 2
    until_true has_keys Untitled
    xdotool key ${1:-} Return
    answer 'Save your data' "$home/out"
}

# In: the window's "OK" stands for Return.
choose 1
until_true has_keys Untitled
xdotool key Return
answer 'Select glucose readings data file' "$readings"
until_true active "$window"

# Out again, as it came, but for the averages, which came with it.
export_days
until_true came_out_as_it_was
[[ $(cut -d, -f9 "$home/out.txt" | grep -c '[0-9]') == $(wc -l <"$readings") ]] || fail "averages are missing"

# Once more, by tabs: the user is asked about the file that is there, and it is replaced under its whole name.
export_days Down
until_true has_keys Tallyvane
xdotool key Right Return
until_true grep -q $'\t' "$home/out.txt"
[[ ! -e $home/out ]] || fail "a file without the ending"

# The days that came in are selected: the archive has them all.
choose 4
answer 'Save archive' "$home/archive"
until_true test -s "$home/archive"
[[ $(grep -c 'AV: [0-9]' "$home/archive") == $(wc -l <"$readings") ]] || fail "days in the archive: $(cat "$home/archive")"
choose 5
answer 'Select an archive file' "$home/archive"
until_true has_keys archive
xdotool key alt+F4

# On paper: what stands in the table stands in the report, day by day.
choose 3
until_true inactive # the message has the name of the window that it covers
xdotool key Return
until_true has_keys Print
xdotool key Return
until_true grep -q '%%EOF' "$home/Tallyvane Report.pdf"
pdftotext -layout "$home/Tallyvane Report.pdf" "$home/report.txt"
tr -d '\f' <"$home/report.txt" | tr -s ' '  | sed 's/^ //; s/ $//' >"$home/lines.txt"
cut -d, -f1-8 "$readings" | tr -s , ' ' | sed 's/ $//' | while read -r day; do
    grep -qE "^$day [0-9.]+$" "$home/lines.txt" || fail "not in the report: $day"
done
for line in 'Tallyvane Report' 'Medication: Metformin 500 mg at noon' 'Exercise: swimming' 'Food: bread' milk; do
    grep -qxF "$line" "$home/lines.txt" || fail "not in the report: $line"
done
grep -q '^Averages: ' "$home/lines.txt" || fail "no averages"
grep -qE "^Averages of $(wc -l <"$readings") selected days, [0-9-]+ to [0-9-]+$" "$home/lines.txt" ||
    fail "the report does not say whose averages it has"

in_front
xdotool key ctrl+q
ends_well
echo "readings come in, go out, are archived and printed"
