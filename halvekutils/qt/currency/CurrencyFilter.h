// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/currency/AmountText.h>
#include <halvekutils/currency/CurrencyEvents.h>
#include <halvekutils/qt/currency/CurrencyRange.h>

#include <QLineEdit>
#include <QObject>
#include <QString>

#include <memory>
#include <utility>

class QDropEvent;
class QKeyEvent;

namespace halvek {

class Utils;

/// Attaches the handlers of currency fields to a line edit, which owns it.
///
/// The handlers work on a copy of the field's four values. The results go back into the line edit.
class CurrencyFilter : public QObject {
    Q_OBJECT

  public:
    CurrencyFilter(QLineEdit& line, AmountSign sign, std::shared_ptr<Utils> utils);
    ~CurrencyFilter() override;

    /// Attaches a new filter, which replaces the one before.
    static CurrencyFilter& Attach(QLineEdit& line, AmountSign sign, std::shared_ptr<Utils> utils);

    /// The filter of a line edit; null when it is not a currency field.
    static CurrencyFilter* Of(const QLineEdit& line);

    /// The line edit; null once it is being destroyed.
    QLineEdit* Line() const;
    AmountSign Sign() const { return sign_; }

    void CheckRange(CurrencyRange range) { range_ = std::move(range); }
    const CurrencyRange& Range() const { return range_; }

    /// The text to show for one that the host sets, or has set.
    QString TextGiven(const QString& text);

    /// Shows and validates the edited amount before a button, say, acts; false when the field
    /// refuses to be left.
    bool LeaveForAct(QLineEdit& line);

    /// Sees the line edit's events before any other filter does; true when none must see them.
    bool FilterFirst(QLineEdit& line, const QEvent& event);
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool Filter(QLineEdit& line, QEvent& event);
    void GetFocus(QLineEdit& line, Qt::FocusReason reason);
    bool PressKey(QLineEdit& line, const QKeyEvent& event);
    void Drop(QLineEdit& line, QDropEvent& event);
    void Enter(QLineEdit& line);
    bool OpenForInput(QLineEdit& line);
    void MakeBare(QLineEdit& line);
    void Write(QLineEdit& line, const QString& text);
    QString TextShown(const QString& text) const;

    // Leaving, in CurrencyLeaving.cpp
    void FocusMoved(const QWidget* now);
    bool Leave(QLineEdit& line);
    bool LoseFocus(QLineEdit& line, Qt::FocusReason reason);
    bool MayLeave(QLineEdit& line);
    void LeaveUnasked(QLineEdit& line);
    void Show(QLineEdit& line);
    void Refuse(QLineEdit& line);
    void EndEditing(QLineEdit& line);
    void HandBack(QLineEdit& line);
    void HandBackSoon();
    void ShowAgain();

    AmountSign sign_;
    CurrencyEvents events_;
    std::shared_ptr<Utils> utils_;  ///< kept alive for the host
    CurrencyRange range_;
    QString given_;              ///< by the host, and not edited since
    QString entered_;            ///< the bare number that the user found
    bool editing_ = false;       ///< entered and not left yet
    bool isLeft_ = false;        ///< left while it keeps the focus
    bool isUnasked_ = false;     ///< left for a button that needs no valid fields
    bool isHandedBack_ = false;  ///< holds what was given, for a delegate to commit
    bool isWriting_ = false;
    bool wasLocked_ = false;
    bool clickSelects_ = false;
};

/// True while a field is being left: no field reacts to what its message does to the focus.
bool IsAnyFieldBeingLeft();

/// True when a change of focus does not leave the field: to another window, or a menu.
bool EditingGoesOn(Qt::FocusReason reason);

}  // namespace halvek
