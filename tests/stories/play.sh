#!/usr/bin/env bash
# SPDX-License-Identifier: MIT Plays the stories of stories.txt, which explains their notation, to a
# host by real keys and clicks under a window manager. Each act waits for the effect of the previous
# one; nothing waits a fixed time. Usage: play.sh HOST [PART OF A NAME]
set -u
here=$(dirname "$0")
source "$here/../desktop/desktop.sh"

# Keys by their place on a keyboard, whatever its layout: no key map is read or changed. Codes have
# two digits, since one digit alone would be read as a character.
declare -A code=(
    [Escape]=09 [1]=10 [2]=11 [3]=12 [4]=13 [5]=14 [6]=15 [7]=16 [8]=17 [9]=18 [0]=19 [-]=20
    [=]=21 [+]=50+21 [\*]=50+17 [BackSpace]=22 [Tab]=23 [Back]=50+23 [Enter]=36 [Ctrl]=37 [Shift]=50
    [Alt]=64 [Space]=65 [,]=59 [.]=60 [/]=61 [F2]=68 [F9]=75 [NumLock]=77
    [$]=50+13 [(]=50+18 [)]=50+19
    [\ ]=65 [F3]=69 [F4]=70 [\;]=47 ["'"]=48
    [Home]=110 [Up]=111 [PageUp]=112 [Left]=113 [Right]=114 [End]=115 [Down]=116 [PageDown]=117
    [Delete]=119 [K7]=79 [K8]=80 [K9]=81 [K-]=82 [K4]=83 [K5]=84 [K6]=85 [K+]=86 [K1]=87 [K2]=88
    [K3]=89 [K0]=90 [K.]=91 [KEnter]=104 [K/]=106 [K\*]=63)
# Letters, small and capital
place=24
for letter in q w e r t y u i o p - - - - a s d f g h j k l - - - - - z x c v b n m; do
    [ "$letter" = - ] || code[$letter]=$place code[${letter^}]=50+$place
    ((place += 1))
done
# Buttons of the calculator by their captions
declare -A button=([+-]=10 [.]=11 [/]=12 [\*]=13 [-]=14 [+]=15 [=]=16 [CLR]=17 [RET]=18)

# Reads the host's answer into $answer; what the host got before it is added to $got.
hear() {
    local line
    while IFS= read -r -t 20 -u "$answers" line; do
        case $line in
        got*) got+="${got:+; }${line#got }" ;;
        *)
            answer=$line
            return
            ;;
        esac
    done
    kill -0 "$host_PID" 2>/dev/null || give_up "the host lives"
    echo why >&"$questions"
    IFS= read -r -t 5 -u "$answers" line
    trouble="the host does not answer: $line"
    return 1
}

# Runs mouse and keyboard commands and waits until the host has dealt with them. The last command
# flushes what xdotool would keep back. Usage: act CLICKS COMMANDS...
act() {
    ((marks += 1, clicks += $1))
    shift
    printf '%s\n' "$@" "set_window --role mark$marks $marked" get_num_desktops >&"$hand"
    echo "await $marks $clicks" >&"$questions"
    hear
}

start_host() {
    coproc host { exec "$program" 2>"$work/host.log"; }
    started+=("$host_PID")
    local from=${host[0]} to=${host[1]}
    exec {answers}<&"$from" {questions}>&"$to" {from}<&- {to}>&-
    marks=0 clicks=0
    hear || give_up "the host starts"
    marked=${answer#marks }
}

end_host() {
    exec {answers}<&- {questions}>&-
    wait "$host_PID" 2>/dev/null
}

new_window() {
    echo "new $1" >&"$questions"
    hear && act 0 "windowactivate ${answer#window }"
}

# The keyboard's layout and NumLock
keyboard_is() {
    [ "$layout" = "$1" ] && return
    setxkbmap -rules evdev -model pc105 -layout "$1"
    layout=$1
}
numbers_are() {
    [ "$numlock" = "$1" ] && return
    numlock=$1
    act 0 "key --delay 0 ${code[NumLock]}"
}

# Presses and releases a button without the tenth of a second that xdotool's own click takes.
click_here() {
    act 1 "mousedown 1" "mouseup 1"
}

# Clicks the middle of a control
click_on() {
    echo "where ${1/#day:/qt_calendar_calendarview:}" >&"$questions"
    hear && [ "$answer" != nowhere ] || {
        trouble="$1 is not on the screen"
        return 1
    }
    echo "mousemove ${answer#at }" >&"$hand"
    click_here
}

press() {
    local keys=() part rest=$1
    while [[ $rest == ?*+?* && -z ${code[$rest]:-} ]]; do
        keys+=("${code[${rest%%+*}]}")
        rest=${rest#*+}
    done
    part=${code[$rest]:-}
    [ -n "$part" ] || {
        trouble="no key $rest"
        return 1
    }
    keys+=("$part")
    act 0 "key --delay 0 $(IFS=+ && echo "${keys[*]}")"
}

type_text() {
    local i
    for ((i = 0; i < ${#1}; i++)); do press "${1:i:1}" || return; done
}

# One step of a story, as stories.txt explains them
take_step() {
    local name
    case $1 in
    \[*\]) # a button of the calculator
        name=${1:1:-1}
        click_on "arrCmd_${button[$name]:-$name}"
        ;;
    \<\<*\>\>) # the second click comes once the first has had its effect
        echo slow-hand >&"$questions"
        click_on "${1:2:-2}" && click_here
        ;;
    \<*\>) click_on "${1:1:-1}" ;;
    \'*\') type_text "${1:1:-1}" ;;
    \?*) echo "read ${1:1}" >&"$questions" && act 0 ;;
    NUM) numbers_are on ;;
    German) keyboard_is de && act 0 ;;
    @fresh) end_host && start_host && new_window "" ;;
    @right) new_window right ;;
    @paste=*) echo "clipboard ${1#*=}" >&"$questions" && press Ctrl+v ;;
    @lines=*) echo "lines ${1#*=}" >&"$questions" && press Ctrl+v ;;
    @load=*) echo "load ${1#*=}" >&"$questions" && act 0 ;;
    @locale=*) echo "locale ${1#*=}" >&"$questions" && act 0 ;;
    *) press "$1" ;;
    esac
}

# Plays a story on a new window. Sets $got and $trouble.
play() {
    local step
    got="" trouble=""
    keyboard_is us
    new_window "" && numbers_are off || return
    got=""
    while read -r step; do
        take_step "${step//\~/ }" || return
    done <<<"${1// /$'\n'}"
}

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

program=$1 part=${2:-} layout="" numlock=off played=0 pending=0
trap '' PIPE
start_desktop
exec {hand}> >(exec xdotool - >/dev/null 2>"$work/xdotool.log")
start_host
while IFS='|' read -r name steps wanted; do
    [[ -z $name || $name == \#* || $name != *"$part"* ]] && continue
    read -r name <<<"$name"
    read -r steps <<<"$steps"
    read -r wanted <<<"$wanted"
    play "$steps"
    judge "$name" "$wanted"
done <"$here/stories.txt"
echo "$played stories, $pending of them pending"
! grep -as "Error" "$work/Desk.log" || fail "the library has logged a fault"
[ "$failures" -eq 0 ] || tail -n 90 "$work/host.log" "$work/xdotool.log"
finish
