#!/usr/bin/env bash
# SPDX-License-Identifier: MIT Plays the demo's tour without a display and checks the files it
# leaves. Usage: tour.sh DEMO FOLDER
set -euo pipefail
demo=$1
folder=$2
rm -rf "$folder"
screen=$(dirname "$0")/../demo/tour/screen.json
QT_QPA_PLATFORM=offscreen:configfile=$screen timeout 120 "$demo" --tour "$folder"
pictures=$(find "$folder" -name '*.png' -size +1k | wc -l)
echo "$pictures pictures, $(wc -l <"$folder/results.txt") results"
[ "$pictures" -ge 20 ]
grep -q 'ShowMsgBox(.*= 99' "$folder/results.txt"
