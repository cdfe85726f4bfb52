# SPDX-License-Identifier: MIT
# Turns a header into what doxygen reads; line numbers stay the same.
# - Indented lines below an empty one are a sample, also after the parameters of a function.
# - Two neighbouring overloads, usually the setter and the getter of a property, share the comment
#   of the first.
# - Defaulted members have no entries.

# A line is printed once the next one is known, since it may end a sample.
function put(line) {
    if (NR > 1) print held
    held = line
}

function nameOf(line) {
    sub(/\(.*/, "", line)
    sub(/.*[ *&]/, "", line)
    return line
}

/^ *\/\/\/     / && (inSample || held ~ /\/\/\/$/) {
    if (!inSample) held = held " @sample"
    inSample = 1
    put($0)
    next
}
inSample {
    held = held " @endcode"
    inSample = 0
}
/^ *\/\/\/ / {
    put($0)
    sub(/^ *\/\/\/ /, "")
    comment = comment " " $0
    next
}
/^ .*= default;/ {
    put("")
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
    put(before $0)
    next
}
{
    comment = ""
    if (!/^    [ }]/) shared = ""
    put($0)
}
END { print held }
