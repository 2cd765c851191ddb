#!/usr/bin/env bash
# The summary of a real patient's last 30 days: its page as a PDF, its figures as a file, and that it follows the table.
# Usage: summary.sh PROGRAM SUMMARY_FIGURES PATIENT
source "$(dirname "$0")/desk.sh"
figures=$2
patient=$3

mkdir -p "$(dirname "$days")"
tail -30 "$patient" | awk -F, -v last="$(date +%s)" '{
    printf "%s", strftime("%Y-%m-%d", last - (30 - NR) * 86400)
    for (i = 2; i <= 9; ++i) printf "@#@%s", $i
    print "@#@"
}' >"$days"
printf 'true\r\n180\r\n140\r\n80\r\n60\r\nfalse\r\nfalse\r\nfalse\r\n\r\n\r\n' >"$(dirname "$days")/Brindlemarks Preferences"
printf 'Metformin@#@500 mg@#@twice a day\r\n' >"$(dirname "$days")/QVXMedications"
mean() { "$figures" "$days" | awk -F'\t' '$1 == "all" { print $3 }'; }
count() { "$figures" "$days" | awk -F'\t' '$1 == "all" { print $2 }'; }

start
in_front
xdotool key ctrl+shift+s
summary_window() { summary=$(xdotool search --onlyvisible --name '^Summary$') && [[ -n $summary ]]; }
until_true summary_window
press() { # one of the buttons at the left, from the top
    xdotool windowactivate "$summary"
    until_true has_keys Summary
    xdotool mousemove --window "$summary" $((80 * scale)) $((scale * (296 + 40 * $1))) click 1
}

# The page.
press 2
answer 'Save as PDF' "$home/page"
until_true test -s "$home/page.pdf"
text=$(pdftotext -layout "$home/page.pdf" -)
for words in 'Blood glucose, 30 days' "$(printf '%.0f' "$(mean)") mg/dL" "$(count) readings on 30 of 30 days" \
    'Metformin 500 mg twice a day' 'Your lowest readings'; do
    tr -s ' ' <<<"$text" | grep -qF "$words" || fail "the page lacks: $words"
done
pdfinfo "$home/page.pdf" | grep -q '^Title: *Blood glucose, 30 days$' || fail "the title is missing"
[[ $(pdfinfo "$home/page.pdf" | awk '/^Pages/ { print $2 }') == 1 ]] || fail "it is not one page"
if [[ -n ${PICTURES:-} ]]; then
    import -window "$summary" "$PICTURES/summary.png"
    cp "$home/page.pdf" "$PICTURES/visit_page.pdf"
fi

# The figures, before and after a day was typed.
exported() { # FILE FIELD
    awk -F, -v field="$2" 'NR == 2 { print $field }' "$1"
}
before=$(count)
press 3
answer 'Export Figures' "$home/before"
until_true test -s "$home/before.csv"
[[ $(exported "$home/before.csv" 7) == "$(mean)" && $(exported "$home/before.csv" 5) == "$before" ]] || fail "the file: $(cat "$home/before.csv")"
in_front
plus
type_reading 1 222
xdotool key Return
press 3
answer 'Export Figures' "$home/after"
until_true test -s "$home/after.csv"
[[ $(exported "$home/after.csv" 5) == $((before + 1)) ]] || fail "it does not follow the table: $(cat "$home/after.csv")"
in_front
xdotool key ctrl+q
ends_well
[[ $(exported "$home/after.csv" 7) == "$(mean)" ]] || fail "the saved table has other figures"
echo "page, file and table say the same"
