#!/usr/bin/env bash
# Chooses days from the calendar in the demo client by real keys and clicks under a window manager.
# Usage: calendar.sh DEMO
set -u
source "$(dirname "$0")/desktop.sh"
export LC_ALL=C  # weeks start on Monday

# Opens the calendar of the visit on 3/7/2004, with keys; sets $window.
open_calendar() {
    wait_until "the client is active again" is_active "$main"
    keys alt+v ctrl+a
    xdotool type 3/7/2004
    answered=$(wc -l <"$record")
    keys Return
    wait_until "the calendar opens" eval '[ -n "$(active_window)" ] && ! is_active "$main"'
    window=$(active_window)
    width=$(length_of "$window" Width)
    height=$(length_of "$window" Height)
}

# Checks what the last calendar returned. Usage: expect_day DAY WAY
expect_day() {
    wait_until "the calendar ends by $2" has_answer
    local line
    line=$(tail -n 1 "$record")
    [[ "$line" == ShowCalendar*" = \"$1\"" ]] || fail "$2 gave $line instead of $1"
}

# Points at a part of the calendar: the bar with the month above seven rows of days, the first with
# their names, and the button below. A day is a row and a column from 0, as in 31.
point_at() {
    local x=$((width / 2)) y=12
    case $1 in
    close) y=$((height - 10)) ;;
    next) x=$((width - 12)) ;;
    bar) x=40 ;;
    *) x=$((width * (2 * ${1#?} + 1) / 14)) y=$((23 + (height - 44) * (2 * ${1%?} + 1) / 14)) ;;
    esac
    xdotool mousemove --sync --window "$window" "$x" "$y"
}

start_desktop
start_client "$1"
keys alt+s a

# STEPS DAY: keys; "over-" a part points at it, "on-" clicks it.
while read -r steps day; do
    open_calendar
    for step in ${steps//,/ }; do
        case $step in
        over-*) point_at "${step#*-}" ;;
        on-*) point_at "${step#*-}" && xdotool click 1 ;;
        *) keys "$step" ;;
        esac
    done
    expect_day "${day/TODAY/$(date +%m/%d/%Y)}" "$steps"
done <<'ROWS'
Return 03/07/2004
Right,Down,KP_Enter 03/15/2004
1,5,space,Return 03/07/2004
Next,ctrl+Prior,Return 04/07/2003
t,Return TODAY
Escape
alt+F4
Tab,Return
on-31 03/09/2004
on-10 02/23/2004
on-bar,on-02,Return 03/07/2004
on-next,Return 04/07/2004
on-close
Return 03/07/2004
over-bar,over-close,Return
over-close,over-31,Return 03/07/2004
ROWS

# The client's corner puts the button at an edge of the screen.
while read -r edge left top; do
    wait_until "the client is active again" is_active "$main"
    xdotool windowmove "$main" "$left" "$top"
    wait_until "the client moves" eval 'xwininfo -id "$main" | grep -qF "Corners:  +$left+$top "'
    open_calendar
    picture "calendar-$edge"
    IFS=', ' read -r l r t b < <(xprop -id "$window" _NET_FRAME_EXTENTS | sed 's/.*= //')
    read -r x y < <(xwininfo -id "$window" | sed -n 's/.*Absolute.*: *//p' | tr '\n' ' ')
    ((x >= l && y >= t && x + width + r <= 1366 && y + height + b <= 768)) ||
        fail "at the $edge the calendar lies at $x, $y"
    keys Return
    expect_day 03/07/2004 "Enter at the $edge"
done <<'ROWS'
left -445 0
top 100 -150
right 905 0
bottom 100 600
corner 905 600
ROWS

wait_until "the client is active again" is_active "$main"
keys ctrl+q
client=${started[-1]}
wait_until "the client ends" has_ended "$client"
wait "$client" || fail "the client ended with $?: $(tail -n 20 "$work/$(basename "$1").log")"
finish
