#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Listens to the demo client as a screen reader does, on an accessibility bus of the test's own,
# while real keys open a message box and a selection list.
# Usage: accessibility.sh DEMO
set -u
here=$(dirname "$0")
source "$here/desktop.sh"

# Waits until the focus is reported as a line of role, name and states. Usage: expect_focus LINE WAY
expect_focus() {
    local told=$1
    wait_until "\"$told\" is reported to have the focus after $2" \
        eval '[ "$(tail -n 1 "$work/heard")" = "$told" ]'
}

# Whether the screen holds what a line describes. Usage: shows LINE
shows() {
    /usr/bin/python3 "$here/hear.py" tree >"$work/shown" && grep -qxF -- "$1" "$work/shown"
}

start_desktop
start dbus-daemon --session --nofork --nopidfile --address="unix:path=$work/bus"
export DBUS_SESSION_BUS_ADDRESS=unix:path=$work/bus
wait_until "the session bus starts" test -S "$work/bus"
start /usr/libexec/at-spi-bus-launcher --launch-immediately
/usr/bin/python3 "$here/hear.py" >"$work/heard" 2>"$work/hear.log" &
started+=($!)
wait_until "the accessibility bus is listened to" grep -q listening "$work/heard"
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
start_client "$1"

keys ctrl+6 alt+e Home Down Down Down Down
answered=$(wc -l <"$record")
keys alt+w
wait_for_window Visits
expect_focus "push button|Yes|focused" "opening a message box"
for line in "dialog|Visits|active" "text|Message|" "push button|No|"; do
    shows "$line" || fail "a message box does not report \"$line\""
done
keys Tab
expect_focus "push button|No|focused" Tab
keys Return
wait_until "the message box is answered" has_answer

wait_until "the client is active again" is_active "$main"
keys ctrl+7 alt+i End Home alt+c Return
wait_for_window "Insurance Types"
expect_focus "text|Selected codes|focused" "opening a selection list"
keys Tab Right Left
expect_focus "table cell|MB, Medicare Part B, selected|focused,checked" "an arrow key"
keys space
wait_until "a code is reported as no longer selected" shows "table cell|MB, Medicare Part B, not selected|focused"
keys Escape
finish
