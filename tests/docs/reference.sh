#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Writes the reference, fails on any warning of doxygen, and checks what doxygen does not.
# Usage: reference.sh SOURCE-FOLDER BUILD-FOLDER
set -euo pipefail
rooms=$1/halvekutils
pages=$1/docs/pages
xml=$2/docs/xml
complain() { echo "$*" >&2; exit 1; }

rm -rf "$2/docs/html" "$xml"
cmake --build "$2" --target docs

# Members of Utils, from the lines that declare them
members=$(sed -nE '/^  private:/q; s/^    [A-Za-z:][^(=]* ([A-Za-z_]+)\(.*/\1/p' "$rooms/core/Utils.h")
[ "$(wc -w <<<"$members")" -gt 100 ]
for member in $members; do
    grep -q "<name>$member</name>" "$xml/classhalvek_1_1Utils.xml" || complain "no entry: $member"
done

# Every member of Utils stands below a task, once
diff <(sort -u <<<"$members") <(sed '/^#/d; s/^[^:]*: //' "$1/docs/tasks.txt" | tr ' ' '\n' | sort) >&2 ||
    complain "docs/tasks.txt lacks (<) or repeats (>) members"

# Every page links what it names
for page in "$2"/docs/html/{index,md_*}.html; do
    grep -q '<code><a class="el" href="[a-z]*halvek' "$page" || complain "no link to the reference: $page"
done

# Values of public enumerations
awk '/<memberdef/ { public = /prot="public"/ } /<name>/ { name = $0 } /<para>/ { told = 1 }
     /<enumvalue/ { told = 0 } /<\/enumvalue>/ && public && !told { print name; found = 1 }
     END { exit found }' "$xml"/*.xml >&2 || complain "values without a description"

# The page of the log explains every beginning of a log line
while IFS= read -r line; do
    grep -qF -- "$line" "$pages/error-log.md" || complain "not explained: $line"
done < <(grep -rhv '^ *///' --include='*.cpp' --include='*.h' "$rooms" | sed -nE \
    's/.*(OnFault::[A-Za-z]+, |LogError\(|Fault\[\] = |prefix = .*return )u"([^"\\]+).*/\2/p')

# Headers of the samples are installed
for header in $(sed -nE 's/^#include <halvekutils\/([^>]+)>/\1/p' "$pages"/*.md | sort -u); do
    grep -qxF "$header" "$2/public-headers.txt" || complain "a sample includes $header, which is not installed"
done

# Links and pictures of the pages
for link in $(grep -hoE '\]\([a-z./-]+\.(md|png)' "$pages"/*.md | tr -d ']('); do
    [ -f "$pages/$link" ] || complain "no $link"
done
