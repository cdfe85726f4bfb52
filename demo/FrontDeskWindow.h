// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "screens/Screen.h"

#include <QAction>
#include <QActionGroup>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QStackedWidget>
#include <QTimer>

#include <vector>

namespace frontdesk {

/// The client's one window: a bar with the screens, the patient, the screen, a status line.
class FrontDeskWindow : public QMainWindow {
  public:
    explicit FrontDeskWindow(Desk& desk);

    /// Closes the open accounts when nobody has used the desk for so long, after a box that counts
    /// down: patients pass the desk.
    void WatchIdle(int seconds);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void AddScreen(const char* caption, const char* glyph, Screen* screen);
    void MakeToolBar();
    void MakeCallPane();
    void MakeMenus();
    void MakeHelpMenu();
    void MakeStatusLine();
    void ConnectScreens();
    void GoTo(ScreenId id);
    void Refresh();
    void FillWindowsMenu();
    void ShowErrorLog();
    void ShowClock();
    void ShowPrinter();
    void KeepInView(const QWidget* focused);
    void WarnIdle();
    Screen& CurrentScreen();

    Desk& desk_;
    std::vector<Screen*> screens_;
    QActionGroup screenActions_;
    QStackedWidget stack_;
    QLineEdit* find_;
    QMenu windows_;
    QAction closeAccount_;
    QDockWidget calls_;
    QLabel clock_;
    QLabel printer_;
    QTimer idle_;
    bool isPainted_ = false;
};

}  // namespace frontdesk
