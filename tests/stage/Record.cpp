// SPDX-License-Identifier: MIT
#include "Record.h"

#include <cstdio>

void Record::Got(const QString& what, const QString& value) {
    const QString shown = value.isEmpty() ? QStringLiteral("nothing") : value;
    Answer("got " + (value.isNull() ? what : what + ' ' + shown));
}

void Record::Answer(const QString& line) {
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}
