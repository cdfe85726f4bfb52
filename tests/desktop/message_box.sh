#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Answers the message boxes of the demo client by real keys and clicks under a window manager.
# Usage: message_box.sh DEMO
set -u
source "$(dirname "$0")/desktop.sh"

# Shows the sample box of a button set. Usage: open_box VALUE TITLE; sets $window.
open_box() {
    wait_until "the client is active again" is_active "$main"
    keys alt+e Home
    for ((i = 0; i < $1; i++)); do keys Down; done
    answered=$(wc -l <"$record")
    keys alt+w
    wait_for_window "$2"
}

# Checks what the last box returned. Usage: expect_answer SET RESULT WAY
expect_answer() {
    wait_until "$1 is answered by $3" has_answer
    local line
    line=$(tail -n 1 "$record")
    [[ "$line" == "ShowMsgBox("*" $1, "*" = $2"* ]] || fail "$3 in $1 gave $line"
}

# Clicks the right one of two buttons: a pixel is 15 twips, the button row is at the bottom.
click_second_button() {
    local width height
    width=$(length_of "$1" Width)
    height=$(length_of "$1" Height)
    click "$1" $(((width * 15 / 2 + 40 + 650) / 15)) $((height - 24))
}

start_desktop
start_client "$1"
keys ctrl+6

# VALUE TITLE SET KEYS RESULT
while read -r value title set keys result; do
    open_box "$value" "$title"
    keys ${keys//,/ }
    expect_answer "$set" "$result" "$keys"
done <<'ROWS'
0 Appointments mbOkOnly o 1
0 Appointments mbOkOnly Return 1
0 Appointments mbOkOnly Escape 1
1 Statements mbOkCancel c 2
1 Statements mbOkCancel Escape 2
1 Statements mbOkCancel Tab,Return 2
1 Statements mbOkCancel ctrl+c,Return 1
2 Claims mbAbortRetryIgnore Escape,i 5
2 Claims mbAbortRetryIgnore Tab,space 4
3 Visits mbYesNoCancel shift+n 7
4 Visits mbYesNo Escape,alt+F4,alt+n 7
4 Visits mbYesNo KP_Enter 6
6 Referrals mbSaveDontSave d 9
7 Recalls mbNoButtons Return 1
8 Insurance mbYesHelp alt+F4 6
9 Patients mbYesNoHelp shift+Tab,Return 10
ROWS

for row in "4 Visits mbYesNo 7" "1 Statements mbOkCancel 2"; do
    read -r value title set result <<<"$row"
    open_box "$value" "$title"
    picture "$set"
    click_second_button "$window"
    expect_answer "$set" "$result" "a click"
done

open_box 4 Visits
! may_close "$window" || fail "mbYesNo has a close button: $(xprop -id "$window" _MOTIF_WM_HINTS)"
request_close "$window" "$window"
keys y
expect_answer mbYesNo 6 "y after a close request"

open_box 1 Statements
may_close "$window" || fail "mbOkCancel has no close button: $(xprop -id "$window" _MOTIF_WM_HINTS)"
request_close "$window" "$main"
expect_answer mbOkCancel 2 "a close request"

wait_until "the client is active again" is_active "$main"
keys ctrl+q
client=${started[-1]}
wait_until "the client ends" has_ended "$client"
wait "$client" || fail "the client ended with $?: $(tail -n 20 "$work/$(basename "$1").log")"
finish
