// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/core/Utils.h>
#include <halvekutils/qt/CurrencyLineEdit.h>

#include <QCheckBox>
#include <QDataWidgetMapper>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QTableView>

#include <functional>
#include <memory>

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
    void SaveByItself();
    void BuildFields();
    void BuildRecords();
    void BuildDialogButtons();
    void BuildClosingButtons();
    void BuildDates();
    void BuildActions();
    QPushButton* AddButton(const QString& name, const std::function<void()>& act);

    std::shared_ptr<halvek::Utils> utils_;
    QDialog* const page_;
    QFormLayout* const left_ = new QFormLayout;
    QVBoxLayout* const right_ = new QVBoxLayout;
    QLineEdit* const amount_ = new QLineEdit;
    QLineEdit* const adjustment_ = new QLineEdit;
    QLineEdit* const from_ = new QLineEdit;
    QLineEdit* const to_ = new QLineEdit;
    QLineEdit* const visit_ = new QLineEdit;
    QLineEdit* const note_ = new QLineEdit;
    QLineEdit* const total_ = new QLineEdit;  ///< of the fee and the service
    halvek::CurrencyLineEdit* const fee_ = new halvek::CurrencyLineEdit;
    QStandardItemModel fees_;
    QDataWidgetMapper mapper_;
    QStandardItemModel payments_;
    QTableView* const table_ = new QTableView;
};
