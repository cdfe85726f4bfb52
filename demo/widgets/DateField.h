// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

namespace frontdesk {

/// A field for a day, and a button that opens the library's calendar beside it; so do the look-up
/// keys.
class DateField : public QWidget {
  public:
    DateField(Desk& desk, const QString& name);

    QString Text() const { return line_->text().trimmed(); }
    void SetText(const QString& text) { line_->setText(text); }
    /// The day; a null one when the text is none.
    QDate Day() const;

    QToolButton* Button() { return button_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Choose();

    Desk& desk_;
    QLineEdit* line_;
    QToolButton* button_;
};

}  // namespace frontdesk
