// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/core/DebugConsole.h>

#include <QPlainTextEdit>

#include <cstddef>
#include <cstdint>

namespace halvek {

/// txtDebug: shows the console's text, the newest line in view.
///
/// Every line is painted as it comes, also while the program is too busy for its event loop: what a
/// job that hangs wrote last is what is looked for. What is selected, as a word that was found is,
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
