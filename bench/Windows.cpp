// SPDX-License-Identifier: MIT
#include "Rows.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QMessageBox>
#include <QTableWidget>
#include <QVBoxLayout>

#include <memory>

namespace bench {

namespace {

using namespace halvek;

/// Closes every dialog as soon as it has been painted.
class Closer : public QObject {
  public:
    Closer() { qApp->installEventFilter(this); }
    ~Closer() override { qApp->removeEventFilter(this); }
    Closer(const Closer&) = delete;
    Closer& operator=(const Closer&) = delete;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint) return false;
        if (auto* const dialog = qobject_cast<QDialog*>(watched)) {
            QMetaObject::invokeMethod(dialog, &QWidget::close, Qt::QueuedConnection);
        }
        return false;
    }
};

Case OpenMessageBox(double) {
    const auto closer = std::make_shared<Closer>();
    return {.floor = {},
            .ours =
                [closer] {
                    const MbMsgBoxResult result = Session().ShowMsgBox(
                        u"Save the visit?", mbYesNoCancel, mbQuestion, u"Visit");
                    Use(&result);
                },
            .peer =
                [closer] {
                    QMessageBox box(QMessageBox::Question, "Visit", "Save the visit?",
                                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
                    const int result = box.exec();
                    Use(&result);
                }};
}

std::u16string ListText(int entries) {
    std::u16string text = u"HEADER";
    for (int i = 0; i < entries; ++i) {
        const std::string number = std::to_string(i);
        text += u":C" + std::u16string(number.begin(), number.end()) +
                u"\tDiagnosis with a name of usual length\t0";
    }
    return text;
}

/// A dialog that holds a table, as large as the selection dialog.
void ShowTable(QTableWidget& table) {
    QDialog dialog;
    QVBoxLayout layout(&dialog);
    layout.addWidget(&table);
    dialog.resize(900, 500);
    dialog.exec();
    table.setParent(nullptr);
}

Case OpenSelection(double scale) {
    const int entries = static_cast<int>(100'000 * scale);
    const auto closer = std::make_shared<Closer>();
    const auto list = std::make_shared<std::u16string>(ListText(entries));
    return {
        .floor =
            [closer, empty = ListText(0)] {
                const std::u16string chosen = Session().ShowSelectionGrid(u"Diagnoses", empty);
                Use(&chosen);
            },
        .ours =
            [closer, list] {
                const std::u16string chosen = Session().ShowSelectionGrid(u"Diagnoses", *list);
                Use(&chosen);
            },
        .peer =
            [closer, entries] {
                QTableWidget table(entries / 10 * 3, 10);
                for (int i = 0; i < entries; ++i) {
                    const int row = i / 10 * 3;
                    table.setItem(row + 1, i % 10, new QTableWidgetItem("C" + QString::number(i)));
                    table.setItem(row + 2, i % 10,
                                  new QTableWidgetItem("Diagnosis with a name of usual length"));
                }
                ShowTable(table);
            }};
}

}  // namespace

Rows WindowRows() {
    return {{"message box: open to first paint, and close", "", 0, "QMessageBox", 1, OpenMessageBox,
             false},
            {"message box, the first in a process", "", 0, "QMessageBox", 1, OpenMessageBox, false,
             true},
            {"selection dialog, 100,000 entries: open to first paint, and close",
             "the same window on an empty list", 2, "QTableWidget filled", 5, OpenSelection}};
}

}  // namespace bench
