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
data=$(mktemp -d)
source "$(dirname "$0")/cut_saves.sh"

clean_up() {
    kill -KILL "${pid:-}" 2>/dev/null || true
    wait 2>/dev/null || true
    umount "$data" 2>/dev/null || true
    rm -rf "$home"
    rmdir "$data"
}
trap clean_up EXIT

# The request GOINGDOWN, which ext4 and xfs share: without a flush of the journal. The program does not live on without its
# disk.
cut_power() {
    kill -STOP "$pid" 2>/dev/null || true
    python3 -c '
import fcntl, os, struct, sys
fcntl.ioctl(os.open(sys.argv[1], os.O_RDONLY), 0x8004587D, struct.pack("I", 2))' "$data"
    kill -KILL "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
    umount "$data"
    mount -o loop "$home/image" "$data"
}

truncate -s 400M "$home/image"
"mkfs.$system" -q "$home/image"
mount -o loop "$home/image" "$data"
lay_out_days
measure
for ((round = 0; round < rounds; ++round)); do cut_one cut_power; done
report "power cuts on $system"
