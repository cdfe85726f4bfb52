#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# One visit at the demo's front desk by real keys and clicks: the patient who is due is checked in and
# paid with three clicks, or with six keys, and is still paid when the client was killed.
# Usage: visit.sh DEMO
set -u
source "$(dirname "$0")/desktop.sh"
demo=$1

# Starts the client on a practice of its own. Usage: open_desk FILE [OPTIONS...]; sets $main, $client.
open_desk() {
    practice=$work/$1 calls=$work/$1.calls
    shift
    rm -f "$calls"
    start "$demo" --data "$practice" --calls "$calls" "$@"
    client=$!
    wait_for_window "Front Desk"
    main=$window
    wait_until "the printers are known" grep -q BuildPrintersCollection "$calls"
}
# What the practice's file says. Usage: ask SQL
ask() {
    python3 -c 'import sqlite3, sys
print(*[row[0] for row in sqlite3.connect(sys.argv[1]).execute(sys.argv[2])])' "$practice" "$1"
}
change() {
    python3 -c 'import sqlite3, sys
with sqlite3.connect(sys.argv[1]) as practice: practice.execute(sys.argv[2])' "$practice" "$1"
}
holds() {
    [ "$(ask "$1")" = "$2" ] || fail "$1 gives $(ask "$1") instead of $2"
}
# The visit of today as the file has it: state 3 is paid; the copay of $25.00 came and went.
is_paid() {
    holds "SELECT state FROM visit WHERE patient = 10117 AND day = '2024-03-05'" 3
    holds "SELECT amount FROM payment WHERE patient = 10117 ORDER BY id DESC LIMIT 1" 2500
    holds "SELECT balance FROM patient WHERE number = 10117" 4000
    holds "SELECT count(*) FROM visit WHERE patient = 10117 AND day > '2024-03-05'" 1
}
# The colors of a dark desktop, as it tells its programs.
use_dark_desktop() {
    export XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5
    mkdir -p "$work/.config"
    printf '[Colors:%s]\nBackgroundNormal=%s\nForegroundNormal=%s\n' \
        Selection 106,176,255 16,21,28 Window 43,45,48 232,232,232 Button 59,62,67 232,232,232 \
        View 30,31,34 232,232,232 >"$work/.config/kdeglobals"
    echo BackgroundAlternate=37,39,42 >>"$work/.config/kdeglobals"
}
called() {
    grep -q "$1" "$calls"
}
is_checked_in() {
    [ "$(ask "SELECT state FROM visit WHERE patient = 10117 AND day = '2024-03-05'")" = 2 ]
}
hides_paid_visits() {
    [ "$(ask "SELECT instr(text, CAST('hide paid' AS BLOB)) > 0 FROM setting")" = 1 ]
}
kill_client() {
    kill -KILL "$client"
    wait_until "the client is gone" has_ended "$client"
}
start_desktop

# Six keys, all by name: check-in, check in and post, yes
open_desk keys.db
picture visit-schedule
keys ctrl+3
wait_until "the check-in has the keyboard" called 'HighlightHeading("Insurance")'
picture visit-check-in
keys ctrl+Return
wait_for_window "Payment"
picture visit-post
keys y
wait_until "the payment is posted" called '^ShowMsgBox("Post \$25.00?.* = 6$'
wait_until "the client is active again" is_active "$main"
kill_client
is_paid

# Three clicks: the tool bar, the button below the form, the question. The places are those of the
# tests' font at 96 dots per inch.
open_desk clicks.db
click "$main" 250 44
wait_until "the check-in has the keyboard" called 'HighlightHeading("Insurance")'
click "$main" 110 350
wait_for_window "Payment"
click "$window" 136 93
wait_until "the payment is posted" called '^ShowMsgBox("Post \$25.00?.* = 6$'
wait_until "the client is active again" is_active "$main"
kill_client
is_paid

# Who may not post payments checks in by the same keys, and nothing is posted.
open_desk rights.db
kill_client
change "UPDATE user_right SET digit = '8' WHERE item = 'PAYMENTS'"
posted=$(ask "SELECT count(*) FROM payment")
open_desk rights.db
keys ctrl+3
wait_until "the check-in has the keyboard" called 'HighlightHeading("Insurance")'
picture visit-without-right
keys ctrl+Return
wait_until "the patient is checked in" is_checked_in
keys ctrl+4 2 5 Tab ctrl+Return alt+F4
wait_until "the client ends" has_ended "$client"
called ShowMsgBox && fail "somebody without the right to post is asked whether to"
holds "SELECT count(*) FROM payment" "$posted"

