#!/usr/bin/env bash
# SPDX-License-Identifier: MIT Checks that every room of the library includes only what it may, that
# the library without windows links nothing beyond the C and C++ run-time, and that every source
# names its licence. Usage: rooms.sh SOURCE-FOLDER LIBRARY LIST-OF-PUBLIC-HEADERS
set -euo pipefail
cd "$1"
library=$2
public=$3
failures=0

fail() {
    echo "$1"
    failures=$((failures + 1))
}

# Own headers: the same room or a lower floor
wrong=$(grep -rE '#include <halvekutils/' halvekutils --include='*.h' --include='*.cpp' |
    awk -F'[/:<>]' '
        BEGIN {
            floor["base"] = 1; floor["platform"] = 2
            floor["text"] = floor["refdata"] = floor["system"] = 3
            floor["help"] = floor["printers"] = floor["controls"] = 3
            floor["dialogs"] = floor["selection"] = floor["currency"] = floor["prefs"] = 4
            floor["core"] = 5; floor["qt"] = floor["scripted"] = 6
        }
        {
            match($0, /<halvekutils\/[a-z]+/)
            to = substr($0, RSTART + 13, RLENGTH - 13)
        }
        !($2 in floor) || !(to in floor) || ($2 != to && floor[to] >= floor[$2])')
[ -z "$wrong" ] || fail "$wrong"

# Also inside core/, where includes run one way
circle=$(grep -oE '#include <halvekutils/core/[A-Za-z]+' halvekutils/core/*.h halvekutils/core/*.cpp |
    sed -E 's,^halvekutils/core/([A-Za-z]+)\..*/,\1 ,' | tsort 2>&1 >/dev/null || true)
[ -z "$circle" ] || fail "core/ has circular includes: $circle"

# Foreign headers: names without a dot belong to the standard library or Qt; names with .h belong to
# the system and the printers, and in one place each to the processor and to X11
foreign() {
    grep -rnE "#include <$1" halvekutils --include='*.h' --include='*.cpp' |
        grep -v '<halvekutils/' | grep -v '^halvekutils/base/CharacterBlock.h:.*<emmintrin.h>' |
        grep -v '^halvekutils/qt/helpers/XDesktop.cpp:.*<xcb/xcb.h>' |
        grep -vE "^halvekutils/($2)/" || true
}
for found in "$(foreign 'Q[A-Za-z]' 'qt')" "$(foreign '[a-z0-9_/]+\.h>' 'system|printers')"; do
    [ -z "$found" ] || fail "$found"
done
cups=$(grep -rn '#include <cups/' halvekutils | grep -v '^halvekutils/printers/' || true)
[ -z "$cups" ] || fail "$cups"

# Public headers: no other header exports anything, and they, demo and examples include only public ones
exporting=$(grep -rl HALVEK_EXPORT halvekutils --include='*.h' | sed 's,^halvekutils/,,' |
    grep -vxFf "$public" || true)
[ -z "$exporting" ] || fail "HALVEK_EXPORT in headers that are not public: $exporting"
private=$(sed 's,^,halvekutils/,' "$public" | cat - <(find demo examples -name '*.h' -o -name '*.cpp') |
    xargs grep -HoE '#include <halvekutils/[^>]+' |
    awk -F'<halvekutils/' -v public="$public" '
        BEGIN { while ((getline header < public) > 0) listed[header] }
        !($2 in listed)')
[ -z "$private" ] || fail "includes of headers that are not public: $private"

# The tools include public headers, and besides only what is internal to the libraries and them
hidden=$(grep -hoE '#include <halvekutils/[^>]+' tools/*.h tools/*.cpp | sed 's,.*<,,' | sort -u |
    grep -vxFf <(sed 's,^,halvekutils/,' "$public") | xargs grep -L HALVEK_INTERNAL || true)
[ -z "$hidden" ] || fail "headers that are not for the tools: $hidden"

needed=$(readelf -d "$library" | sed -nE 's/.*\(NEEDED\).*\[(.*)\]/\1/p' |
    grep -vE '^(libc|libm|libstdc\+\+|libgcc_s|ld-linux.*|libasan|libubsan)\.so' || true)
[ -z "$needed" ] || fail "the library without windows links $needed"

# Every source and every script names its licence
unmarked=$(find . \( -name build -o -name .git -o -name .cache -o -name install \) -prune -o \
    -type f \( -name '*.cpp' -o -name '*.h' -o -name '*.sh' -o -name '*.cmake' -o -name '*.in' \
    -o -name CMakeLists.txt -o -name Makefile -o -name '*.map' -o -name '*.awk' -o -name '*.svg' -o -name '*.desktop' \
    -o -name '*.1' -o -path './scripts/*' -o -perm -u+x \) -print0 |
    xargs -0 grep -L 'SPDX-License-Identifier: MIT' || true)
[ -z "$unmarked" ] || fail "without a licence: $unmarked"

[ "$failures" -eq 0 ]
