#!/usr/bin/env bash
# Each window beside the diary: opened by its button or key, written in with real keys, closed in the ways that differ;
# what is in the files after that, byte for byte, and in the windows at the next start.
source "$(dirname "$0")/desk.sh"

folder="$home/data/Tallyvane"

# Makes the window of that title the one that gets the keys.
side_window() {
    until_true xdotool search --onlyvisible --name "^$1\$"
    side=$(xdotool search --onlyvisible --name "^$1\$" | tail -1)
    until_true active "$side"
}

gone() { ! xdotool search --onlyvisible --name "^$1\$"; }

close_by() {
    xdotool key "$2"
    until_true gone "$1"
    in_front
}

# A toolbar button, by its place from the left; from the bottom all is as high as in the table.
toolbar() { click_from_bottom "$1" 560; }

holds() { [[ $(cat "$folder/$1") == "$2" ]]; }

click_in_side() { xdotool mousemove --window "$side" "$1" "$2" click 1; }

start
in_front

# Preferences: the first limit and the switch, closed by Return, which is "OK".
xdotool key ctrl+comma
side_window Preferences
xdotool key Tab ctrl+a
xdotool type 18x0 # the letter is refused
close_by Preferences Return
until_true holds "Brindlemarks Preferences" "$(printf 'true\n180\n9\n5\n3\nfalse\nfalse\nfalse\n%s\nApplicationSupport' "$folder")"

# Headings: "Cancel" still writes the file, and "Apply" shows the headings as well.
toolbar 119
side_window "Headings Editor"
xdotool key ctrl+a
xdotool type Dawn
close_by "Headings Editor" Escape
until_true grep -qx Dawn "$folder/7VXHeadings"
[[ $(wc -l <"$folder/7VXHeadings") == 13 ]] || fail "thirteen headings: $(cat "$folder/7VXHeadings")"

# The defaults brought back, and shown: by the keyboard from the first field.
toolbar 119
side_window "Headings Editor"
xdotool key shift+Tab space
until_true gone "Headings Editor"
in_front
until_true grep -qx Breakfast "$folder/7VXHeadings"

# Logs: two lines of food, typed at once, closed by the close button.
toolbar 506
side_window Logs
xdotool type bread
xdotool key Return
xdotool type milk
sleep 0.2
close_by Logs alt+F4
until_true holds Tallyvane/QVXLogData '@#@bread$%$milk@#@@#@'

# Team: a new contact with a name.
toolbar 571
side_window Information
click_in_side 44 398
sleep 0.3
xdotool type Jane
sleep 0.2
close_by Information alt+F4
until_true grep -qx 'new contact@#@Jane@#@@#@@#@' "$folder/QVXContacts"
[[ $(wc -l <"$folder/QVXContacts") == 4 && ! -s $folder/QVXMedications ]] || fail "three contacts and a new one"

# The resources: what the file holds comes back as it was; the button closes what it has opened.
printf 'Guide@@@www.example.org\n' >"$folder/Tallyvane/QVXFileData"
cp "$folder/Tallyvane/QVXFileData" "$home/before"
toolbar 44
side_window Files
in_front
toolbar 44
until_true gone Files
cmp "$folder/Tallyvane/QVXFileData" "$home/before" || fail "the list of resources changed"

# An entry renamed by a click with Ctrl.
toolbar 44
side_window Files
click_in_side 120 20
xdotool keydown ctrl
click_in_side 120 57
xdotool keyup ctrl
sleep 0.3
xdotool key ctrl+a
xdotool type Manual
xdotool key Return
close_by Files alt+F4
until_true grep -qx 'Manual@@@www.example.org' "$folder/Tallyvane/QVXFileData"

# The list has the keys when the window opens: what is typed presses no button.
toolbar 44
side_window Files
xdotool key Down F2
sleep 0.3
xdotool key ctrl+a
xdotool type Handbook
xdotool key Return
close_by Files alt+F4
until_true grep -qx 'Handbook@@@www.example.org' "$folder/Tallyvane/QVXFileData"

# The end of the program closes what is still open, and saves it.
toolbar 506
side_window Logs
xdotool key ctrl+End
xdotool type ", tea"
sleep 0.2
kill -TERM "$pid"
ends_well
holds Tallyvane/QVXLogData '@#@bread$%$milk, tea@#@@#@' || fail "the open log was lost: $(cat "$folder/Tallyvane/QVXLogData")"

# The next start knows it all.
for file in "Brindlemarks Preferences" 7VXHeadings QVXContacts QVXMedications Tallyvane/QVXLogData; do
    cp "$folder/$file" "$home/$(basename "$file").before"
done
start
in_front
for look in '119 Headings Editor' '506 Logs' '571 Information'; do
    toolbar "${look%% *}"
    side_window "${look#* }"
    close_by "${look#* }" alt+F4
done
xdotool key alt+F4
ends_well
for file in "Brindlemarks Preferences" 7VXHeadings QVXContacts Tallyvane/QVXLogData; do
    cmp "$folder/$file" "$home/$(basename "$file").before" || fail "$file changed by being looked at"
done
echo "the side windows keep what is written in them"
