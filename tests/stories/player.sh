# SPDX-License-Identifier: MIT Sourced by what acts on the stage by real keys and clicks under a
# window manager. Each act waits for the effect of the previous one; nothing waits a fixed time.
source "$(dirname "${BASH_SOURCE[0]}")/../desktop/desktop.sh"

# Keys by their place on a keyboard, whatever its layout: no key map is read or changed. Codes have
# two digits, since one digit alone would be read as a character.
declare -A code=(
    [Escape]=09 [1]=10 [2]=11 [3]=12 [4]=13 [5]=14 [6]=15 [7]=16 [8]=17 [9]=18 [0]=19 [-]=20
    [=]=21 [+]=50+21 [\*]=50+17 [BackSpace]=22 [Tab]=23 [Back]=50+23 [Enter]=36 [Ctrl]=37
    [Shift]=50 [Alt]=64 [Space]=65 [" "]=65 [,]=59 [.]=60 [/]=61 [F2]=68 [F3]=69 [F4]=70 [F7]=73 ["'"]=48 [F9]=75
    [NumLock]=77 [$]=50+13 [(]=50+18 [)]=50+19
    [a]=38 [b]=56 [c]=54 [d]=40 [e]=26 [f]=41 [g]=42 [h]=43 [i]=31 [j]=44 [k]=45 [l]=46 [m]=58
    [n]=57 [o]=32 [p]=33 [q]=24 [r]=27 [s]=39 [t]=28 [u]=30 [v]=55 [w]=25 [x]=53 [y]=29 [z]=52
    [Home]=110 [Up]=111 [PageUp]=112 [Left]=113 [Right]=114 [End]=115 [Down]=116 [PageDown]=117
    [Delete]=119 [K7]=79 [K8]=80 [K9]=81 [K-]=82 [K4]=83 [K5]=84 [K6]=85 [K+]=86 [K1]=87 [K2]=88
    [K3]=89 [K0]=90 [K.]=91 [KEnter]=104 [K/]=106 [K\*]=63)
look="" pictures=100  # names of pictures, which sort
got="" trouble=""

# Buttons of the calculator by their captions
declare -A button=([+-]=10 [.]=11 [/]=12 [\*]=13 [-]=14 [+]=15 [=]=16 [CLR]=17 [RET]=18)

# Reads the host's answer into $answer; what the host got before it is added to $got.
hear() {
    local line
    while IFS= read -r -u "$answers" line; do
        case $line in
        got*) got+="${got:+; }${line#got }" ;;
        stuck*)
            trouble=$line
            return 1
            ;;
        *)
            answer=$line
            return
            ;;
        esac
    done
    give_up "the host lives"
}

# Runs mouse and keyboard commands and waits until the host has dealt with them. The last command
# flushes what xdotool would keep back. Usage: act CLICKS COMMANDS...
act() {
    ((marks += 1, clicks += $1))
    shift
    printf '%s\n' "$@" "set_window --icon-name mark$marks $marked" get_num_desktops >&"$hand"
    echo "await $marks $clicks ${over:-}" >&"$questions"
    hear
}

