# SPDX-License-Identifier: MIT
# Turns a header into what doxygen reads; line numbers stay the same, except in Utils.h.
# - Two neighbouring overloads, usually the setter and the getter of a property, share the comment
#   of the first, without its samples.
# - Defaulted and deleted members have no entries, and neither has std::enable_shared_from_this.
# - The members of Utils stand in the sections of tasks.txt, whose path is the variable `tasks`.

function nameOf(line) {
    sub(/\(.*/, "", line)
    sub(/.*[ *&]/, "", line)
    return line
}

# Fills sectionOf with the section of each member, titles with the sections in their order, and
# membersOf with the members of each.
function readTasks(    line, title, names, count, i) {
    while ((getline line < tasks) > 0) {
        if (line ~ /^#/) continue
        title = line
        sub(/:.*/, "", title)
        sub(/^[^:]*: /, "", line)
        count = split(line, names, " ")
        if (title != titles[titleCount]) titles[++titleCount] = title
        for (i = 1; i <= count; ++i) {
            sectionOf[names[i]] = title
            membersOf[title] = membersOf[title] " " names[i]
        }
    }
}

# Notes for each line of a class which member's comment or declaration it belongs to.
function readMembers(file,    line, number, start, name, inBody) {
    while ((getline line < file) > 0 && line !~ /^  private:/) {
        ++number
        if (line ~ /^    (\/\/\/|[A-Za-z])/ && !start) start = number
        if (line ~ /^    [A-Za-z].*\(/ && !name) name = nameOf(line)
        if (name && line ~ /{$/) inBody = 1
        if (name && (inBody ? line ~ /^    }/ : line !~ /^ *\/\/\// && line ~ /[;}]$/)) {
            for (; start <= number; ++start) memberAt[start] = name
            start = name = ""
            inBody = 0
        }
        if (line ~ /^$|^    \/\/ /) start = ""
    }
}

BEGIN {
    if (ARGV[1] ~ /core\/Utils\.h$/) {
        readTasks()
        readMembers(ARGV[1])
    }
}

# The members wait until all are known.
function write(line) {
    if (!(FNR in memberAt) || !(memberAt[FNR] in sectionOf)) {
        print line
        return
    }
    waiting[memberAt[FNR]] = waiting[memberAt[FNR]] line "\n"
}

/^  private:/ {
    for (i = 1; i <= titleCount; ++i) {
        print "/** @name " titles[i] " */ /** @{ */"
        count = split(membersOf[titles[i]], names, " ")
        for (j = 1; j <= count; ++j) printf "%s", waiting[names[j]]
        print "/** @} */"
    }
}
/^ *\/\/\/ @code/, /^ *\/\/\/ @endcode/ {
    write($0)
    next
}
/^ *\/\/\/ / {
    write($0)
    sub(/^ *\/\/\/ /, "")
    comment = comment " " $0
    next
}
/^ .*= (default|delete);/ {
    write("")
    next
}
{ sub(/ *: public std::enable_shared_from_this<[A-Za-z]+>/, "") }
/^(    )?[A-Za-z].*\(/ {
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
    write(before $0)
    next
}
{
    comment = ""
    if (!/^    [ }]/) shared = ""
    write($0)
}
