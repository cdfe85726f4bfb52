#!/usr/bin/env bash
# SPDX-License-Identifier: MIT Checks how packaged programs and libraries are hardened: no address is
# fixed, nothing is writable once it is linked or executable when it can be written, the compiler's
# checks are in, nobody chooses where libraries come from. Usage: hardening.sh FILE...
set -uo pipefail
failures=0

# Usage: expect FILE WHAT COMMAND...
expect() {
    local file=$1 what=$2
    shift 2
    "$@" >/dev/null || { echo "$file: $what"; failures=$((failures + 1)); }
}
refuse() {
    local file=$1 what=$2
    shift 2
    if "$@"; then echo "$file: $what"; failures=$((failures + 1)); fi
}

# Whether every exported function begins with the instruction that a jump may land on.
landing_marks() {
    objdump -d -j .text --no-show-raw-insn "$1" |
        awk '/^[0-9a-f]+ <[^-]*>:$/ { getline; functions++; marked += /endbr64/ }
            END { print functions, marked; exit !(functions && functions == marked) }'
}

for file; do
    headers=$(readelf -hlW "$file") dynamic=$(readelf -dW "$file") symbols=$(nm -D "$file")
    expect "$file" "has fixed addresses" grep 'Type: *DYN' <<<"$headers"
    expect "$file" "stays writable after linking (RELRO)" grep GNU_RELRO <<<"$headers"
    expect "$file" "resolves functions lazily" grep -E 'FLAGS.*NOW' <<<"$dynamic"
    expect "$file" "says nothing of its stack" grep 'GNU_STACK.* RW ' <<<"$headers"
    refuse "$file" "has memory both writable and executable" grep ' RWE ' <<<"$headers"
    refuse "$file" "looks for libraries elsewhere" grep -E 'R(UN)?PATH' <<<"$dynamic"
    expect "$file" "has no stack protector" grep ' U __stack_chk_fail' <<<"$symbols"
    if [[ $file == *.so* ]]; then
        expect "$file" "can be unloaded" grep NODELETE <<<"$dynamic"
        refuse "$file" "exports more than its namespace" \
            grep -vE ' [Uw] | (A|[TWVBDRu] _Z(T[VSIThv][a-z0-9_]*)?N?K?6halvek)' <<<"$symbols"
        # The processor's own note is missing, since Debian's start-up objects lack theirs.
        expect "$file" "has functions that a stray jump may enter" landing_marks "$file"
    fi
done
exit $((failures > 0))
