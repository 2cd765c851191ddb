#!/usr/bin/env bash
# A program that is left open over midnight adds the new day, and not yesterday.
source "$(dirname "$0")/desk.sh"

# The clock of the wall alone is another; waiting takes its time.
cat >"$home/program" <<SCRIPT
#!/usr/bin/env bash
export FAKETIME_DONT_FAKE_MONOTONIC=1
exec faketime -f '@2026-11-22 23:59:45' "$program" "\$@"
SCRIPT
chmod +x "$home/program"
program=$home/program

start
in_front
plus
xdotool type 5
go_to_another_program
until_true day_is '2026-11-22@#@5@#@.*'
sleep 17
come_back
plus
xdotool type 6
go_to_another_program
until_true day_is '2026-11-23@#@6@#@.*'
come_back
xdotool key ctrl+q
ends_well
echo "the morning has its own day"
