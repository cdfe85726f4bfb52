// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets>

/// Opens calls by name: typed into the line or chosen from the list below it, each by Enter. Shows
/// and records what they give.
class StageWindow : public QMainWindow {
  public:
    StageWindow();

    void Open(const QString& name);

  private:
    QLineEdit* const line_ = new QLineEdit;
    QListWidget* const list_ = new QListWidget;
};