start_host() {
    coproc host { exec "$program" --player --palette "$palette" 2>>"$work/host.log"; }
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

# A new window, "desk" or "stage", in the place of the old one. Usage: new_window [PLACE]
new_window() {
    echo "new $room $1" >&"$questions"
    hear && main=${answer#window } && act 0 "windowactivate $main"
}

# Asks the window manager to close the window in front. It answers requests in order, so the second
# one tells when the first is done.
request_close() {
    echo front >&"$questions"
    hear
    wmctrl -i -c "$answer"
    local way
    for way in add/1 remove/0; do
        wmctrl -i -r "$main" -b "${way%/*},above"
        wait_until "the window manager answers" marks_above "${way#*/}"
    done
    act 0
}
marks_above() {
    [ "$(xprop -id "$main" _NET_WM_STATE | grep -c ABOVE)" = "$1" ]
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

# Presses and releases a button without the tenth of a second that xdotool's own click takes. The
# control that is named may still have moved away from the pointer.
# Usage: click_here [BUTTON [CONTROL]]
click_here() {
    local tries=100
    until over="pointer ${2:-}" act 0 && [ "$answer" = done ]; do
        ((tries-- > 0)) || trouble="the pointer is not over ${2:-the host}"
        [ -z "$trouble" ] || return
        [ -z "${2:-}" ] || point_at "$2" || return
    done
    act 1 "mousedown ${1:-1}" "mouseup ${1:-1}"
}

point_at() {
    echo "where $1" >&"$questions"
    hear && [ "$answer" != nowhere ] || {
        trouble="$1 is not on the screen"
        return 1
    }
    echo "mousemove ${answer#at }" >&"$hand"
}

# Clicks the middle of a control. Usage: click_on NAME [BUTTON]
click_on() {
    local control=${1/#day:/qt_calendar_calendarview:}
    point_at "$control" && click_here "${2:-1}" "$control"
}

press() {
    local keys=() part rest=$1
    while [[ $rest == ?*+?* && -z ${code[$rest]:-} ]]; do
        keys+=("${code[${rest%%+*}]}")
        rest=${rest#*+}
    done
    [[ $rest == [A-Z] ]] && keys+=("${code[Shift]}") && rest=${rest,}
    part=${code[$rest]:-}
    [ -n "$part" ] || {
        trouble="no key $rest"
        return 1
    }
    keys+=("$part")
    act 0 "key --delay 0 $(IFS=+ && echo "${keys[*]}")"
}

# Presses a text's keys all at once
type_at_once() {
    local i keys=()
    for ((i = 0; i < ${#1}; i++)); do
        keys+=("${code[${1:i:1}]:-}")
        [ -n "${keys[-1]}" ] || trouble="no key ${1:i:1}"
    done
    [ -z "$trouble" ] && act 0 "key --delay 0 ${keys[*]}"
}

# Opens a call of the stage's. Usage: open_call NAME
open_call() {
    type_at_once "$1" && press Enter
}

# Waits until the host has got something: a box whose countdown ends, say.
await_outcome() {
    local before=$got tries=1000
    while [ "$got" = "$before" ]; do
        ((tries-- > 0)) || {
            trouble="the host gets nothing"
            return 1
        }
        act 0 || return
    done
}

type_text() {
    local i
    for ((i = 0; i < ${#1}; i++)); do press "${1:i:1}" || return; done
}

# A picture of the window in front, when HALVEK_PICTURES names a folder
take_picture() {
    [ -n "${HALVEK_PICTURES:-}" ] || return 0
    mkdir -p "$HALVEK_PICTURES"
    echo "picture $HALVEK_PICTURES/$look$((++pictures))-${name_of_story//[: ]/-}.png" >&"$questions"
    act 0
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
    \<*:menu\>) click_on "${1:1:-6}" 3 ;;
    \<*\>) click_on "${1:1:-1}" ;;
    \'*\') type_text "${1:1:-1}" ;;
    \?*) echo "read ${1:1}" >&"$questions" && act 0 ;;
    NUM) numbers_are on ;;
    German) keyboard_is de && act 0 ;;
    @fresh) end_host && start_host && new_window "" ;;
    @at=*) new_window "${1#*=}" ;;
    @open=*) open_call "${1#*=}" ;;
    @open) open_call "${name_of_story%%:*}" ;;
    @close) request_close ;;
    @closed) await_outcome ;;
    @hold=*) act 0 "keydown ${code[${1#*=}]}" ;;
    @release=*) act 0 "keyup ${code[${1#*=}]}" ;;
    @picture) take_picture ;;
    @paste=*) echo "clipboard ${1#*=}" >&"$questions" && press Ctrl+v ;;
    @load=*) echo "load ${1#*=}" >&"$questions" && act 0 ;;
    @locale=*) echo "locale ${1#*=}" >&"$questions" && act 0 ;;
    *) press "$1" ;;
    esac
}

# Plays a story on a new window. Sets $got and $trouble. Usage: play NAME STEPS
play() {
    local step name_of_story=$1
    # What is left open after trouble may have no close button.
    if [ -n "$trouble" ]; then
        end_host
        start_host
    fi
    got="" trouble=""
    keyboard_is us
    new_window "" && numbers_are off || return
    got=""
    while read -r step; do
        take_step "${step//\~/ }" || return
    done <<<"${2// /$'\n'}"
    echo front >&"$questions"
    hear && [ "$answer" = "$main" ] || trouble="a window is left open"
}

# Starts the stage on the desktop. Usage: start_stage PROGRAM [PALETTE]
start_stage() {
    program=$1 palette=${2:-light}
    layout="" numlock=off
    trap '' PIPE
    exec {hand}> >(exec xdotool - >/dev/null 2>"$work/xdotool.log")
    start_host
}
