// SPDX-License-Identifier: MIT
#pragma once

#include "Shown.h"

#include <QObject>
#include <QStringList>

namespace frontdesk {

/// The calls of the library that the client has made, for programmers who watch it work.
class CallLog : public QObject {
    Q_OBJECT

  public:
    /// Notes a call and its result, empty for a member that returns nothing.
    void Add(const QString& function, const QStringList& arguments = {},
             const QString& result = {}) {
        const QString call = function + '(' + arguments.join(", ") + ')';
        lines_ << (result.isEmpty() ? call : call + " = " + result);
        emit Added(lines_.last());
    }

    const QStringList& Lines() const { return lines_; }

  signals:
    void Added(const QString& line);

  private:
    QStringList lines_;
};

}  // namespace frontdesk
