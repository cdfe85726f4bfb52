// SPDX-License-Identifier: MIT
#pragma once

#include "ErrorLogFile.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace frontdesk {

/// What the library returned: one line for every call that the client made, followed by what the
/// call wrote to the error log.
class CallLog {
  public:
    using Listener = std::function<void(const QString& line)>;

    explicit CallLog(ErrorLogFile& errorLog) : errorLog_(errorLog) {}

    /// Notes a call and its result, empty for a member that returns nothing. Returns the messages
    /// that the call wrote to the error log.
    QStringList Add(const QString& function, const QStringList& arguments,
                    const QString& result = {});

    const QStringList& Lines() const { return lines_; }

    /// Adds a listener, which is called with every later line.
    void Listen(Listener listener) { listeners_.push_back(std::move(listener)); }

  private:
    void AddLine(const QString& line);

    ErrorLogFile& errorLog_;
    QStringList lines_;
    std::vector<Listener> listeners_;
};

}  // namespace frontdesk
