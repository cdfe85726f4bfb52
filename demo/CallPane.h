// SPDX-License-Identifier: MIT
#pragma once

#include "CallLog.h"

#include <QDockWidget>
#include <QPlainTextEdit>

namespace frontdesk {

/// Lists each call of the library as it happens.
class CallPane : public QDockWidget {
  public:
    explicit CallPane(CallLog& calls)
        : QDockWidget("Calls of the library"), lines_(new QPlainTextEdit) {
        setObjectName("calls");
        setFeatures(QDockWidget::DockWidgetClosable);
        lines_->setReadOnly(true);
        lines_->setTabChangesFocus(true);
        lines_->setAccessibleName("Calls of the library");
        lines_->setFrameShape(QFrame::NoFrame);
        lines_->setMaximumBlockCount(kMostLines);
        lines_->setPlainText(calls.Lines().join('\n'));
        connect(&calls, &CallLog::Added, lines_, &QPlainTextEdit::appendPlainText);
        connect(this, &QDockWidget::visibilityChanged, lines_,
                [this] { lines_->moveCursor(QTextCursor::End); });
        setWidget(lines_);
    }

  private:
    static constexpr int kMostLines = 5000;

    QPlainTextEdit* lines_;
};

}  // namespace frontdesk
