// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"

#include <halvekutils/qt/CurrencyLineEdit.h>

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <functional>

namespace frontdesk {

/// Currency fields as a host has them: a payment to post, and a range of amounts to search for.
class PaymentPage : public Page {
  public:
    explicit PaymentPage(Desk& desk);

    void Play(Tour& tour) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// A form inside the page: it has a default button, and Escape does not close it.
    class Form : public QDialog {
      public:
        void reject() override {}
    };
    /// A field and its text when it last lost the focus.
    struct Entry {
        const char* handler;
        QLineEdit* field;
        QLabel* before = new QLabel;
        QLabel* after = new QLabel;
        bool isLeft = false;
    };

    void AddEntry(QGridLayout& grid, const QString& label, Entry& entry);
    void NoteLeaving(Entry& entry);
    void NoteLeft(Entry& entry);
    void Post();

    void Type(QLineEdit& field, const QString& text);
    /// Types into a field, leaves it by Tab and expects what it shows.
    void PlayEntry(Tour& tour, Entry& entry, const QString& typed, const QString& expected);

    Desk& desk_;
    Form form_;
    halvek::CurrencyLineEdit amount_;
    halvek::CurrencyLineEdit adjustment_{halvek::AmountSign::Signed};
    QLineEdit from_;
    QLineEdit to_;
    QPushButton post_;
    Entry entries_[4] = {{"OnCurrencyCtrValidate", &amount_},
                         {"OnNegCurrencyCtrValidate", &adjustment_},
                         {"OnCurrencyCtrValidate", &from_},
                         {"OnCurrencyCtrValidate", &to_}};
};

}  // namespace frontdesk
