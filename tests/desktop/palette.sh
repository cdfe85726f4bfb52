#!/usr/bin/env bash
# Chooses colours in the demo client by real keys and clicks, and types on while lines come into
# the debug console. Usage: palette.sh DEMO
set -u
source "$(dirname "$0")/desktop.sh"

expect_result() {
    wait_until "$2 is noted" has_answer
    [[ "$(tail -n 1 "$record")" == *"$1" ]] || fail "$2 gave $(tail -n 1 "$record")"
}

start_desktop
start_client "$1"
keys alt+s o

# HOW KEYS RESULT; a click in pixels stands for its keys.
while read -r how typed result; do
    wait_until "the client is active again" is_active "$main"
    answered=$(wc -l <"$record")
    keys "$how"
    wait_for_window "Color Palette"
    picture "palette-${typed//,/-}"
    if [[ "$typed" == *x* ]]; then click "$window" ${typed/x/ }; else keys ${typed//,/ }; fi
    expect_result " = \"$result\"" "$typed"
done <<'ROWS'
alt+b Down,Right,space 11842808\t8
alt+c End,Return 11878250\t34
alt+m 30x70 14869245\t7
alt+m Right,Escape
alt+c alt+F4
ROWS

answered=$(wc -l <"$record")
keys alt+s g alt+d
expect_result ', true, "2.4.1")' "debug mode"
keys alt+l
for line in a b; do
    answered=$(wc -l <"$record")
    keys "$line" Return
    expect_result "ShowInDebug(\"$line\")" "a line typed beside the console"
    wait_until "the console shows" bash -c "xwininfo -name DEBUG | grep -q IsViewable"
done
picture debug-console
keys ctrl+q
wait_until "the client ends although the console shows" has_ended "${started[-1]}"
finish
