#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Prints the tables of RESULTS.md. Usage: tables.sh FOLDER-OF-PROGRAMS
source "$(dirname "$0")/../tests/desktop/desktop.sh"
bin=$(realpath "$1")

# The median of a column of the standard input. Usage: median COLUMN
median() {
    awk -v column="$1" '{ print $column }' | sort -n | awk '{ value[NR] = $1 }
        END { print value[int((NR + 1) / 2)] }'
}

# A host's start: of 21 starts in turns
export XDG_RUNTIME_DIR=$work
host_start() {
    local i way
    for ((i = 0; i < 21; i++)); do
        for way in start-bare start; do
            QT_QPA_PLATFORM=offscreen "$bin/halvek-bench-$way" >>"$work/$way" 2>/dev/null
        done
    done
    echo "| a host's start | without the library | with it | more | at most | met |"
    echo "|---|---|---|---|---|---|"
    local column=0 what unit limit
    while IFS='|' read -r what unit limit; do
        column=$((column + 1))
        awk -v what="$what" -v unit="$unit" -v limit="$limit" \
            -v without="$(median "$column" <"$work/start-bare")" \
            -v with="$(median "$column" <"$work/start")" 'BEGIN {
                more = with - without
                printf "| %s | %s%s | %s%s | %.4g%s | %s%s | %s |\n", what, without, unit, with, unit,
                    more, unit, limit, unit, more <= limit ? "yes" : "NO"
            }'
    done <<'COLUMNS'
processor time| ms|1.5
memory| MB|1.5
shared objects||3
COLUMNS
}

# Processor time of a client's main thread so far, in nanoseconds. Usage: cpu_of PID
cpu_of() {
    cut -d' ' -f1 "/proc/$1/schedstat"
}
called() {
    grep -q "$1" "$calls"
}
# The visit that is due, by six real keys: from the first key to the confirmed payment
visit() {
    local before
    calls=$work/calls
    rm -f "$work"/practice.db* "$calls"
    start "$bin/halvekutils-demo" --data "$work/practice.db" --calls "$calls"
    client=$!
    wait_for_window "Front Desk"
    wait_until "the printers are known" called BuildPrintersCollection
    before=$(cpu_of "$client")
    keys ctrl+3
    wait_until "the check-in has the keyboard" called 'HighlightHeading("Insurance")'
    keys ctrl+Return
    wait_for_window "Payment"
    keys y
    wait_until "the payment is posted" called '^ShowMsgBox("Post \$25.00?.* = 6$'
    echo "$(($(cpu_of "$client") - before))" >>"$work/visits"
    kill "$client"
    wait_until "the client is gone" has_ended "$client"
}

"$bin/halvek-bench" || [ $? -eq 1 ] || exit 1  # 1: a goal is missed
echo
host_start
echo
start_desktop
"$bin/halvek-bench" --desktop || [ $? -eq 1 ] || exit 1
echo
for _ in 1 2 3 4 5; do visit; done
awk -v time="$(median 1 <"$work/visits")" 'BEGIN {
    printf "A check-in in the demo by six keys, from the first key to the confirmed payment: %.1f ms of\n", time / 1e6
    print "processor time (median of 5)."
}'
