#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Counts the instructions that the rows without windows need, each at a tenth of its size, and compares
# them with the record: unlike times, they are the same in each run. The record names what they depend
# on; where something else is installed, the comparison is skipped (exit code 77).
# Usage: instructions.sh check PROGRAM RECORD
#        instructions.sh record PROGRAM RECORD   writes the record anew
set -euo pipefail
task=$1 program=$2 record=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Counts into one file for each row, and all rows into "counted".
count() {
    env -i PATH="$PATH" HOME="$work" LC_ALL=C valgrind --tool=callgrind --instr-atstart=no \
        --callgrind-out-file="$work/row" "$program" >"$work/out" 2>"$work/log" ||
        { cat "$work/log"; exit 1; }
    {
        echo "# $(head -n 1 "$work/out"), $(valgrind --version)"
        for ((i = 1; ; i++)); do
            [ -f "$work/row.$i" ] || break
            awk '/^desc: Trigger: Client Request: / { sub(/.*Request: /, ""); name = $0 }
                /^totals: / { total = $2 } END { print total "\t" name }' "$work/row.$i"
        done
    } >"$work/counted"
    [ "$(wc -l <"$work/counted")" -gt 1 ] || { echo "nothing is counted"; cat "$work/log"; exit 1; }
}

count
if [ "$task" = record ]; then
    [ ! -f "$record" ] || diff "$record" "$work/counted" || true
    cp "$work/counted" "$record"
    exit
fi
if [ "$(head -n 1 "$work/counted")" != "$(head -n 1 "$record")" ]; then
    echo "skipped: recorded with another compiler or library"
    head -qn 1 "$record" "$work/counted"
    exit 77
fi
compare() {
    awk -F'\t' '
        /^#/ { next }
        NR == FNR { recorded[$2] = $1; next }
        !($2 in recorded) { print $2 ": not recorded"; wrong = 1; next }
        {
            change = ($1 / recorded[$2] - 1) * 100
            if (change > 5 || change < -5) printf "%s: %d instead of %d, %+.1f %%\n", $2, $1, recorded[$2], change
            if (change > 5) wrong = 1
            delete recorded[$2]
        }
        END {
            for (name in recorded) { print name ": recorded, but no longer counted"; wrong = 1 }
            if (wrong) print "If this is meant, run scripts/update-instructions."
            exit wrong
        }' "$record" "$work/counted"
}

# A line of the log that is the first in its second writes the time anew and needs more.
for ((tries = 2; tries > 0; tries--)); do
    compare >"$work/compared" && break
    count
done
compare
