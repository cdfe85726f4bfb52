#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# What a host's compiler says about mistakes that newcomers make: one clear message for each. And it
# takes what a host may do: Xlib before the library's headers, loops over a collection.
# Usage: mistakes.sh SOURCE-FOLDER LIST-OF-PUBLIC-HEADERS
set -uo pipefail
cd "$1"
public=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

fail() {
    echo "FAILED: $1"
    cat "$work/said"
    failures=$((failures + 1))
}

# Compiles the standard input. Usage: compile COMPILER [OPTION...]; what it says goes to $work/said.
compile() {
    "$1" -fsyntax-only -I. -Wall -Wextra "${@:2}" -x c++ - >"$work/said" 2>&1
}

# A mistake in a function that is given utils. Usage: refuses MESSAGE MOST-ERRORS CODE [OPTION...]
refuses() {
    local message=$1 most=$2 code=$3 compiler errors
    shift 3
    for compiler in g++ clang++; do
        printf '#include <halvekutils/core/Utils.h>\nvoid Host(halvek::Utils& utils) { %s }\n' "$code" |
            compile "$compiler" -std=c++20 "$@" && fail "$compiler takes: $code $*"
        errors=$(grep -c 'error: ' "$work/said")
        [ "$errors" -le "$most" ] || fail "$compiler says $errors errors: $code $*"
        grep -qF "$message" "$work/said" ||
            fail "$compiler does not say \"$message\": $code $*"
    done
}

refuses 'HalvekUtils needs C++20: compile with -std=c++20' 2 'utils.ClearDebug();' -std=c++17
refuses 'HalvekUtils reports faults as exceptions: compile without -fno-exceptions' 2 \
    'utils.ClearDebug();' -fno-exceptions
refuses 'write u"..." for a text' 1 'utils.LogError("out of paper");'
refuses 'write u"..." or FromServer(bytes)' 1 'utils.LogError(std::string("out of paper"));'
refuses 'loop over the shared pointer' 2 \
    'for (const auto& printer : *utils.GetPrintersCollectionFiltered()) printer->PrinterID();'

# Whichever of the headers comes first, it says so before anything else. (Two set names aside.)
while read -r header; do
    case $header in qt/* | base/Xlib*) continue ;; esac
    echo "#include <halvekutils/$header>" | compile g++ -std=c++17 && fail "$header takes C++17"
    grep -m 1 'error: ' "$work/said" | grep -q 'HalvekUtils needs C++20' || fail "$header under C++17"
done <"$public"

# What is right, with the macros of Xlib in the way, which stay what they were
{
    echo '#include <X11/Xlib.h>'
    echo '#include <X11/Xutil.h>'
    grep -v '^qt/' "$public" | sed 's,.*,#include <halvekutils/&>,'
    cat <<'CODE'
static_assert(None == 0L && KeyPress == 2);
static_assert(HALVEKUTILS_VERSION >= HALVEKUTILS_VERSION_OF(0, 1, 0));
std::size_t Loop(halvek::Utils& utils) {
    std::size_t length = 0;
    for (const auto& code : utils.GetCodesCollection()) length += code->CodeKey().size();
    for (const auto& item : utils.GetSecurityItemsCollection()) length += item->ItemKey().size();
    for (const auto& printer : utils.GetPrintersCollectionFiltered()) {
        length += printer->PrinterID().size();
    }
    utils.LogError(nullptr);
    return length;
}
CODE
} >"$work/right.cpp"
for compiler in g++ clang++; do
    for standard in c++20 c++2b; do
        compile "$compiler" -std=$standard -Werror <"$work/right.cpp" ||
            fail "$compiler -std=$standard refuses what is right"
    done
done
[ "$failures" -eq 0 ]
