// SPDX-License-Identifier: MIT
#include "Record.h"

#include <cstdio>

void Record::Got(const QString& what) {
    Answer("got " + what);
}

void Record::Got(const QString& what, const QString& value) {
    Got(what + ' ' + (value.isEmpty() ? "nothing" : value));
}

void Record::Answer(const QString& line) {
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}
