#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Chooses codes in the demo client by real keys and clicks under a window manager.
# Usage: selection.sh DEMO
set -u
source "$(dirname "$0")/desktop.sh"
all='MB,MA,MC,BL,BX,CI,HM,PP,PS,EP,WC,AM,CH…P,CP,MG,OLD,17,IND'

# Enters the insurance types with MB and MG chosen, and opens the list with keys in the field of
# codes. Usage: open_list KEYS...; sets $window.
open_list() {
    wait_until "the client is active again" is_active "$main"
    keys alt+i End Home alt+c
    answered=$(wc -l <"$record")
    keys "$@"
    wait_for_window "Insurance Types    [Total: 28]"
}

# Checks what the last list returned. Usage: expect_choice CODES WAY
expect_choice() {
    wait_until "the list ends by $2" has_answer
    local line
    line=$(tail -n 1 "$record")
    [[ "$line" == ShowSelection*" = \"$1\"" ]] || fail "$2 gave $line instead of $1"
}

# Where to click, in pixels from the corners of the list. The grid is ten columns wide; a header and
# three bands of entries are between the box of codes and the buttons.
column() {
    echo $((8 + (width - 16) * (2 * $1 - 1) / 20))
}
click_part() {
    local width height
    width=$(length_of "$window" Width)
    height=$(length_of "$window" Height)
    case $1 in
    header) click "$window" $((width / 2)) 48 ;;
    all) click "$window" "$(column 1)" 80 ;;
    last-band-*) click "$window" "$(column "${1##*-}")" $((height - 64)) ;;
    ok) click "$window" $((width - 135)) $((height - 20)) ;;
    cancel) click "$window" $((width - 48)) $((height - 20)) ;;
    esac
}

start_desktop
start_client "$1"
keys ctrl+7

# KEYS CODES; the box of codes has the focus and ends with MG, the grid follows it, at MB.
while read -r typed codes; do
    open_list Return
    keys ${typed//,/ }
    expect_choice "$codes" "$typed"
done <<'ROWS'
Return CANCEL
Escape MB,MG
alt+F4 MB,MG
alt+o CANCEL
alt+a MB,MG
comma,W,C,comma,S,P,comma,Return MB,MG,WC,SP
comma,W,C,alt+o MB,MG,WC
comma,W,C,comma,Escape MB,MG
comma,W,C,Tab,Return MB,MG,WC
BackSpace,BackSpace,BackSpace,comma,KP_Enter MB
ctrl+a,Delete,Return
Tab,space,Return MG
Tab,Down,space,Left,space,Return MB,MG,WC,EP
Tab,S,P,Return,Escape,Return MB,MG,SP
Tab,End,space,Home,Right,space,Return MG,IND
Tab,Right,space,Escape MB,MG
Tab,space,Tab,Return MG
Tab,Right,space,Tab,Tab,Return MB,MG
Tab,Home,space,space,Return
ROWS

# PARTS CODES
while read -r parts codes; do
    open_list Return
    picture "selection-${parts//,/-}"
    for part in ${parts//,/ }; do click_part "$part"; done
    expect_choice "${codes//ALL/$all}" "clicks on $parts"
done <<'ROWS'
header CANCEL
ok CANCEL
last-band-4,header MB,MG,SP
last-band-4,last-band-6,ok MB,SP
last-band-4,cancel MB,MG
last-band-10,ok CANCEL
all,ok ALL
all,all,header
all,cancel MB,MG
ROWS

open_list Return
keys Tab Home space Return
expect_choice "$all" "all codes by Space"

# The character that opens the list arrives in its box.
open_list W
keys C Return
expect_choice MB,MG,WC "a character typed in the client"

open_list Return
list=$window
keys comma comma
wait_for_window "Invalid Entry"
picture selection-invalid-entry
keys Return
wait_until "the list is active again" is_active "$list"
keys Escape
expect_choice MB,MG "Escape after an invalid entry"

open_list Return
list=$window
keys comma Q Q Return
wait_until "a message names the unknown code" has_active_title "Front Desk"
! is_active "$main" || fail "the message about an unknown code is missing"
keys Return
wait_until "the list is active again" is_active "$list"
keys S P Return
expect_choice MB,MG,SP "an unknown code typed over"

wait_until "the client is active again" is_active "$main"
keys ctrl+q
client=${started[-1]}
wait_until "the client ends" has_ended "$client"
wait "$client" || fail "the client ended with $?: $(tail -n 20 "$work/$(basename "$1").log")"
finish
