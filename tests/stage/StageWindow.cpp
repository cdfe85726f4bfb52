// SPDX-License-Identifier: MIT
#include "StageWindow.h"

#include "Calls.h"
#include "Record.h"

#include <algorithm>

StageWindow::StageWindow() {
    setObjectName("Stage");
    setWindowTitle("Stage");
    line_->setObjectName("Call");
    line_->setAccessibleName("Call");
    list_->setAccessibleName("Calls");
    for (const Call& call : Calls()) list_->addItem(call.name);
    auto* const both = new QWidget;
    auto* const rows = new QVBoxLayout(both);
    rows->addWidget(line_);
    rows->addWidget(list_);
    setCentralWidget(both);
    statusBar()->showMessage("Type a name and press Enter.");
    connect(line_, &QLineEdit::returnPressed, this, [this] { Open(line_->text()); });
    connect(list_, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { Open(item->text()); });
    line_->setFocus();
}

void StageWindow::Open(const QString& name) {
    const auto call = std::ranges::find(Calls(), name, &Call::name);
    if (call == Calls().end()) return Record::Got("no such call");
    line_->selectAll();
    const QString given = call->open(*line_);
    Record::Got("gave", given);
    statusBar()->showMessage(name + " gave " + given);
}
