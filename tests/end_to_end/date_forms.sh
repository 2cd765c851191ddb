#!/usr/bin/env bash
# A diary goes from desktop to desktop, each with another form of dates: every one asks once, shows the same days in its
# own form, and the first one finds its file again, to the byte. Until there is an answer nothing is saved.
source "$(dirname "$0")/desk.sh"

mkdir -p "$(dirname "$days")"
start_in() {
    env LC_ALL="$1" "$program" 2>"$home/errors" & # the shell need not know the locale
    pid=$!
    until_true main_window
}
quit() {
    in_front
    xdotool key ctrl+q
    ends_well
    rm -rf "$(dirname "$days")/Snapshots"
}
day_keys() { sed 's/.*@#@//' "$days"; }

# 30 days from 28 January on: days that read as other days, and some that do not read at all.
for ((day = 0; day < 30; ++day)); do
    date -d "2026-01-28 +$day days" +"%-m/%-d/%Y@#@$((90 + day))@#@@#@@#@@#@@#@@#@@#@@#@@#@"
done >"$days"
start_in en_US.UTF-8
quit
cp "$days" "$home/first"
day_keys >"$home/keys"
[[ $(head -1 "$days") == 1/28/2026* ]] || fail "en_US asks, or writes another form: $(head -1 "$days")"

# A program that is ended while the question is up has saved nothing.
start_in en_GB.UTF-8
until_true has_question
kill -TERM "$pid"
ends_well
cmp "$days" "$home/first" || fail "saved without an answer"

while read -r locale form; do
    start_in "$locale"
    until_true has_question
    import -window root "$home/question-$locale.png"
    xdotool key Return
    quit
    [[ $(sed -n 8p "$days") == "$form"@#@97* ]] || fail "$locale: $(sed -n 8p "$days")"
    day_keys | cmp - "$home/keys" || fail "$locale: another day"
done <<'END'
en_GB.UTF-8 04/02/2026
de_DE.UTF-8 04.02.2026
sv_SE.UTF-8 2026-02-04
ja_JP.UTF-8 2026/02/04
C.UTF-8 2026-02-04
en_US.UTF-8 2/4/2026
END
cmp "$days" "$home/first" || fail "back home the file is another one"
[[ -z ${PICTURES:-} ]] || cp "$home"/question-*.png "$PICTURES"

# Undo takes the new form back, and what is left alone stays as it is.
start_in de_DE.UTF-8
until_true has_question
xdotool key Return
in_front
xdotool key ctrl+z
quit
[[ $(sed -n 8p "$days") == 2/4/2026@#@97* ]] || fail "not undone: $(sed -n 8p "$days")"
echo "the same days on every desktop"
