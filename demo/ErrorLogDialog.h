// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/qt/QtText.h>

#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace frontdesk {

/// The end of the library's error log.
class ErrorLogDialog : public QDialog {
  public:
    ErrorLogDialog(const QString& path, QWidget* parent) : QDialog(parent) {
        setWindowTitle("Error log");
        auto* text = new QPlainTextEdit(EndOf(path));
        text->setReadOnly(true);
        text->setTabChangesFocus(true);
        text->setAccessibleName("Error log");
        text->setLineWrapMode(QPlainTextEdit::NoWrap);
        text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        auto* column = new QVBoxLayout(this);
        column->addWidget(text);
        column->addWidget(buttons);
        buttons->button(QDialogButtonBox::Close)->setFocus();
        resize(fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 18);
    }

  private:
    static QString EndOf(const QString& path) {
        constexpr qint64 kMostBytes = 65536;
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly) || file.size() == 0) return "Nothing was logged.";
        file.seek(qMax<qint64>(0, file.size() - kMostBytes));
        return halvek::FromServer(file.readAll()).replace("\r\n", "\n");
    }
};

}  // namespace frontdesk
