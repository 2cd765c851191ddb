#!/usr/bin/env bash
# Two computers keep one diary in a folder that a synchroniser carries between them. Again and again the connection is
# cut, readings are typed on both sides, and it is joined: no reading is lost, both tables end equal, and a window with
# two values comes up only where both have typed into one cell.
# Usage: two_computers.sh PROGRAM [ROUNDS]
# In the environment: SEED, for the same choices once more; CORRECTED, how many of eight readings are typed over another
# one (none).
source "$(dirname "$0")/desk.sh"

rounds=${2:-50}
seed=${SEED:-$RANDOM}
corrected=${CORRECTED:-0}
RANDOM=$seed
both=$home
trap 'home=$both; clean_up' EXIT
declare -A displays windows pids elsewhere calendars devices ports # of each side
declare -A typed touched # by cell: its reading, or those of both sides; whether it was touched in this round
declare -A in_cell # by side: whether its cell is open
dates=() first_day=$(date +%F) days_added=0
readings=0 reading= cells_of_both=0 choices=0 faults=0
round=0 kind=apart story= round_told=
declare -A takers # by side: 1 where it takes the other of two values

# Sits down at one of the two: what the desk does is done there.
at() {
    side=$1
    home=$both/$1
    days=$home/diary/7VXData
    window=${windows[$1]:-} pid=${pids[$1]:-}
    export DISPLAY=${displays[$1]} HOME=$home
    export XDG_DATA_HOME=$home/data XDG_STATE_HOME=$home/state XDG_RUNTIME_DIR=$home/run
}

# The synchroniser

api() { # SIDE METHOD PATH
    curl -fsS --max-time 10 --noproxy '*' --unix-socket "$both/$1/api" -H 'X-API-Key: diary' \
        -X "$2" "http://localhost/rest/$3"
}
connected() { api a GET system/connections | grep -q '"connected": true'; }
disconnected() { ! connected; }
part() { api a POST "system/pause?device=${devices[b]}" && until_true disconnected; }
scan() { api a POST 'db/scan?folder=diary' && api b POST 'db/scan?folder=diary'; }
meet() { api a POST "system/resume?device=${devices[b]}" && until_true connected && scan; }

has_all() { # SIDE OTHER: nothing more to fetch, here or there
    api "$1" GET 'db/status?folder=diary' | tr -d ' \n' | grep -q '"needTotalItems":0,.*"state":"idle"' &&
        api "$1" GET "db/completion?folder=diary&device=${devices[$2]}" | grep -q '"completion": 100,'
}
carried() { has_all a b && has_all b a; }
is_across() { cmp -s "$both"/{a,b}/diary/7VXData && carried; }

choose_free_port() {
    ports[$1]=$(shuf -i 20000-60000 -n 1)
    ! (: <"/dev/tcp/127.0.0.1/${ports[$1]}")
}

introduce() {
    at "$1"
    syncthing generate --home "$home/synchroniser" --no-default-folder --skip-port-probing >/dev/null 2>&1
    devices[$1]=$(syncthing --home "$home/synchroniser" --device-id)
    until_true choose_free_port "$1"
}

