#!/usr/bin/env bash
# SPDX-License-Identifier: MIT Plays stories by real keys and clicks under a window manager.
# stories.txt explains their notation.
# Usage: play.sh STAGE [STORIES.txt [openbox|icewm SCALE light|dark]] [PART OF A NAME]
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

program=$1 stories=$here/stories.txt palette=light room=desk played=0 pending=0
[[ ${2:-} == *.txt ]] && stories=$2 && shift
if [ $# -ge 4 ]; then
    look=$2-$3-$4- palette=$4
    start_desktop "$2" "$3"
    shift 3
else
    start_desktop
fi
start_stage "$program" "$palette"
part=${2:-}
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
