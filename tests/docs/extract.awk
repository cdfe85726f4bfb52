# SPDX-License-Identifier: MIT
# Turns the samples of the pages into tests of a Host; those of testing.md are tests already.
FNR == 1 {
    page = FILENAME
    gsub(/.*\/|\.md$|-/, "", page)
    wrapped = page != "testing"
}
/^```/ {
    if (inside && wrapped) body = body "}\n"
    inside = 0
}
/^```cpp$/ {
    inside = 1
    if (wrapped) body = body "TEST_F(Host, " page "_" ++count ") {\n"
    $0 = sprintf("#line %d \"%s\"", FNR + 1, FILENAME)
}
inside && /^#include/ {
    print
    $0 = ""
}
inside { body = body $0 "\n" }
END {
    print "#include \"tests/docs/Host.h\"\n" body
    exit count == 0
}
