#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Chooses days from the calendar in the demo client by real keys and clicks under a window manager.
# Usage: calendar.sh DEMO
set -u
source "$(dirname "$0")/desktop.sh"
export LC_ALL=C  # where weeks would start on Monday

# Moves the client and opens the calendar of its visit on 3/7/2004, with keys; sets $window.
open_calendar() {
    wait_until "the client is active again" is_active "$main"
    xdotool windowmove "$main" "$left" "$top"
    wait_until "the client moves" eval 'xwininfo -id "$main" | grep -qF "Corners:  +$left+$top "'
    keys alt+v ctrl+a
    xdotool type 3/7/2004
    answered=$(wc -l <"$record")
    keys Return
    wait_until "the calendar opens" eval '! is_active "$main" && active_window'
    window=$(active_window)
    width=$(length_of "$window" Width)
    height=$(length_of "$window" Height)
}

expect_on_screen() {
    local l r t b x y
    IFS=', ' read -r l r t b < <(xprop -id "$window" _NET_FRAME_EXTENTS | sed 's/.*= //')
    read -r x y < <(xwininfo -id "$window" | sed -n 's/.*Absolute.*: *//p' | tr '\n' ' ')
    ((x >= l && y >= t && x + width + r <= 1366 && y + height + b <= 768)) ||
        fail "beside a client at $left $top the calendar is at $x $y"
}

# A key, "click", or a place to point at, in hundredths of the calendar's width and height.
take_step() {
    local x=${1%/*} y=${1#*/}
    case $1 in
    click) xdotool click 1 ;;
    */*) xdotool mousemove --sync --window "$window" $((width * x / 100)) $((height * y / 100)) ;;
    *) keys "$1" ;;
    esac
}

start_desktop
start_client "$1"
choose_page alt+s a

# LEFT TOP of the client, which puts its button at every edge of the screen; STEPS; DAY. The month's
# name is at 6 of the height, the names of the days at 18, the button at 75 of the width and 91 of
# the height.
while read -r left top steps day; do
    open_calendar
    picture "calendar-$left-$top"
    expect_on_screen
    for step in ${steps//,/ }; do take_step "$step"; done
    wait_until "the calendar ends by $steps" has_answer
    line=$(tail -n 1 "$record")
    [[ "$line" == ShowCalendar*" = \"${day/TODAY/$(date +%m/%d/%Y)}\"" ]] ||
        fail "$steps gave $line instead of $day"
done <<'ROWS'
100 0 5,Next,ctrl+Prior,Right,KP_Enter 04/08/2003
-445 0 t,Return TODAY
100 -150 alt+F4
905 0 21/51,click 03/15/2004
905 600 20/6,click,21/18,click,Return 03/07/2004
100 0 95/6,click,Return 04/07/2004
100 0 64/6,click,50/62,1,9,9,9,Return,Return 03/07/1999
100 0 7/29,click 02/29/2004
100 0 75/91,click
100 0 Return 03/07/2004
100 0 50/50,75/91,Return
ROWS
finish
