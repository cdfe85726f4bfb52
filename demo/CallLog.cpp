// SPDX-License-Identifier: MIT
#include "CallLog.h"

#include <utility>

namespace frontdesk {

QStringList CallLog::Add(const QString& function, const QStringList& arguments,
                         const QString& result) {
    const QString call = function + '(' + arguments.join(", ") + ')';
    AddLine(result.isEmpty() ? call : call + " = " + result);
    QStringList messages = errorLog_.NewMessages();
    for (const QString& message : std::as_const(messages)) AddLine("    error log: " + message);
    return messages;
}

void CallLog::AddLine(const QString& line) {
    lines_ << line;
    for (const Listener& listener : listeners_) listener(line);
}

}  // namespace frontdesk
