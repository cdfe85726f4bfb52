// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QCheckBox>
#include <QDialog>
#include <QGridLayout>

#include <functional>
#include <vector>

namespace frontdesk {

/// The user's colours, the schedule's colours and what the schedule shows; stored on the server.
class PreferencesDialog : public QDialog {
  public:
    PreferencesDialog(Desk& desk, QWidget* parent);

  private:
    struct ColorRow {
        QString name;
        halvek::Color color;
        std::function<void(halvek::Color color)> store;
    };

    QGridLayout* AddGroup(const QString& heading);
    void AddColor(QGridLayout& group, std::size_t index);
    void CollectColors();
    void Save();

    Desk& desk_;
    std::vector<ColorRow> colors_;
    QCheckBox* showsPaid_;
};

}  // namespace frontdesk
