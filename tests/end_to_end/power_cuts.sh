#!/usr/bin/env bash
# Cuts the power of a disk in the middle of saving a large table, again and again, and has the next start look at what is
# left. The disk is a file with a file system of its own; the cut is the file system's own shutdown, which throws away
# all that was not yet flushed. Takes root, and a kernel that mounts files; xfs takes the package xfsprogs.
# Usage: power_cuts.sh PROGRAM ext4|xfs [ROUNDS [DAYS]]
set -euo pipefail
program=$(realpath "$1")
system=$2
rounds=${3:-100}
days=${4:-100000}

home=$(mktemp -d)
disk="$home/disk"
folder="$disk/Tallyvane"
file="$folder/7VXData"
mkdir -p "$disk" "$home/run"
chmod 700 "$home/run"
export XDG_DATA_HOME="$disk" XDG_STATE_HOME="$home/state" XDG_RUNTIME_DIR="$home/run" QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
export http_proxy=http://127.0.0.1:9 # nobody listens there

clean_up() {
    kill -KILL "${pid:-}" 2>/dev/null || true
    wait 2>/dev/null || true
    umount "$disk" 2>/dev/null || true
    rm -rf "$home"
}
trap clean_up EXIT

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# The request GOINGDOWN, which ext4 and xfs share: without a flush of the journal.
cut_power() {
    python3 -c '
import fcntl, os, struct, sys
fcntl.ioctl(os.open(sys.argv[1], os.O_RDONLY), 0x8004587D, struct.pack("I", 2))' "$disk"
}

awk -v days="$days" 'BEGIN {
    for (day = 0; day < days; ++day)
        printf "%04d-%02d-%02d@#@%.1f@#@%.1f\r\n", 2300 - int(day / 336), 12 - int(day / 28) % 12, 28 - day % 28,
            4 + day % 9, 5 + day % 7
}' >"$home/before"
truncate -s 400M "$home/image"
"mkfs.$system" -q "$home/image"
mount -o loop "$home/image" "$disk"
mkdir -m 700 "$folder"

start_and_end() {
    "$program" 2>/dev/null &
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

old=0 new=0 half=0 records=0 lost=0
for ((round = 0; round < rounds; ++round)); do
    rm -f "$folder/7VXData damaged "*
    cp "$home/before" "$file"
    sync -f "$file"
    start_and_end
    delay=$((RANDOM * length / 32768))
    sleep "$(printf '%d.%03d' $((delay / 1000)) $((delay % 1000)))"
    kill -STOP "$pid" 2>/dev/null || true # it does not live on without its disk
    cut_power
    kill -KILL "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
    umount "$disk"
    mount -o loop "$home/image" "$disk"
    if cmp -s "$file" "$home/after"; then
        new=$((new + 1))
    elif cmp -s "$file" "$home/before"; then
        old=$((old + 1))
    else
        half=$((half + 1))
    fi
    ! ls "$folder" | grep -q '^Unfinished save' || records=$((records + 1))
    start_and_end
    wait "$pid" || fail "the start after a cut fails"
    if ! cmp -s "$file" "$home/after"; then
        lost=$((lost + 1))
        echo "round $round, cut after $delay ms: $(cmp "$file" "$home/after" 2>&1)"
    fi
    ! ls "$folder" | grep '^Unfinished save' || fail "a record stays"
done
echo "$system: $rounds cuts within $length ms: $old found old, $new new, $half half written; $records records; after the next start $lost wrong"
((lost == 0)) || fail "a save was lost"
((rounds < 100 || records > 0)) || fail "no save was hit"
