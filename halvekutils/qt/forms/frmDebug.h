// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/core/DebugConsole.h>
#include <halvekutils/platform/Desktop.h>

#include <QWidget>

#include <memory>

class QCheckBox;
class QLayout;
class QPushButton;

namespace halvek {

class DebugTextView;
class FindBar;
class StatusLabel;

/// The window of the debug console: shows its rules and forwards its events.
///
/// It never takes the focus by itself, stays usable beside modal dialogs and lets the application
/// end. Its close box hides it.
class frmDebug : public QWidget {
    Q_OBJECT

  public:
    /// `desktop` knows the screen.
    frmDebug(std::shared_ptr<DebugConsole> console, const Desktop& desktop);
    ~frmDebug() override;

    const std::shared_ptr<DebugConsole>& Console() const { return console_; }

    /// Shows the window without activating it; does nothing when it is shown.
    void ShowInBackground();

  protected:
    bool event(QEvent* event) override;

  private:
    void BuildLayout();
    void BuildShortcuts();
    QCheckBox* MakeBox(const char* name, const QString& caption, void (DebugConsole::*set)(bool));
    template <class Act>
    QPushButton* MakeButton(const char* name, const QString& caption, const Act& act);
    QLayout* MakeButtonRow();
    void Tell(bool done, const QString& what);
    void OutlineBoxes();
    void PlaceInCorner(const Desktop& desktop);
    void KeepUsable();
    void Sync();
    void SyncOnTop();

    std::shared_ptr<DebugConsole> console_;
    DebugTextView* txtDebug_;
    FindBar* findBar_;
    StatusLabel* lblStatus_;
    QCheckBox* chkNoLog_;
    QCheckBox* chkToFile_;
    QCheckBox* Check1_;
};

}  // namespace halvek
