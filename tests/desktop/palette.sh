#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Chooses colours in the demo client by real keys and clicks, and goes on typing while lines arrive
# in the debug console. Usage: palette.sh DEMO
set -u
source "$(dirname "$0")/desktop.sh"

# Checks the end of the next line that the client notes. Usage: expect_note END WHAT
expect_note() {
    wait_until "$2 is noted" has_answer
    [[ "$(tail -n 1 "$record")" == *"$1" ]] || fail "$2 gave $(tail -n 1 "$record")"
    answered=$(wc -l <"$record")
}

start_desktop
start_client "$1"
answered=$(wc -l <"$record")
choose_page alt+s o

# HOW ACTS RESULT; the acts are keys or the place of a click in pixels.
while read -r how acts result; do
    wait_until "the client is active again" is_active "$main"
    keys "$how"
    wait_for_window "Color Palette"
    if [[ "$acts" == *x* ]]; then click "$window" ${acts/x/ }; else keys ${acts//,/ }; fi
    expect_note " = \"$result\"" "$acts"
done <<'ROWS'
alt+b Down,Right,Return 11842808\t8
alt+c 30x70 14869245\t7
ROWS

choose_page alt+s g
keys alt+d
expect_note ', true, "2.4.1")' "debug mode"
keys alt+l
for line in a b; do
    keys "$line" Return
    expect_note "ShowInDebug(\"$line\")" "a line typed beside the console"
    wait_until "the console shows" xdotool search --onlyvisible --name '^DEBUG$'
done
keys ctrl+q
wait_until "the client ends although the console shows" has_ended "${started[-1]}"
finish
