// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/core/DebugConsole.h>

#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QTimer>

#include <cstddef>
#include <cstdint>

namespace halvek {

/// Lets a burst of repaints through and then so many a second.
class RepaintBudget {
  public:
    RepaintBudget() { clock_.start(); }

    bool Take();

  private:
    QElapsedTimer clock_;
    qint64 spentUntil_ = 0;
};

/// txtDebug: shows the console's text, the newest line in view.
///
/// A line shows at once, also while the program is too busy for its event loop. When thousands come
/// in a second they show many at a time, the last as soon as the event loop goes on.
class DebugTextView : public QPlainTextEdit {
    Q_OBJECT

  public:
    DebugTextView(const DebugConsole& console, QWidget* parent);

    /// The console has changed.
    void Refresh();

  private:
    bool IsCurrent() const;
    void ShowText();

    const DebugConsole& console_;
    std::uint64_t replacements_ = 0;
    std::size_t shown_ = 0;  ///< characters of the console's text
    RepaintBudget budget_;
    QTimer later_;
    QElapsedTimer sinceLater_;
};

}  // namespace halvek
