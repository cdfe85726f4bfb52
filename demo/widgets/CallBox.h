// SPDX-License-Identifier: MIT
#pragma once

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <initializer_list>
#include <vector>

namespace frontdesk {

/// One member of the library: its arguments, a button that calls it, and its result.
class CallBox : public QGroupBox {
  public:
    /// An argument with its first value: a QString for a line of text, an int for a number, a
    /// bool for a check box.
    struct Argument {
        QString label;
        QVariant value;
    };
    /// Makes the call with the current arguments and returns the result to show.
    using Call = std::function<QString(const QVariantList& arguments)>;

    /// @param title  what the member does
    /// @param caption  of the button: the member's name, "&" before the mnemonic
    CallBox(const QString& title, const QString& caption, std::initializer_list<Argument> arguments,
            Call call);

    /// Enters the arguments from the left, presses the button and returns the result.
    QString CallWith(const QVariantList& arguments);

    QString MemberName() const { return button_->text().remove('&'); }

  private:
    QHBoxLayout* MakeArguments(std::initializer_list<Argument> arguments);
    QHBoxLayout* MakeAnswer();
    void AddField(QHBoxLayout& row, const Argument& argument);
    void CallNow();

    Call call_;
    QPushButton* button_;
    QLineEdit* result_;
    std::vector<QWidget*> fields_;
};

}  // namespace frontdesk
