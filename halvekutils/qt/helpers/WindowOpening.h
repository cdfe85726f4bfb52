// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QWidget>

#include <vector>

class QScreen;
class QWindow;

namespace halvek {

/// Decides for every window that the library opens: which window owns it, on which screen and in
/// which area it opens, and whether it may take the keyboard.
///
/// It remembers which of the host's windows was active last: while a dialog ends, the application
/// has no active window, and the next dialog would have no owner.
class WindowOpening : public QObject {
    Q_OBJECT

  public:
    /// Made at the first call in the life of an application object.
    static WindowOpening& OfApplication();

    /// The window that a dialog opened now belongs to: the active modal window, else the active
    /// window, which the debug console never counts as, else `asked`, else the one that was active
    /// last, provided it is on the screen. Null when there is none.
    QWidget* Owner(QWidget* asked = nullptr) const;

    /// The window, no modal dialog, that was active last and is still on the screen; null without
    /// one.
    QWidget* LastActive() const;

    /// The screen for a dialog opened now; null without a display.
    QScreen* Screen() const;

    /// The part of a screen that windows may use; empty without a screen.
    static QRect UsableArea(const QScreen* screen);

    /// Where a dialog of this outer size opens: centred on the owner or else on the screen, wholly
    /// visible.
    QRect Centred(const QSize& outer, const QWidget* owner) const;

    /// The widths of a window's frame; null without one.
    static QMargins MarginsOf(const QWidget& window);

    /// Where a window with its frame is.
    static QRect FrameOf(const QWidget& window);

    /// What the frame adds to the size of a window opened now: as much as its owner's does.
    static QSize FrameSize();

    /// Moves a rectangle into the usable area of a screen.
    static QRect Inside(const QRect& place, const QScreen* screen);

    /// Makes `owner`, unless it is null, the window that `window` stays above. It does not become
    /// its parent: a host that destroys the owner must not destroy a dialog that is still running.
    static void SetOwner(QWidget& window, const QWidget* owner);

    /// Shows a window and makes it active. While the user works in another program it stays in the
    /// background and asks for attention instead: it must not be answered by keys meant for another
    /// window.
    void Show(QWidget& window);

    /// Shows a window without making it active.
    static void ShowInBackground(QWidget& window);

    /// A dialog has ended: while it was active, its owner is to be active again.
    void GiveBack(QWidget* owner, bool wasActive);

  private:
    explicit WindowOpening(QObject* parent);
    void FocusMoved(QWindow* window);
    void Remember(QWidget& window);
    bool MayActivate() const;
    void CheckGivenBack(const QPointer<QWidget>& owner, int checks);

    std::vector<QPointer<QWidget>> recent_;  ///< the last active one first
    bool wasActive_ = false;                 ///< the application has had the keyboard
    QElapsedTimer sinceGivenUp_;  ///< by a dialog that ended; invalid once a window has it
};

}  // namespace halvek