# On this computer alone: it knows no address but that of the other side, asks nobody for one and tells nobody its own.
start_synchroniser() {
    at "$1"
    cat >"$home/synchroniser/config.xml" <<XML
<configuration version="36">
  <folder id="diary" path="$home/diary" rescanIntervalS="3600" fsWatcherEnabled="true" fsWatcherDelayS="1">
    <device id="${devices[a]}"/><device id="${devices[b]}"/>
    <pullerPauseS>1</pullerPauseS><maxConflicts>10</maxConflicts>
  </folder>
  <device id="${devices[a]}" name="a"><address>tcp://127.0.0.1:${ports[a]}</address></device>
  <device id="${devices[b]}" name="b"><address>tcp://127.0.0.1:${ports[b]}</address></device>
  <gui enabled="true" tls="false"><address>$home/api</address><apikey>diary</apikey></gui>
  <options>
    <listenAddress>tcp://127.0.0.1:${ports[$1]}</listenAddress><reconnectionIntervalS>1</reconnectionIntervalS>
    <globalAnnounceEnabled>false</globalAnnounceEnabled><localAnnounceEnabled>false</localAnnounceEnabled>
    <relaysEnabled>false</relaysEnabled><natEnabled>false</natEnabled><stunKeepaliveStartS>0</stunKeepaliveStartS>
    <announceLANAddresses>false</announceLANAddresses><autoUpgradeIntervalH>0</autoUpgradeIntervalH>
    <urAccepted>-1</urAccepted><crashReportingEnabled>false</crashReportingEnabled><startBrowser>false</startBrowser>
  </options>
</configuration>
XML
    syncthing serve --home "$home/synchroniser" --no-browser --no-restart --no-upgrade >"$home/synchroniser.log" 2>&1 &
    until_true api "$1" GET system/ping
}

# The two programs

# Twelve days, with a reading in each second column.
lay_out_days() {
    local day
    mkdir -p "$both/a/diary" "$both/b/diary"
    for ((day = 11; day <= 22; ++day)); do
        echo "2026-03-$day@#@$((50 + day))@#@@#@$((70 + day))@#@@#@$((90 + day))@#@@#@$((110 + day))@#@@#@@#@"
        dates+=("2026-03-$day")
    done >"$both/a/diary/7VXData"
}
has_keys_of_days() { grep -q "@#@0[0-9]*$" "$days"; }

start_program() {
    at "$1"
    mkdir -p "$home/data/Tallyvane" "$home/run"
    chmod 700 "$home/run"
    printf '%s\n' true 180 140 80 60 true true true "$home/diary" >"$home/data/Tallyvane/Brindlemarks Preferences"
    start
    windows[$1]=$window pids[$1]=$pid
    in_front
    xmessage "another program" 2>/dev/null &
    until_true has_keys xmessage
    elsewhere[$1]=$(xdotool getwindowfocus)
    until_true has_keys_of_days # saved
}

# The window that is up beside the main one, if any: a question, which has the program's name, or two values.
question() {
    local id
    for id in $(xdotool search --onlyvisible --name '^Tallyvane$'); do [[ $id == "$window" ]] || dialog=$id; done
    [[ -n $dialog ]]
}
two_values() { dialog=$(xdotool search --onlyvisible --name '^Two Values for One Reading$'); }
is_gone() { ! xdotool search --onlyvisible --name . | grep -qx "$1"; }

# Once more where a question comes up at that moment and takes the focus.
is_at() { xdotool windowactivate "$1" && active "$1"; }
is_in_front_or_asks() {
    local dialog=
    is_at "$window" || question
}

step_in() { until_true is_in_front_or_asks; }
leave() { until_true is_at "${elsewhere[$side]}"; }

# Answers what is up on this side; false when nothing is. What the synchroniser has left is brought in; of two values
# each side keeps its own or takes the other.
answer() {
    local dialog=
    if question; then
        until_true is_at "$dialog"
        xdotool key Return
        until_true is_gone "$dialog"
    elif two_values; then
        note_two_values
        until_true is_at "$dialog"
        xdotool mousemove --window "$dialog" $(((90 + 180 * takers[$side]) * scale)) $((289 * scale)) click 1
        sleep 0.2 # with the last value the window goes
    else
        return 1
    fi
}

# Typing

times() { for ((n = 0; n < $2; ++n)); do xdotool key "$1"; done; }

# Each reading is another one. It is noted under its cell, beside that of the other side in the same round.
type_new_reading() { # DATE COLUMN
    local cell="$1 $2"
    reading=$((100 + readings / 10)).$((readings % 10))
    readings=$((readings + 1))
    xdotool type "$reading"
    [[ -n ${touched[$cell]:-} ]] || typed[$cell]=
    typed[$cell]+=" $reading"
    touched[$cell]=1
    story+="  $side types $reading into $cell"$'\n'
}

