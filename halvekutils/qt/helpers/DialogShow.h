// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/qt/helpers/SecondClick.h>

#include <QDialog>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>

#include <functional>
#include <optional>

namespace halvek {

/// Shows a dialog above the window that is current, until its rules have ended.
///
/// The dialog has no QObject parent. While it is open the arrow replaces a busy cursor of the
/// host's.
class DialogShow : public QObject {
  public:
    /// The top left corner, with the frame, where the dialog opens; `owner` may be null. Asked
    /// again once the window manager has framed the dialog.
    using Place = std::function<QPoint(const QWidget* owner)>;

    /// @param abandon  ends rules that are still open: called when the owner is destroyed and when
    ///     the modal loop ends, which it also does when the application quits; throws nothing
    DialogShow(QDialog& dialog, std::function<void()> abandon);
    ~DialogShow() override;

    /// Returns when the dialog has ended; a modeless one on the screen becomes modal. `asked` is
    /// the host's window that the dialog is about, or null.
    void Modal(QWidget* asked, const Place& place);
    void Modeless(QWidget* asked, const Place& place);

    /// The rules have ended: lets Modal return whatever happens, hides the dialog and makes its
    /// owner active again. If a click ended them, the second click of a double click is swallowed.
    void End();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* Owner(QWidget* asked) const;
    void Hide();
    void Open(QWidget* owner, Qt::WindowModality modality, const Place& place);
    void ShowArrowPointer();
    void RestorePointer();
    void StandWhereAsked();

    QDialog& dialog_;
    std::function<void()> abandon_;
    QPointer<QWidget> owner_;
    QEventLoop loop_;
    Place place_;
    QElapsedTimer sinceExposed_;  ///< invalid before
    int corrections_ = 0;
    std::optional<MousePress> lastPress_;  ///< in the dialog
    bool ended_ = false;
    bool pointerSaved_ = false;
};

}  // namespace halvek
