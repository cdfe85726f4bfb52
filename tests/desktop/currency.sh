#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Types amounts into the demo client's currency fields by real keys under a window manager.
# Usage: currency.sh DEMO
set -u
source "$(dirname "$0")/desktop.sh"

# Presses keys and waits for the line they record. Usage: expect KEYS LINE
expect() {
    local line=$2
    answered=$(wc -l <"$record")
    keys ${1//,/ }
    wait_until "$1 gives $2" eval 'has_answer && [ "$(tail -n 1 "$record")" = "$line" ]'
}

start_desktop
start_client "$1"
choose_page alt+s y

# KEYS BEFORE AFTER; Alt and a, d, m and t enter the amount, the adjustment and the range.
while read -r typed before after; do
    [[ "$typed" == alt+d* ]] && handler=OnNegCurrencyCtrValidate || handler=OnCurrencyCtrValidate
    expect "$typed" "$handler(\"$before\") = \"$after\""
done <<'ROWS'
alt+a,1,2,3,4,period,5,6,7,Tab 1234.56 $1,234.56
alt+a,Tab,shift+Tab,Tab 1234.56 $1,234.56
alt+a,End,BackSpace,KP_9,x,Escape,Home,shift+Right,shift+Right,7,Tab 734.59 $734.59
alt+a,ctrl+c,KP_Decimal,5,ctrl+z,Delete,ctrl+v,Tab 734.59 $734.59
alt+a,1,2,3,4,5,6,7,8,9,period,1,2,3,alt+d 1234567.12 $1,234,567.12
alt+d,2,5,minus,1,Tab -125 $-125.00
alt+d,minus,period,0,0,Tab -0.00 0.00
alt+m,5,0,alt+t 50 $50.00
alt+t,5,0,Tab 50 $50.00
ROWS
keys alt+t 2 0 Tab
wait_until "a message about an amount below the lower one" eval '[ -n "$(active_window)" ] && ! is_active "$main"'
picture currency-range
keys Return
wait_until "the client is active again" is_active "$main"
expect 6,0,Tab 'OnCurrencyCtrValidate("60") = "$60.00"'
keys alt+a 9 Return
wait_for_window "Payment"
expect y 'ShowMsgBox("Post $9.00 with an adjustment of 0.00?") = mbYes'
finish
