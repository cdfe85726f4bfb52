// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QGridLayout>
#include <QLabel>
#include <QWidget>

#include <vector>

namespace frontdesk {

/// Captions beside their fields. The library highlights the caption of the field that the user is
/// in.
class FieldForm : public QWidget {
  public:
    explicit FieldForm(Desk& desk);

    /// @param caption  "&" marks the key that leads to the field
    void AddRow(const QString& caption, QWidget* field);

  private:
    struct Row {
        QLabel* caption;
        QWidget* field;
        bool isHighlighted;
    };

    void Follow(const QWidget* focused);

    Desk& desk_;
    QGridLayout* grid_;
    std::vector<Row> rows_;
};

/// A field with a button behind it.
QWidget* Beside(QWidget* field, QWidget* button);

}  // namespace frontdesk
