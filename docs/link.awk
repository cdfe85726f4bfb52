# SPDX-License-Identifier: MIT
# Links what the pages set in code, such as `ShowMsgBox`, and the calls in their samples to the
# reference.
# Usage: awk -f link.awk XML-INDEX HTML-PAGE...; each page is rewritten.
#
# A name without its class means the member of the class that the section has named last, else of
# Utils, else of the only class that has such a member.

function attribute(name,    value) {
    value = $0
    if (!sub(".*" name "=\"", "", value)) return ""
    sub(/".*/, "", value)
    return value
}
function content(    value) {
    value = $0
    sub(/.*<name>/, "", value)
    sub(/<\/name>.*/, "", value)
    return value
}

# The index
FNR == NR {
    if (/<compound /) {
        kind = attribute("kind")
        compound = ""
        if (kind !~ /^(class|struct|concept|namespace)$/) next  # a file's macros have no class
        compound = content()
        if (compound !~ /^halvek/) next
        sub(/^halvek(::)?/, "", compound)
        if (compound != "") url[compound] = attribute("refid") ".html"
        next
    }
    if (/<member / && compound !~ /^std/ && kind ~ /^(class|struct|namespace|file)$/) {
        target = attribute("refid")
        at = match(target, /_1[^_]*$/)
        target = substr(target, 1, at - 1) ".html#" substr(target, at + 2)
        member = content()
        full = compound == "" ? member : compound "::" member
        if (full in url) next
        url[full] = target
        if (compound == "") next
        if (!(member in ownerOf)) ownerOf[member] = compound
        else if (ownerOf[member] != compound) ownerOf[member] = "-"
    }
    next
}

function urlOf(name) {
    sub(/^halvek::/, "", name)
    if (name in url) {
        if (url[name] !~ /#/) lastClass = name
        else if (name ~ /::/) lastClass = substr(name, 1, match(name, /::[^:]*$/) - 1)
        return url[name]
    }
    if (lastClass "::" name in url) return url[lastClass "::" name]
    if ("Utils::" name in url) return url["Utils::" name]
    if (name in ownerOf && ownerOf[name] != "-") return url[ownerOf[name] "::" name]
    return ""
}

function linked(code, class, target) {
    return target == "" ? code : "<a class=\"" class "\" href=\"" target "\">" code "</a>"
}

function close_page() {
    if (page == "") return
    close(page)
    printf "%s", text > page
    close(page)
}

FNR == 1 {
    close_page()
    page = FILENAME
    text = ""
}
/<h[1-3]/ { lastClass = "" }
{
    line = $0
    out = ""
    while (match(line, /<code>[A-Za-z0-9_:]+(\([^<]*\))?<\/code>/)) {
        start = RSTART
        end = RSTART + RLENGTH
        code = substr(line, start + 6, RLENGTH - 13)
        name = code
        sub(/\(.*/, "", name)
        target = urlOf(name)
        out = out substr(line, 1, start - 1) "<code>" linked(code, "el", target) "</code>"
        line = substr(line, end)
    }
    # utils->ShowMsgBox(...) in a sample
    while (/class="line"/ && match(line, /utils-&gt;[A-Za-z]+\(/)) {
        name = substr(line, RSTART + 10, RLENGTH - 11)
        out = out substr(line, 1, RSTART + 9)
        out = out linked(name, "code", url["Utils::" name]) "("
        line = substr(line, RSTART + RLENGTH)
    }
    text = text out line "\n"
}
END { close_page() }
