#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Kills the display under a host while a dialog is open: the host exits through Qt, neither hangs
# nor crashes, and its error log holds whole lines. Usage: lost_display.sh STAGE
set -u
source "$(dirname "$0")/../stories/player.sh"

room=stage
for call in "box yes no" "list insurance"; do
    start_desktop
    display=${started[-2]}
    start_stage "$1"
    pid=$host_PID
    new_window "" && open_call "log a line" && open_call "$call"
    echo "read focus" >&"$questions"
    act 0
    [[ $got == *"focus arrCmd_0" || $got == *"focus txtSelect" ]] || fail "$call gives $got"
    kill -KILL "$display"
    wait "$display" 2>/dev/null
    wait "$pid"
    status=$?
    [ "$status" -eq 1 ] || fail "without its display under $call the host ended with $status"
    if ! grep -q $'\tThe label printer is out of paper\r$' "$work/Stage.log" ||
        grep -qv $'\r$' "$work/Stage.log"; then
        fail "the error log of the host under $call has a partial line"
    fi
    rm "$work/Stage.log"
done
finish
