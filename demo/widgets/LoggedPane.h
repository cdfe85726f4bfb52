// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>
#include <QStringList>

namespace frontdesk {

/// What a call wrote to the error log, below the page that made it.
class LoggedPane : public QPlainTextEdit {
  public:
    LoggedPane();

    void SetMessages(const QStringList& messages) { setPlainText(messages.join('\n')); }
};

}  // namespace frontdesk
