// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace halvek {

class SpokenNotice;

/// A line that says how something went; screen readers say it at once.
class StatusLabel : public QLabel {
    Q_OBJECT

  public:
    explicit StatusLabel(const char* name, QWidget* parent = nullptr);

    /// Shows a text and has readers say it, or else the accessible name.
    void Tell(const QString& text);

  private:
    SpokenNotice* notice_;
};

}  // namespace halvek
