#!/usr/bin/env bash
# Ended by a signal the program saves all as if it were closed; started again on the same files it changes none of them.
source "$(dirname "$0")/desk.sh"

folder="$home/data/Tallyvane"
start
add_day_of_two_readings
kill -TERM "$pid"
ends_well
grep -q '@#@5\.6@#@7@#@' "$days" || fail "what was typed is lost: $(cat "$days")"
for file in 7VXData QVXLogData QVXWindowData; do
    [[ -e $folder/$file ]] || fail "no $file"
done

cp -r "$folder" "$home/before"
for signal in INT HUP TERM; do
    start
    kill "-$signal" "$pid"
    ends_well
    diff -r --exclude=Snapshots "$home/before" "$folder" || fail "files differ after $signal"
done
echo "three ends by signals left the files equal byte for byte"
