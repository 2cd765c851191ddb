#!/usr/bin/env bash
# A desktop with letters of 20 points: the windows grow with them, and all of them fit the screen.
source "$(dirname "$0")/desk.sh"

export XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5 XDG_CONFIG_HOME="$home/config"
mkdir -p "$XDG_CONFIG_HOME"
printf '[General]\nfont=Sans,20,-1,5,50,0,0,0,0,0\n' >"$XDG_CONFIG_HOME/kdeglobals"

grown_window() {
    local id
    for id in $(xdotool search --onlyvisible --name '^Tallyvane$'); do
        WIDTH=0
        eval "$(xdotool getwindowgeometry --shell "$id")"
        ((WIDTH > 746)) && window=$id && return 0
    done
    return 1
}

"$program" 2>"$home/errors" &
pid=$!
until_true grown_window
((WIDTH >= 1000 && WIDTH <= 1280)) || fail "a window of $WIDTH points for letters of 20 on a screen of 1280"
in_front
xdotool key ctrl+q
ends_well
