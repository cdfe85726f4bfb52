#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Plays one visit in the demo without a display and checks the files it leaves: the payment on top of
# the list, the calls behind it, a picture of each step.
# Usage: visit_offscreen.sh DEMO FOLDER
set -euo pipefail
demo=$1
folder=$2
rm -rf "$folder"
screen=$(dirname "$0")/../demo/visit/screen.json
QT_QPA_PLATFORM=offscreen:configfile=$screen timeout 120 "$demo" --visit "$folder"
pictures=$(find "$folder" -name '*.png' -size +1k | wc -l)
[ "$pictures" -eq 13 ] || { echo "$pictures pictures"; exit 1; }
grep -q '^03/05/2024 8:2.* AM posted \$25.00, Card, receipt: Front office laser$' "$folder/posted.txt"
grep -q '^ShowMsgBox("Post \$25.00?.* = 6$' "$folder/calls.txt"
grep -q '^ShowCalendarAndCalculateCoordinates("03/19/2024", .* = "03/20/2024"$' "$folder/calls.txt"
