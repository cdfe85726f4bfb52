#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Kills the display under the demo client while a dialog is open: the client exits through Qt,
# neither hangs nor crashes, and its error log holds whole lines. Usage: lost_display.sh DEMO
set -u
source "$(dirname "$0")/desktop.sh"

# KEYS that open a dialog TITLE
while read -r keys title; do
    start_desktop
    display=${started[-2]}
    start_client "$1"
    keys ctrl+5 alt+l
    wait_until "a line is logged" grep -q LogError "$record"
    keys ${keys//,/ }
    wait_for_window "$title"
    kill -KILL "$display"
    wait "$display" 2>/dev/null
    wait_until "the client ends without its display" has_ended "${started[-1]}"
    wait "${started[-1]}"
    status=$?
    [ "$status" -eq 1 ] || fail "without its display under $title the client ended with $status"
    log=$(find "$work/.local" -name '*.log')
    if ! grep -q $'\tThe label printer is out of paper\r$' "$log" || grep -qv $'\r$' "$log"; then
        fail "the error log of the client under $title has a partial line"
    fi
    rm -r "$record" "$work/.local"
done <<'ROWS'
ctrl+6,alt+e,Home,alt+w Appointments
ctrl+7,alt+i,End,Home,alt+c,Return Insurance Types
ROWS
finish
