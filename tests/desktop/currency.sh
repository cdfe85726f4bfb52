#!/usr/bin/env bash
# Types amounts into the demo client's currency fields by real keys under a window manager.
# Usage: currency.sh DEMO
set -u
source "$(dirname "$0")/desktop.sh"

# Whether the record has grown and now ends with a line. Usage: last_line_is LINE
last_line_is() {
    has_answer && [ "$(tail -n 1 "$record")" = "$1" ]
}

# Types into a field and leaves it. Usage: expect FIELD KEYS LINE; FIELD is the letter of its label
expect() {
    answered=$(wc -l <"$record")
    keys "alt+$1" ${2//,/ }
    wait_until "$1 with $2 gives $3, not $(tail -n 1 "$record")" last_line_is "$3"
}

start_desktop
start_client "$1"
keys alt+s y

# FIELD KEYS BEFORE AFTER; a field keeps its amount from row to row.
while read -r field keys before after; do
    handler=OnCurrencyCtrValidate
    [ "$field" != d ] || handler=OnNegCurrencyCtrValidate
    expect "$field" "$keys" "$handler(\"$before\") = \"$after\""
done <<'ROWS'
a 1,2,3,4,period,5,6,7,Tab 1234.56 $1,234.56
a Tab 1234.56 $1,234.56
a Tab,shift+Tab,Tab 1234.56 $1,234.56
a End,BackSpace,BackSpace,KP_9,x,Escape,Tab 1234.9 $1,234.90
a Home,shift+Right,shift+Right,7,Tab 734.90 $734.90
a KP_Decimal,5,ctrl+z,ctrl+z,Tab 734.90 $734.90
a ctrl+c,Delete,8,ctrl+a,ctrl+v,Tab 734.90 $734.90
a 1,2,3,4,5,6,7,8,9,period,1,2,3,Tab 1234567.12 $1,234,567.12
a 5,alt+d 5 $5.00
d 2,5,minus,1,Tab -125 $-125.00
d plus,Tab 125.00 $125.00
d minus,period,0,0,Tab -0.00 0.00
m 5,0,Tab 50 $50.00
t 5,0,Tab 50 $50.00
ROWS
picture currency-left

message_is_open() {
    [ -n "$(active_window)" ] && ! is_active "$main"
}
keys alt+t 2 0 Tab
wait_until "an amount below the lower one is told" message_is_open
picture currency-range
keys Return
wait_until "the client is active again" is_active "$main"
answered=$(wc -l <"$record")
keys 6 0 Tab
wait_until "the refused field has kept the focus" \
    last_line_is 'OnCurrencyCtrValidate("60") = "$60.00"'

keys alt+a 9 Return
wait_for_window "Payment"
keys y
wait_until "Enter posts what the fields show when left" \
    last_line_is 'ShowMsgBox("Post $9.00 with an adjustment of 0.00?") = mbYes'

wait_until "the client is active again" is_active "$main"
keys ctrl+q
client=${started[-1]}
wait_until "the client ends" has_ended "$client"
wait "$client" || fail "the client ended with $?: $(tail -n 20 "$work/$(basename "$1").log")"
finish
