#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Gives halvekutils-check the texts of a table and compares its remarks, tables and exit statuses.
# Usage: check.sh PROGRAM
set -euo pipefail
program=$1
here=$(dirname "$(readlink -f "$0")")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
failures=0

# compare WHAT: the file `expected` with the file `got`
compare() {
    diff -u expected got >difference && return
    echo "$1"
    tail -n +3 difference
    failures=$((failures + 1))
}

# Runs the program with the standard input and puts its output and exit status in `got`.
check() {
    local status=0
    "$program" "$@" >got 2>&1 || status=$?
    echo "exit $status" >>got
}

# A text of the table: "> FORMAT TEXT", then the remarks without the file's name
rows=0
compare_row() {
    [ -n "$row" ] || return 0
    local status=1
    [ -s remarks ] || status=0
    { sed 's/^/-:/' remarks; echo "exit $status"; } >expected
    local format=${row%% *}
    local text=${row#"$format"}
    printf '%b' "${text# }" | check --utf8 --quiet "$format"
    compare "$row"
    rows=$((rows + 1))
}
row=
while IFS= read -r line; do
    case $line in
    '#'* | '') ;;
    '> '*)
        compare_row
        row=${line#> }
        : >remarks
        ;;
    *) echo "$line" >>remarks ;;
    esac
done <"$here/remarks.txt"
compare_row
[ "$rows" -gt 30 ]

# The table, from the bytes of Windows-1252; a long cell is cut, a control character made visible
printf 'Providers of the North and of the South Clinic\xe6PRV\xe61\xe60\xe6\x1b[2J\xe6Name\xe6Code\n' >codes.txt
check codes codes.txt
cat >expected <<'END'
CodeKey  CodeDescription                           CodeHasLookup  IncludedInMenu  ReportName  SortByList  IsEntitySpecific  IsSystemCode
PRV      Providers of the North and of the South…  true           false           ␛[2J        NameæCode   false             false
exit 0
END
compare "the table of codes.txt"

# Every format has its own table
for row in 'rights PATIENTSF|ItemKey   AllowRead  AllowAdd  AllowModify  AllowDelete|PATIENTS  true       true      true         true' \
    'rights ***|ItemKey  AllowRead  AllowAdd  AllowModify  AllowDelete|***      true       true      true         true' \
    'printers 7:0:Labels:FILE|PrinterID  PrinterType  PrinterDescription  PrinterPort|7          FILE         Labels              FILE' \
    'reminder Notesçæ-Call£1|Tab    Line|Notes' \
    'reminder çNotesæ-Call|Tab    Line|Notes  -Call' \
    'selection H:A\tAlpha\t1:|Code  Description  Deleted|A     Alpha        true' \
    'date 60000,43200|Date|04/10/2005 12:00:00 PM'; do
    IFS='|' read -r call title line <<<"$row"
    printf '%s\n' "$title" "$line" >expected
    printf '%b' "${call#* }" | check --utf8 "${call%% *}"
    head -n 2 got >table
    mv table got
    compare "$call"
done

# Several files as JSON; one that cannot be read leaves the others readable
printf 'REPORTS8\xe6PORTALX' >rights.txt
status=0
"$program" --json rights rights.txt missing.txt - </dev/null >got.json 2>errors || status=$?
[ "$status" -eq 2 ]
grep -q 'missing.txt: No such file' errors
python3 - >got <<'END'
import json
for file in json.load(open("got.json")):
    print(file["file"], [list(row.values()) for row in file["understood"]],
          [list(remark.values()) for remark in file["remarks"]])
END
cat >expected <<'END'
rights.txt [['REPORTS', True, False, False, False], ['PORTAL', False, False, False, False]] [[2, 1, 16, 'defaulted', '"X" is not a hexadecimal digit: no rights']]
- [] []
END
compare "JSON"

# What cannot be read, asked for or written
for call in 'codes .' '--utf8 rights rights.txt' 'colours rights.txt' '--json --quiet codes codes.txt' ''; do
    read -ra words <<<"$call"
    status=0
    "$program" "${words[@]}" >/dev/null 2>errors || status=$?
    [ "$status" -eq 2 ] && [ -s errors ] || { echo "exit $status for: $call"; exit 1; }
done
status=0
"$program" codes codes.txt >/dev/full 2>/dev/null || status=$?
[ "$status" -eq 2 ]

[ "$failures" -eq 0 ]
