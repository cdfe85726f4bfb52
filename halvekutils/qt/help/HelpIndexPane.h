// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/qt/help/HelpEntryTree.h>

#include <QWidget>

class QLineEdit;

namespace halvek {

/// The index of a help file: what is typed goes to the first keyword that starts with it.
class HelpIndexPane : public QWidget {
    Q_OBJECT

  public:
    HelpIndexPane();

    void Fill(const std::vector<HelpEntry>& entries);
    void TakeKeyboard();

  signals:
    void Chosen(const HelpEntry& entry);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLineEdit* txtIndex_;
    HelpEntryTree* trvIndex_;
};

}  // namespace halvek