type_into() { # DATE COLUMN
    xdotool key ctrl+g
    until_true has_keys "Go to Day"
    xdotool type "$1"
    xdotool key Return
    until_true active "$window"
    xdotool key Home
    times Right "$2"
    type_new_reading "$1" "$2"
}

# A day of this program's calendar, through which the keys walk.
type_into_new_day() { # NUMBER COLUMN
    click_from_bottom 70 148 # the names of the days of the week
    times Right $(($1 - ${calendars[$side]:-0}))
    times Left $((${calendars[$side]:-0} - $1))
    calendars[$side]=$1
    xdotool key Return
    times Tab $(($2 - 1))
    type_new_reading "$(date -d "$first_day +$1 days" +%F)" "$2"
}

new_day() {
    days_added=$((days_added + 1))
    dates+=("$(date -d "$first_day +$days_added days" +%F)")
}

is_filled() { [[ -n ${typed["$1 $2"]:-} || ($1 == 2026-03-* && $(($2 % 2)) == 1) ]]; }

# A cell of a day that both sides have, which nobody has touched in this round.
pick_cell() {
    local is_wanted_filled=$((RANDOM % 8 < corrected)) tries filled
    for ((tries = 0; tries < 1000; ++tries)); do
        date=${dates[RANDOM % known]} column=$((RANDOM % 7 + 1))
        if is_filled "$date" "$column"; then filled=1; else filled=0; fi
        [[ -n ${touched["$date $column"]:-} || $filled != "$is_wanted_filled" ]] || return 0
    done
    fail "no cell is left"
}

type_somewhere() {
    if ((RANDOM % 3)); then
        pick_cell
        type_into "$date" "$column"
    else
        new_day
        type_into_new_day "$days_added" $((RANDOM % 7 + 1))
    fi
}

# One side's readings of a round, what both type last. Then the program is left, or not yet, and then its cell may still
# be open.
type_some() { # SIDE COLUMN-IN-A-NEW-DAY-OF-BOTH
    local way=$((RANDOM % 4)) number=$((RANDOM % 4)) before=$readings
    at "$1"
    step_in
    [[ $kind == apart ]] || number=$((number / 2))
    for ((; number > 0; --number)); do
        type_somewhere
        ((number == 1)) && [[ $kind == apart ]] || xdotool key Return
    done
    case $kind in
    one_cell) type_into "$common_date" "$common_column" ;;
    one_day) type_into_new_day "$common_day" "$2" ;;
    esac
    ((readings > before)) || way=nothing
    case $way in
    nothing) leave ;;
    0) in_cell[$1]=1 story+="  $1 stays, in the cell"$'\n' ;;
    1) xdotool key Return && story+="  $1 stays"$'\n' ;;
    *) xdotool key Return && leave_and_save ;;
    esac
}

leave_and_save() {
    leave
    story+="  $side leaves"$'\n'
    until_true grep -qF "@#@$reading@#@" "$days"
}

# A round

choose_kind() {
    kind=apart
    case $((RANDOM % 8)) in
    0) kind=one_cell && pick_cell && common_date=$date common_column=$column && cells_of_both=$((cells_of_both + 1)) ;;
    1) kind=one_day && new_day && common_day=$days_added ;;
    esac
}

type_on_both() {
    local first=$((RANDOM % 6 + 1))
    if ((RANDOM % 2)); then
        type_some a "$first"
        type_some b $((first + 1))
    else
        type_some b "$first"
        type_some a $((first + 1))
    fi
}

# A cell is still open when its program is left, and is closed later.
save_both() {
    for side in a b; do
        at "$side"
        step_in
        leave
        [[ -n ${in_cell[$side]:-} ]] || continue
        in_cell[$side]=
        step_in
        xdotool key Return
        leave
    done
}

state() { (cd "$both" && md5sum {a,b}/diary/7VXData*) 2>/dev/null || true; } # a file may go meanwhile

