// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/core/DebugConsole.h>

#include <QPlainTextEdit>

#include <cstddef>
#include <cstdint>

namespace halvek {

/// txtDebug: shows the console's text, the newest line in view.
///
/// Every line is painted as it comes, even while the program is too busy for its event loop: when a
/// job hangs, its last lines are the ones that matter. A selection (a word that was found, say)
/// stays selected and in view.
class DebugTextView : public QPlainTextEdit {
    Q_OBJECT

  public:
    DebugTextView(const DebugConsole& console, QWidget* parent);

    /// The console has changed.
    void Refresh();

  private:
    void ShowText();

    const DebugConsole& console_;
    std::uint64_t replacements_ = 0;
    std::size_t shown_ = 0;  ///< characters of the console's text
};

}  // namespace halvek
