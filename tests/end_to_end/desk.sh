# A desktop for a story: a virtual display with a window manager, and a home for the program's files. Sourced by the
# stories, each of which gets the path of the program as its argument.
set -euo pipefail

program=$1
scale=${QT_SCALE_FACTOR:-1}
home=$(mktemp -d)
days="$home/data/Tallyvane/7VXData"
mkdir -p "$home/data" "$home/run"
chmod 700 "$home/run"
export XDG_DATA_HOME="$home/data" XDG_RUNTIME_DIR="$home/run" LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb
export http_proxy=http://127.0.0.1:9 # nobody listens there: the version check leaves the network alone
unset WAYLAND_DISPLAY

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# Waits until a command succeeds, half a minute at most.
until_true() {
    local deadline=$((SECONDS + 30))
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < deadline)) || fail "still not true after 30 seconds: $*"
        sleep 0.05
    done
}

clean_up() {
    kill $(jobs -p) 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$home"
}
trap clean_up EXIT

open_display() {
    exec 3>"$home/display"
    # A server that starts over when a client leaves it alone would throw out the window manager that is just coming.
    Xvfb -noreset -displayfd 3 -screen 0 "$((1280 * scale))x$((1024 * scale))x24" >/dev/null 2>&1 &
    display_server=$!
    until_true grep -q . "$home/display"
    export DISPLAY=":$(cat "$home/display")"
    openbox >/dev/null 2>&1 &
    until_true xdotool get_desktop
}

open_display

start() {
    "$program" 2>"$home/errors" &
    pid=$!
    until_true main_window
}

# The visible main window: the wide one; the splash window bears the same name.
main_window() {
    local id
    for id in $(xdotool search --onlyvisible --name '^Tallyvane$'); do
        [[ $(xdotool getwindowgeometry --shell "$id") == *WIDTH=$((746 * scale))$'\n'* ]] && window=$id && return 0
    done
    return 1
}

in_front() {
    xdotool windowactivate "$window"
    until_true active "$window"
}

inactive() { ! active "$window"; }

go_to_another_program() {
    xmessage "another program" &
    other=$!
    until_true inactive
}

come_back() {
    kill "$other"
    in_front
}

active() { [[ $(xdotool getwindowfocus) == "$1" ]]; }

# A message or a question before the main window.
has_question() { has_keys Tallyvane && ! active "$window"; }

has_keys() { [[ $(xdotool getwindowfocus getwindowname) == "$1" ]]; }

# Chooses the item of the File menu that is so many below the first one that is enabled.
choose() {
    local key
    in_front
    xdotool key alt+f
    for ((key = 0; key < $1; ++key)); do xdotool key Down; done
    xdotool key Return
}

# Answers a dialog for a file, once it is there.
answer() {
    until_true has_keys "$1"
    xdotool key ctrl+a
    xdotool type "$2"
    xdotool key Return
}

# Clicks at a place of the table and what lies below it: points from the left, and from the bottom of the window, since
# the height of menus and toolbar is the theme's.
click_from_bottom() {
    local X Y WIDTH HEIGHT WINDOW SCREEN
    eval "$(xdotool getwindowgeometry --shell "$window")"
    xdotool mousemove --window "$window" $(($1 * scale)) $((HEIGHT - $2 * scale)) click 1
}

# What stands under a column of readings, as the strip shows it: it follows each key, and no cursor blinks there.
average_under() {
    local HEIGHT
    eval "$(xdotool getwindowgeometry --shell "$window" | grep HEIGHT)"
    import -window "$window" -crop \
        "$((56 * scale))x$((18 * scale))+$((scale * (82 + 72 * ($1 - 1) + 16)))+$((HEIGHT - 229 * scale))" rgb:- | md5sum
}

# Types a reading and waits until the strip has followed.
type_reading() {
    local before
    before=$(average_under "$1")
    xdotool type "$2"
    until_true strip_differs "$1" "$before"
}

strip_differs() { [[ $(average_under "$1") != "$2" ]]; }

plus() { click_from_bottom 19 219; } # the "+" button

# A new day with 5.6 and 7, typed and taken in, and not saved yet.
add_day_of_two_readings() {
    in_front
    plus
    xdotool type 5.6
    xdotool key Tab
    type_reading 2 7
}

day_is() { grep -qxE "$1" "$days"; }

# The end of the program, with exit code 0.
ends_well() {
    local code=0
    wait "$pid" || code=$?
    ((code == 0)) || fail "the program ended with $code: $(cat "$home/errors")"
}
