# Saves that are cut off, again and again: what is found of the table, and whether the next start makes it good. Sourced
# with the path of the program in `program`, the rounds in `rounds`, the number of days in `days`, and the folder in which
# the program's own one is to be in `data`.
# The days lie on the disk in a form that the program writes anew from the first line on: every save is a whole one.

home=$(mktemp -d)
data=${data:-$home/data}
folder="$data/Tallyvane"
file="$folder/7VXData"
mkdir -p "$home/run"
chmod 700 "$home/run"
export XDG_DATA_HOME="$data" XDG_STATE_HOME="$home/state" XDG_RUNTIME_DIR="$home/run" QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
export http_proxy=http://127.0.0.1:9 # nobody listens there

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

milliseconds() { date +%s%3N; }

lay_out_days() {
    awk -v days="$days" 'BEGIN {
        for (day = 0; day < days; ++day)
            printf "%04d-%02d-%02d@#@%.1f@#@%.1f\r\n", 2300 - int(day / 336), 12 - int(day / 28) % 12, 28 - day % 28,
                4 + day % 9, 5 + day % 7
    }' >"$home/before"
    mkdir -p -m 700 "$folder"
}

# Starts the program in a process group of its own, and as soon as it has claimed its folder asks it to end, which makes it
# load, save and end.
start_and_end() {
    setsid "$program" 2>/dev/null &
    pid=$!
    until grep -q "FLOCK.*:$(stat -c %i "$folder") " /proc/locks; do sleep 0.01; done
    kill -TERM "$pid"
}

# Leaves in `length` how many milliseconds an undisturbed run takes, and in $home/after what it saves.
measure() {
    local begin
    cp "$home/before" "$file"
    start_and_end
    begin=$(milliseconds)
    wait "$pid" || fail "an undisturbed end fails"
    length=$(($(milliseconds) - begin))
    cp "$file" "$home/after"
    ! cmp -s "$home/before" "$home/after" || fail "nothing was saved"
}

old=0 new=0 half=0 records=0 wrong=0

# One round: lays out the old table, cuts a run off by the command at a random moment, and starts anew.
cut_one() {
    local delay=$((RANDOM * length / 32768))
    rm -f "$folder/7VXData damaged "*
    cp "$home/before" "$file"
    sync -f "$file"
    start_and_end
    sleep "$(printf '%d.%03d' $((delay / 1000)) $((delay % 1000)))"
    "$@"
    if cmp -s "$file" "$home/after"; then
        new=$((new + 1))
    elif cmp -s "$file" "$home/before"; then
        old=$((old + 1))
    else
        half=$((half + 1))
    fi
    ! ls "$folder" | grep -q '^Unfinished save' || records=$((records + 1))
    # What the next start saves at its end is what an undisturbed run saves, if it has found a whole table.
    start_and_end
    wait "$pid" || fail "the start after a cut fails"
    if ! cmp -s "$file" "$home/after"; then
        wrong=$((wrong + 1))
        echo "cut after $delay ms: $(cmp "$file" "$home/after" 2>&1)"
    fi
    ! ls "$folder" | grep '^Unfinished save' || fail "a record stays"
}

report() {
    echo "$1: $rounds within $length ms: $old found old, $new new, $half half written; $records records; after the next start $wrong wrong"
    ((wrong == 0)) || fail "a save was lost"
    ((rounds < 100 || records > 0)) || fail "no save was hit"
}