# One look: answers what is up, and tells whether everything stands as it stood before.
is_calm() { # STATE-BEFORE
    local is_answered=
    scan
    for side in a b; do
        at "$side"
        ! answer || is_answered=1
    done
    if [[ -n $is_answered ]]; then
        save_both
        return 1
    fi
    [[ $(state) == "$1" ]] && carried
}

# Until everything that came is taken in, saved and carried across, and nothing moves any more.
settle() {
    local deadline=$((SECONDS + 60)) calm=0 before
    while ((calm < 4)); do
        ((SECONDS < deadline)) || fail "no rest within a minute:"$'\n'"$story$(state)"
        before=$(state)
        sleep 0.3
        if is_calm "$before"; then calm=$((calm + 1)); else calm=0; fi
    done
}

play_round() {
    local waits=$((RANDOM % 2))
    touched=() known=${#dates[@]} takers=([a]=$((RANDOM % 2)) [b]=$((RANDOM % 2)))
    story="round $round"$'\n'
    cp "$both/a/diary/7VXData" "$both/before"
    choose_kind
    part
    type_on_both
    meet
    if ((waits)); then until_true is_across; fi
    save_both
    settle
}

# What must hold

found_fault() {
    faults=$((faults + 1))
    echo "FAULT: $*"$'\n'"$story  the table before:"
    sed 's/^/    /' "$both/before"
}

note_two_values() {
    choices=$((choices + 1))
    [[ $kind == one_cell || $round == "$round_told" ]] ||
        found_fault "$side shows two values, and no cell was typed on both sides"
    round_told=$round
}

is_in_copy() { grep -qhE "@#@$1(@#@|\$)" "$both"/[ab]/diary/7VXData?*; }
readings_in() {
    awk -F'@#@' '{ for (place = 2; place <= 8; ++place) if ($place) print $1, place - 1, $place }' "$1"
}

# One reading of each cell stands in the table. The other one of a cell that both have typed is in a file beside it, if
# nobody has taken that of the other side.
look_for_readings() {
    local cell reading date column
    local -A found=()
    while read -r date column reading; do found["$date $column"]=$reading; done < <(readings_in "$both/a/diary/7VXData")
    for cell in "${!typed[@]}"; do
        [[ "${typed[$cell]} " == *" ${found[$cell]:-none} "* ]] ||
            found_fault "$cell has ${found[$cell]:-nothing}, not${typed[$cell]}"
        for reading in ${typed[$cell]}; do
            [[ $reading == "${found[$cell]:-}" || ${takers[*]} == *1* ]] || is_in_copy "$reading" ||
                found_fault "$reading is lost"
        done
        if [[ -n ${found[$cell]:-} ]]; then
            typed[$cell]=" ${found[$cell]}" # it goes on standing there
        else
            unset "typed[$cell]" # told once
        fi
    done
}

look() {
    local days_twice versions
    cmp -s "$both"/{a,b}/diary/7VXData || found_fault "the tables differ"
    days_twice=$(sed 's/@#@.*//' "$both/a/diary/7VXData" | sort | uniq -d)
    [[ -z $days_twice ]] || found_fault "twice in the table: $days_twice"
    versions=$(find "$both"/[ab]/diary -name '*sync-conflict*')
    [[ -z $versions ]] || found_fault "not offered: $versions"
    look_for_readings
}

# The story

echo "SEED=$seed"
lay_out_days
displays[a]=$DISPLAY
open_display
displays[b]=$DISPLAY
start_program a
cp "$both"/{a,b}/diary/7VXData
start_program b
introduce a
introduce b
start_synchroniser a
start_synchroniser b
until_true connected
settle

for ((round = 1; round <= rounds; ++round)); do
    play_round
    look
done
story="the end"$'\n'
for side in a b; do
    at "$side"
    step_in
    xdotool key ctrl+q
    ends_well
done
scan
until_true is_across
look
echo "$rounds rounds, $readings readings typed, $cells_of_both cells on both sides, $choices choices of two values," \
    "$faults faults, $SECONDS seconds"
((faults == 0)) || exit 1
