#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Holds keys down and asks a window without a close button to close, in the demo client under a
# window manager.
# Usage: helpers.sh DEMO
set -u
source "$(dirname "$0")/desktop.sh"
start_desktop
start_client "$1"
choose_page alt+s k

for key in Shift Ctrl Alt; do
    xdotool keydown "$key"
    wait_until "$key is down" grep -q "${key}Pressed() = true" "$record"
    xdotool keyup "$key"
    wait_until "$key is up" grep -q "${key}Pressed() = false" "$record"
done

keys Escape alt+o
wait_for_window "No close button"
! may_close "$window" || fail "the window still has a close button: $(xprop -id "$window" _MOTIF_WM_HINTS)"
request_close "$window" "$window"
! grep -q "QDialog::exec" "$record" || fail "the user closed a window without a close button"
keys Return
wait_until "the host closes its window" grep -q "QDialog::exec" "$record"
finish
