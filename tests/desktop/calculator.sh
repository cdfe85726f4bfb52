#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Works out amounts in the demo client by real keys and clicks under a window manager.
# Usage: calculator.sh DEMO
set -u
source "$(dirname "$0")/desktop.sh"

# Opens the calculator with the key Enter in the field of amounts; it starts with 25. Sets $window.
open_calculator() {
    wait_until "the client is active again" is_active "$main"
    keys alt+a ctrl+a 2 5
    answered=$(wc -l <"$record")
    keys Return
    wait_for_window Calculator
}

# Checks what the calculator returned. Usage: expect_amount AMOUNT WAY
expect_amount() {
    wait_until "the calculator ends by $2" has_answer
    grep -qx "Calculate(\"25\") = \"$1\"" <(tail -n 1 "$record") || fail "$2 did not give $1"
}

start_desktop
start_client "$1"
choose_page alt+s u

# KEYS AMOUNT; RET has the focus, and Tab leads to the box.
while read -r typed amount; do
    open_calculator
    keys ${typed//,/ }
    expect_amount "$amount" "$typed"
done <<'ROWS'
Return 25
1,2,period,5,plus,3,Return,Return 15.5
KP_1,KP_2,KP_Decimal,KP_5,KP_Add,KP_3,KP_Enter,KP_Enter 15.5
4,asterisk,1,KP_0,minus,KP_9,equal,KP_Enter 31
9,Delete,8,slash,KP_Divide,2,space,space 4
Tab,7,comma,BackSpace,6,KP_Multiply,2,equal,Return 12
slash,0,Return,ctrl+c,Return ERROR
ctrl+c,Delete,ctrl+v,plus,ctrl+v,Return,Return 50
1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,Return 111111111111111
ROWS

# Twenty keys faster than one flash ends
open_calculator
xdotool type --delay 0 "1+2+3+4+5+6+7+8+9+1="
keys Return
expect_amount 46 "twenty keys at once"

finish
