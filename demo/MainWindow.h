// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"

#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QStackedWidget>

#include <vector>

namespace frontdesk {

/// The client's window: the services at the left, the page of the chosen one beside them, and what
/// the library returned below.
class MainWindow : public QMainWindow {
  public:
    explicit MainWindow(Desk& desk);

    /// Visits every page, lets it play and takes its picture.
    void Play(Tour& tour);

  protected:
    /// The small windows close with this one.
    void closeEvent(QCloseEvent* event) override;

  private:
    void AddPage(Page* page, QMenu& menu);
    void MakeMenus();
    QWidget* MakeCallPane();
    QLayout* MakeCallPaneHeading();
    void ShowPage(int index);
    void ShowCall(const QString& line);
    void ShowAbout();
    void ShowHelp();

    Desk& desk_;
    std::vector<Page*> pages_;
    QListWidget list_;
    QStackedWidget stack_;
    QPlainTextEdit* calls_;
};

}  // namespace frontdesk
