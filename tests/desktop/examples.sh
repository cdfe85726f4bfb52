#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Uses two of the examples by real keys under a window manager: checks a patient in, and posts a
# payment of a kind that the server named in its own bytes.
# Usage: examples.sh CHECK-IN PAYMENT
set -u
source "$(dirname "$0")/desktop.sh"

# Presses keys and waits until a window that is not the client's main one nor the last is active.
# Usage: ask KEYS WHAT
ask() {
    local before
    before=$(active_window)
    keys $1
    wait_until "$1 opens $2" eval \
        "[ -n \"\$(active_window)\" ] && ! is_active $before && ! is_active $main"
    picture "$2"
}

start_desktop
cd "$work"
printf 'Caf\xE9\x92s\xE6CAF\xE60\xE60\xE6\xE6|' >codes.txt
printf 'Allergies\xE6\x93Penicillin\x94\xE7\xE6lost\xE7Recall\xE6May' >reminder.txt

start "$1"
client=${started[-1]}
wait_for_window Check-in
main=$window
picture check-in
ask alt+d calendar
keys Return
wait_until "a day is chosen" is_active "$main"
ask alt+c check-in-question
keys y
wait "$client" || fail "the check-in form ends with $?"

start "$2"
wait_for_window Payment
main=$window
mkdir posted.txt  # where no file can be written
keys alt+a 2 5
ask alt+p payment-question
ask y not-posted
keys Return
wait_until "the payment is still there" is_active "$main"
rmdir posted.txt
ask alt+p payment-question
keys y
wait_until "the payment is posted" test -s posted.txt
cmp posted.txt <(printf 'Caf\xE9\x92s|03/07/2024|2500\n') || fail "another payment is posted"
finish
