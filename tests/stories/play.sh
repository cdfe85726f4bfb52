#!/usr/bin/env bash
# SPDX-License-Identifier: MIT Plays stories by real keys and clicks under a window manager.
# stories.txt explains their notation.
# Usage: play.sh STAGE [PART OF A NAME [STORIES [MANAGER [SCALE [PALETTE]]]]]
set -u
here=$(dirname "$0")
source "$here/player.sh"

judge() {
    local name=$1 wanted=$2 outcome=$got${trouble:+ ($trouble)}
    ((played += 1))
    if [[ $name == pending\ * && -z $trouble ]]; then
        ((pending += 1))
        [ "$outcome" != "$wanted" ] || fail "$name: it passes now"
    elif [ "$outcome" != "$wanted" ]; then
        picture "story-$played"
        fail "$name: gives $outcome instead of $wanted"
    fi
}

part=${2:-} stories=${3:-$here/stories.txt} room=desk played=0 pending=0
[ $# -lt 4 ] || look=$4-$5-$6-
start_desktop "${4:-openbox}" "${5:-1}"
start_stage "$1" "${6:-light}"
while IFS='|' read -r name steps wanted; do
    [[ $name == "window "* ]] && room=${name#window }
    [[ -z $steps || $name == \#* || $name != *"$part"* ]] && continue
    read -r name <<<"$name"
    read -r steps <<<"$steps"
    read -r wanted <<<"$wanted"
    play "$name" "$steps"
    judge "$name" "${wanted//TODAY/$(date +%m/%d/%Y)}"
done <"$stories"
echo "$played stories, $pending of them pending"
# Only help files are faulty on purpose.
! grep -as "Error" "$work/Stage.log" | grep -v "Utils.ShowHelp " || fail "the library has logged a fault"
[ "$failures" -eq 0 ] || tail -n 90 "$work/host.log" "$work/xdotool.log"
finish
