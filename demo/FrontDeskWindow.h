// SPDX-License-Identifier: MIT
#pragma once

#include "CallPane.h"
#include "Desk.h"
#include "FindPatient.h"
#include "screens/CheckInScreen.h"
#include "screens/PaymentScreen.h"
#include "screens/ScheduleScreen.h"

#include <QActionGroup>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QStackedWidget>
#include <QToolButton>

#include <vector>

namespace frontdesk {

/// The client's one window: a bar with the screens, the patient, the screen, a status line.
class FrontDeskWindow : public QMainWindow {
    Q_OBJECT

  public:
    explicit FrontDeskWindow(Desk& desk);

    /// Where the keyboard is when the window opens: on the patient who is due.
    void Start();

  signals:
    /// The window is on the screen for the first time.
    void Painted();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void AddScreen(const char* caption, int glyph, Screen* screen);
    void MakeToolBar();
    void MakeFileMenu();
    void MakeGoMenu();
    void MakeWindowsMenu();
    void MakeHelpMenu();
    void MakeStatusLine();
    void ConnectScreens();
    void GoTo(ScreenId id);
    void Refresh();
    void FillWindowsMenu();
    void ShowErrorLog();
    void ShowAbout();
    void ShowClock();
    void KeepInView(const QWidget* focused);
    Screen& CurrentScreen();

    Desk& desk_;
    ScheduleScreen* schedule_;
    CheckInScreen* checkIn_;
    PaymentScreen* payment_;
    std::vector<Screen*> screens_;
    QActionGroup screenActions_;
    QStackedWidget stack_;
    FindPatient* find_;
    QMenu* windows_ = nullptr;
    CallPane* calls_;
    QLabel clock_;
    QLabel printer_;
    QToolButton showCalls_;
    bool isPainted_ = false;
};

}  // namespace frontdesk
