#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Listens to the stage as a screen reader does, on an accessibility bus of the test's own, while
# real keys open a message box and a selection list.
# Usage: accessibility.sh STAGE
set -u
here=$(dirname "$0")
source "$here/../stories/player.sh"

# Takes a step and waits until the focus is reported as a line of role, name and states.
# Usage: expect_focus LINE STEP
expect_focus() {
    take_step "$2" || give_up "$2: $trouble"
    wait_until "\"$1\" is reported to have the focus after $2" \
        eval '[ "$(tail -n 1 "$work/heard")" = "'"$1"'" ]'
}

# Whether the screen holds what a line describes. Usage: shows LINE
shows() {
    /usr/bin/python3 "$here/hear.py" tree >"$work/shown" && grep -qxF -- "$1" "$work/shown"
}

start_desktop
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 DBUS_SESSION_BUS_ADDRESS=unix:path=$work/bus
start dbus-daemon --session --nofork --nopidfile --address="$DBUS_SESSION_BUS_ADDRESS"
wait_until "the session bus starts" test -S "$work/bus"
start /usr/libexec/at-spi-bus-launcher --launch-immediately
/usr/bin/python3 "$here/hear.py" >"$work/heard" 2>"$work/hear.log" &
started+=($!)
wait_until "the accessibility bus is listened to" grep -q listening "$work/heard"
room=stage
start_stage "$1"
new_window ""
expect_focus "push button|Yes|focused" "@open=box yes no"
for line in "dialog|Visits|active" "text|Message|" "push button|No|"; do
    shows "$line" || fail "a message box does not report \"$line\""
done
expect_focus "push button|No|focused" Tab
expect_focus "text|Call|focused" Enter
expect_focus "text|Selected codes|focused" "@open=list insurance"
take_step Tab
expect_focus "table cell|MB, Medicare Part B, selected|focused,checked" Right
take_step Space
wait_until "a code is reported as no longer selected" \
    shows "table cell|MB, Medicare Part B, not selected|focused"
take_step Escape
finish
