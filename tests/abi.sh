#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that a library exports nothing but namespace halvek, and that a host built against the
# baseline in abi/ still runs with it. Both were made by the release build, which keeps its debug
# information.
# Usage: abi.sh SOURCE-FOLDER LIBRARY WORK-FOLDER LIST-OF-HEADERS
set -euo pipefail
source=$1
library=$2
name=$(basename "$library" .so)
mkdir -p "$3"
old=$3/$name.baseline.abi
new=$3/$name.abi

foreign=$(nm -DC --defined-only "$library" | cut -d' ' -f3- |
    grep -vE '^((typeinfo( name)?|vtable|VTT) for |(non-)?virtual thunk to |void )?halvek::' || true)
if [ -n "$foreign" ]; then
    echo "$name exports what is not its own:"
    echo "$foreign"
    exit 1
fi

gunzip -c "$source/abi/$name.abi.gz" >"$old"
"$source/scripts/dump-abi" "$library" "$4" >"$new"
# Without debug information there is nothing to compare.
grep -q '<function-decl .* elf-symbol-id=' "$new"
if ! abidiff --no-added-syms "$old" "$new"; then
    echo "Hosts built with an earlier $name may break."
    echo "If that is meant, say so in CHANGELOG.md and run scripts/update-abi-baseline."
    exit 1
fi
