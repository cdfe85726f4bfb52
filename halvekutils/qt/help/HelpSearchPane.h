// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/help/HelpSearch.h>

#include <QBasicTimer>
#include <QWidget>

#include <memory>

class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace halvek {

class StatusLabel;

/// Searches a whole help file and lists the pages found, while the user goes on reading.
class HelpSearchPane : public QWidget {
    Q_OBJECT

  public:
    HelpSearchPane();
    ~HelpSearchPane() override;

    /// Null for no file.
    void SetHelp(std::shared_ptr<CompiledHelp> help);
    void TakeKeyboard();

    /// Stops a search; false when none runs.
    bool Stop();

  signals:
    /// A page found, and a word to look for in it.
    void Chosen(const QString& path, const QString& word);

  protected:
    void timerEvent(QTimerEvent* event) override;

  private:
    void Start();
    void Search();
    void ShowProgress();
    void ListFound();
    void Choose(const QListWidgetItem* item);

    std::shared_ptr<CompiledHelp> help_;
    std::unique_ptr<HelpSearch> search_;
    QBasicTimer timer_;
    bool isStopped_ = false;
    QLineEdit* txtSearch_;
    QPushButton* cmdSearch_;
    QListWidget* lstFound_;
    StatusLabel* lblSearch_;
};

}  // namespace halvek
