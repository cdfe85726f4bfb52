// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/controls/Placement.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/platform/Dialog.h>
#include <halvekutils/qt/helpers/DialogShow.h>

#include <QDialog>
#include <QPoint>

#include <memory>

namespace halvek {

/// The window of a dialog: shows its rules, closes them when the user asks and hides when they have
/// ended.
///
/// It has a title bar with a close box and no QObject parent, and never keeps the application
/// running. The rules decide what each key does, not QDialog; a key that was held down when the
/// window opened does nothing.
class DialogForm : public QDialog {
    Q_OBJECT

  public:
    ~DialogForm() override;

    /// Shows the dialog until it has ended; a modeless one on the screen becomes modal.
    void ShowModal();
    void ShowModeless();

  signals:
    /// The dialog has ended and is hidden.
    void Ended();

  public slots:
    /// Closes the rules, as the close box does.
    void reject() override;

  protected:
    /// `name` becomes the object's name and is logged when a handler fails.
    DialogForm(std::shared_ptr<Dialog> rules, const char16_t* name);

    /// Shows what the rules say: once before the window opens, then after every change.
    virtual void Refresh() = 0;

    /// The top left corner, with the frame, where the window opens; by default as OpenAt asked.
    virtual QPoint PlaceOf(const QWidget* owner) const;
    /// The host's window that the dialog is about; null when the host does not say.
    virtual QWidget* OwnerAsked() const;
    /// Places the window as a pop-up. `outer` is its size with the frame that it is expected to
    /// get.
    void OpenAt(const PopupAnchor& anchor, Size outer, const Desktop& desktop);

    // Reached by keys that no control took: Escape closes, Enter presses the button with the focus.
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void Follow();
    void ShowRules();
    void EndShow();
    void Abandon();

    std::shared_ptr<Dialog> rules_;
    const char16_t* name_;
    PopupAnchor anchor_;
    Rect screen_;  ///< the usable area
    Size outer_;   ///< expected
    DialogShow show_{*this, [this] { Abandon(); }};
};

}  // namespace halvek
