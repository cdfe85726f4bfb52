// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/core/Utils.h>
#include <halvekutils/qt/CurrencyLineEdit.h>

#include <QtWidgets>

/// The window of a cashier: fields, a table and a form on a record, buttons, a menu and a tool bar.
/// It records everything that it gets from the library or the user.
class Desk : public QMainWindow {
  public:
    explicit Desk(std::shared_ptr<halvek::Utils> utils);

    /// Sets the text of a field, of the record's fee or of the first payment in the table, as a
    /// program does when it loads them; "FIELD.cents" sets an amount. "Autosave" saves without the
    /// user.
    void Load(const QString& field, const QString& text);

  private:
    void BuildFields();
    void BuildRecords();
    void BuildLibraryButtons();
    void BuildClosingButtons();
    void BuildActions();
    QLineEdit& Field(const QString& name) const { return *findChild<QLineEdit*>(name); }
    QString Amount() const { return Field("Amount").text(); }

    std::shared_ptr<halvek::Utils> utils_;
    QDialog* const page_;
    QFormLayout* const left_ = new QFormLayout;
    QVBoxLayout* const right_ = new QVBoxLayout;
    halvek::CurrencyLineEdit* const fee_ = new halvek::CurrencyLineEdit;
    QStandardItemModel fees_{1, 1};
    QDataWidgetMapper mapper_;
    QStandardItemModel payments_{2, 2};
    QItemEditorFactory amountEditors_;  ///< into which amounts in the table are typed
};
