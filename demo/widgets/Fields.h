// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

namespace frontdesk {

/// A field with an icon that opens one of the library's dialogs beside it; so do the look-up keys.
class LookupField : public QLineEdit {
    Q_OBJECT

  public:
    /// @param glyph  the icon, whose name the user hears and sees
    LookupField(Desk& desk, const QString& name, const QString& glyph, const QString& tip);

  signals:
    void LookedUp(bool byDescription);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

    Desk& desk_;
};

/// A required field for codes of one of the server's tables: typed, separated by commas, or chosen
/// from the library's list.
class CodesField : public LookupField {
  public:
    /// @param most  how many codes the field may hold
    CodesField(Desk& desk, const QString& table, const QString& name, int most);

    QString Codes() const;
    /// A note beside the field: what the codes mean.
    QLabel* Meaning() { return meaning_; }

    /// Whether the table has all codes; otherwise the user has been told and is in the field.
    bool Check();

  private:
    void Choose(bool byDescription);
    void Describe();
    QString UnknownCode() const;

    QString table_;
    int most_;
    QLabel* meaning_;
};

/// Gives a field that must be filled in the practice's colour for it, and keeps it up to date.
void ShowAsRequired(QLineEdit& field, Desk& desk);

/// Captions beside their fields. The library highlights the caption of the field that the user is
/// in.
class FieldForm : public QWidget {
  public:
    explicit FieldForm(Desk& desk);

    /// @param caption  "&" marks the key that leads to the field
    /// @param beside  a button or a note behind the field
    void AddRow(const QString& caption, QWidget* field, QWidget* beside = nullptr);

  private:
    void Follow(const QWidget* focused);

    Desk& desk_;
    QGridLayout* rows_;
    QWidget* highlighted_ = nullptr;
};

}  // namespace frontdesk