# Who may post payments but not adjust them types an adjustment in vain.
change "UPDATE user_right SET digit = 'C' WHERE item = 'PAYMENTS'"
change "DELETE FROM user_right WHERE item = 'ADJUSTMENTS'"
open_desk rights.db
keys ctrl+4 alt+j minus 5
picture visit-without-adjustment
keys Tab ctrl+Return
wait_for_window "Payment"
keys y
wait_until "the payment is posted" called '^ShowMsgBox("Post \$[0-9.]*?.* = 6$'
wait_until "the client is active again" is_active "$main"
kill_client
holds "SELECT count(*) - $posted FROM payment" 1
holds "SELECT adjustment FROM payment ORDER BY id DESC LIMIT 1" 0

# What was posted is there again on a dark desktop, and a second patient by search, look-up, calendar
# and full keys
use_dark_desktop
open_desk clicks.db
keys d u b o i s comma space f r a n Return
wait_until "the account opens" called 'AddItem("ACCOUNT", 10204)'
keys ctrl+3
wait_until "the check-in has the keyboard" called 'HighlightHeading("Insurance")'
keys Tab Tab ctrl+a O V 3 0 F2
wait_for_window "Procedures"
keys Escape
wait_until "the client is active again" is_active "$main"
keys alt+x F2
wait_for_window " "  # the calendar has no other title
keys Right Return
wait_until "the day is chosen" called '^ShowCalendar.* = "03/20/2024"'
keys ctrl+Return
wait_for_window "Payment"
keys n
wait_until "nothing is posted" called '^ShowMsgBox("Post \$20.00?.* = 7$'
wait_until "the client is active again" is_active "$main"
keys alt+j minus 5 Tab ctrl+Return
wait_for_window "Payment"
keys y
wait_until "the payment is posted" called '^ShowMsgBox("Post \$20.00 with an adj.* = 6$'
wait_until "the client is active again" is_active "$main"
keys alt+F4
wait_until "the client ends" has_ended "$client"
holds "SELECT procedures FROM visit WHERE patient = 10204 AND day = '2024-03-05'" OV30
holds "SELECT amount || ' ' || adjustment FROM payment WHERE patient = 10204" "2000 -500"

# The preferences by keys: a color, and paid visits are hidden. Both are there at the next start.
open_desk clicks.db
keys alt+f p r
wait_for_window "Color Palette"
picture visit-palette
keys Down Return
wait_until "a color is chosen" called '^ShowColor.* = "[0-9]'
wait_until "the client is active again" is_active "$main"
keys alt+f p v
wait_until "the preferences are stored" hides_paid_visits
color=$(sed -n 's/^ShowColor.* = "\([0-9]*\)\\t.*/\1/p' "$calls")
kill_client

# The arrow keys go from visit to visit, here to the last of the second provider. Nobody at the desk:
# a countdown, and the open account is closed.
open_desk clicks.db --idle 2
called 'PopulateSettings(.*hide paid' && called "^InitPrefs(.*, $color)" ||
    fail "the preferences are not there again"
keys Down Right End Return
last=$(ask "SELECT patient FROM visit WHERE day = '2024-03-05' AND provider = 'PATEL'
    ORDER BY time DESC LIMIT 1")
wait_until "the account opens" called "AddItem(\"ACCOUNT\", $last)"
wait_until "the account is closed" called 'ClearAll()'
called '^ShowMsgBox("Nobody has used.* = 99$' || fail "no countdown closed the account"
kill_client

# A file that is none: the client names it, and starts afresh beside it when asked to.
echo "Dear diary" >"$work/diary.db"
start "$demo" --data "$work/diary.db"
client=$!
wait_for_window "Front Desk"
picture visit-damaged
keys y
wait_until "another file is made" test -s "$work/diary-2.db"
[ "$(cat "$work/diary.db")" = "Dear diary" ] || fail "the foreign file was changed"
kill_client
finish
