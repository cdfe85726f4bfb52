// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QString>
#include <QToolButton>
#include <QWidget>

#include <functional>

namespace frontdesk {

/// A field for a date and a button, beside which the calendar opens; Enter presses the button.
class DateField : public QWidget {
  public:
    /// Opens the calendar and returns the chosen day, empty for none.
    using Choose = std::function<QString(DateField& field)>;

    DateField(const QString& name, Choose choose);

    QString Date() const { return line_.text(); }
    void SetDate(const QString& date) { line_.setText(date); }

    QWidget& Button() { return button_; }

    /// Presses the button and returns the result.
    QString PressButton();

  private:
    Choose choose_;
    QLineEdit line_;
    QToolButton button_;
    QString chosen_;
};

}  // namespace frontdesk
