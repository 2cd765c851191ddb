#!/usr/bin/env bash
# Kills the program in the middle of saving a large table, again and again, and looks at what is left of the days.
# Usage: killed_while_saving.sh PROGRAM [ROUNDS [DAYS]]
# The days lie on the disk in a form that the program writes anew from the first line on: every save is a whole one.
set -euo pipefail
program=$1
rounds=${2:-15}
days=${3:-20000}

home=$(mktemp -d)
trap 'kill -KILL "${pid:-}" 2>/dev/null || true; rm -rf "$home"' EXIT
mkdir -p "$home/data/Tallyvane" "$home/run"
chmod 700 "$home/run"
export XDG_DATA_HOME="$home/data" XDG_RUNTIME_DIR="$home/run" QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
export http_proxy=http://127.0.0.1:9 # nobody listens there
folder="$home/data/Tallyvane"
file="$folder/7VXData"

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

awk -v days="$days" 'BEGIN {
    for (day = 0; day < days; ++day)
        printf "%04d-%02d-%02d@#@%.1f@#@%.1f\r\n", 2300 - int(day / 336), 12 - int(day / 28) % 12, 28 - day % 28,
            4 + day % 9, 5 + day % 7
}' >"$home/before"

# Starts the program in a process group of its own, and as soon as it has claimed its folder asks it to end, which makes it
# load, save and end.
start_and_end() {
    setsid "$program" 2>/dev/null &
    pid=$!
    until grep -q "FLOCK.*:$(stat -c %i "$folder") " /proc/locks; do sleep 0.01; done
    kill -TERM "$pid"
}

milliseconds() { date +%s%3N; }

cp "$home/before" "$file"
start_and_end
begin=$(milliseconds)
wait "$pid" || fail "an undisturbed end fails"
length=$(($(milliseconds) - begin))
cp "$file" "$home/after"
! cmp -s "$home/before" "$home/after" || fail "nothing was saved"

old=0 new=0 half=0 records=0 lost=0
for ((round = 0; round < rounds; ++round)); do
    cp "$home/before" "$file"
    start_and_end
    delay=$((RANDOM * length / 32768))
    sleep "$(printf '%d.%03d' $((delay / 1000)) $((delay % 1000)))"
    kill -KILL -- "-$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
    if cmp -s "$file" "$home/after"; then
        new=$((new + 1))
    elif cmp -s "$file" "$home/before"; then
        old=$((old + 1))
    else
        half=$((half + 1))
    fi
    ! ls "$folder" | grep -q '^Unfinished save' || records=$((records + 1))
    # The next start makes it good: what it saves at its end is then what an undisturbed run saves.
    start_and_end
    wait "$pid" || fail "the start after a kill fails"
    if ! cmp -s "$file" "$home/after"; then
        lost=$((lost + 1))
        echo "round $round, killed after $delay ms: $(cmp "$file" "$home/after" 2>&1)"
    fi
    ! ls "$folder" | grep '^Unfinished save' || fail "a record stays"
    rm -f "$folder/7VXData damaged "*
done
echo "$rounds kills within $length ms: $old found old, $new new, $half half written; $records records; after the next start $lost wrong"
((lost == 0)) || fail "a save was lost"
((rounds < 100 || records > 0)) || fail "no save was hit"
