#!/usr/bin/env bash
# SPDX-License-Identifier: MIT Walks through each window by real keys with a screen reader on, and
# compares what it says with walks.txt, which explains its notation. Nothing waits a fixed time.
# Usage: walks.sh STAGE [PART OF A CALL]
set -u
here=$(dirname "$0")
source "$here/../desktop/desktop.sh"

# Starts the reader on buses of its own. Sets $said, the file of all that it says.
start_reader() {
    said=$work/said
    start dbus-daemon --session --nofork --nopidfile --address="unix:path=$work/bus"
    export DBUS_SESSION_BUS_ADDRESS=unix:path=$work/bus
    wait_until "the session bus starts" test -S "$work/bus"
    start /usr/libexec/at-spi-bus-launcher --launch-immediately
    export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
    : >"$said"
    start env LC_ALL=C.UTF-8 /usr/bin/python3 "$here/reader.py" "$said" "$work/reader"
    wait_until "the reader speaks" grep -q . "$said"
}

mark() {
    mapfile -t lines <"$said"
    marked=${#lines[@]}
}

# What has been said since the mark; sets $heard, and $whole with what was cut short.
listen() {
    local line
    heard="" whole=""
    mapfile -t -s "$marked" lines <"$said"
    for line in "${lines[@]}"; do
        # A box counts in its title, whether it was read before or after.
        [[ $line =~ ^(.*)\ [0-9:]{8}\ /\ [0-9:]{8}(.*)$ ]] && line=${BASH_REMATCH[1]}${BASH_REMATCH[2]}
        if [ -z "$line" ]; then
            heard=""
        else
            heard+=${heard:+ / }$line
            whole+=${whole:+ / }$line
        fi
    done
}

# Whether what is heard is, or ends with, a text. On a busy machine a key may cut short what it has
# caused itself.
hears() {
    listen
    [[ "$heard" == "$1" || "$whole" == "$1" ]]
}
hears_among() {
    listen
    [[ "$whole" == *"$1"* ]]
}
hears_last() {
    listen
    [[ "$heard" == *"$1" ]]
}

# Waits a while until a condition holds. Usage: soon COMMAND...
soon() {
    local tries=1000
    until "$@"; do
        ((tries-- > 0)) || return
        sleep 0.02
    done
}

start_stage() {
    "$program" >"$work/stage.log" 2>&1 &
    stage=$!
    started+=("$stage")
    wait_until "the stage is shown" has_active_title Stage
    soon hears_last "Call text."
}

end_stage() {
    kill "$stage"
    wait "$stage" 2>/dev/null
    is_open=0
}

# Acts: keys by their names, or a quoted text
act() {
    case $1 in
    \"*\") xdotool type --delay 0 -- "${1:1:-1}" ;;
    *) read -ra names <<<"$1" && keys "${names[@]}" ;;
    esac
}

open_call() {
    is_open=1
    keys ctrl+a
    xdotool type --delay 0 -- "$1"
    mark
    keys Return
}

# Whether the stage has the keyboard again and the reader has said so.
is_back() {
    listen
    [[ "$whole" == *"Stage frame."* ]] && has_active_title Stage
}

# What a key makes heard. The echo of a text typed before it may still be on its way. On a busy
# machine so may the name of what got the keyboard when a window opened, which the reader says again.
hears_now() {
    if [ -n "$echoing" ]; then hears_last "$1"; else hears "$1"; fi
}

# One row of a walk; once one has failed, the others of the walk are skipped.
step() {
    [ "$is_open" = 1 ] || return
    ((steps += 1))
    if [ "$1" = open ]; then
        open_call "$call"
        soon hears_among "$2" && echoing=1 && return
    elif [[ $1 == close* ]]; then
        mark
        act "${1#close }"
        soon is_back && return
    else
        mark
        act "$1"
        if soon hears_now "$2"; then
            [[ $1 == \"* ]] && echoing=1 || echoing=""
            return
        fi
    fi
    picture "walk-$call"
    fail "$call, $1: says \"$heard\" instead of \"$2\""
    end_stage
    start_stage
}

program=$1 part=${2:-} call="" steps=0 is_open=0 marked=0 echoing=""
start_desktop
start_reader
start_stage
while IFS='|' read -r acts wanted; do
    read -r acts <<<"$acts"
    read -r wanted <<<"$wanted"
    case $acts in
    "" | \#*) continue ;;
    =*) call=${acts#= } is_open=1 ;;
    *) [[ $call == *"$part"* ]] && step "$acts" "$wanted" ;;
    esac
done <"$here/walks.txt"
echo "$steps steps"
[ "$failures" -eq 0 ] || tail -n 50 "$work/env.log" "$work/stage.log"
finish
