# SPDX-License-Identifier: MIT
# Turns a header into what doxygen reads; line numbers stay the same.
# - Two neighbouring overloads, usually the setter and the getter of a property, share the comment
#   of the first, without its samples.
# - Defaulted members have no entries.

function nameOf(line) {
    sub(/\(.*/, "", line)
    sub(/.*[ *&]/, "", line)
    return line
}

/^ *\/\/\/ @code/, /^ *\/\/\/ @endcode/ {
    print
    next
}
/^ *\/\/\/ / {
    print
    sub(/^ *\/\/\/ /, "")
    comment = comment " " $0
    next
}
/^ .*= default;/ {
    print ""
    next
}
/^(    )?[A-Za-z].*\(/ && !/= delete;/ {
    before = ""
    if (comment != "") {
        shared = comment
        owner = nameOf($0)
    } else if (nameOf($0) != owner) {
        shared = ""
    } else if (shared != "") {
        before = "/**" shared " */ "
    }
    comment = ""
    print before $0
    next
}
{
    comment = ""
    if (!/^    [ }]/) shared = ""
    print
}
