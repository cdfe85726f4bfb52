// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/currency/AmountText.h>
#include <halvekutils/currency/CurrencyEvents.h>

#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class QDropEvent;
class QKeyEvent;

namespace halvek {

class Utils;

/// Attaches the handlers of currency fields to a line edit, which owns it.
///
/// The handlers work on a copy of the field's four values. What they make of it goes back into the
/// line edit as one change, which is one step for undo and one signal for the host.
class CurrencyFilter : public QObject {
    Q_OBJECT

  public:
    /// The lower field of a range, and what a message calls both.
    struct Range {
        QPointer<QLineEdit> from;
        QString lblMin;
        QString lblMax;
    };

    CurrencyFilter(QLineEdit& line, AmountSign sign, std::shared_ptr<Utils> utils);
    ~CurrencyFilter() override;

    /// Attaches a new filter, which replaces the one before.
    static CurrencyFilter& Attach(QLineEdit& line, AmountSign sign, std::shared_ptr<Utils> utils);

    /// The filter of a line edit; null when it is no currency field.
    static CurrencyFilter* Of(const QLineEdit& line);

    void CheckRange(Range range) { range_ = std::move(range); }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    class ApplicationFilter;

    bool Filter(QLineEdit& line, QEvent& event);
    bool FilterApplication(QLineEdit& line, const QObject& watched, const QEvent& event);
    bool PressKey(QLineEdit& line, const QKeyEvent& event);
    bool Type(QLineEdit& line, char16_t letter);
    bool Insert(QLineEdit& line, const QString& piece);
    void Drop(QLineEdit& line, QDropEvent& event);
    void FocusMoved(const QWidget* now);
    bool LoseFocus(QLineEdit& line, Qt::FocusReason reason);

    void Enter(QLineEdit& line);
    bool Leave(QLineEdit& line);
    bool MayLeave(QLineEdit& line);
    void EndEditing();
    void MakeBare(QLineEdit& line);

    AmountSign sign_;
    CurrencyEvents events_;
    std::shared_ptr<Utils> utils_;  ///< kept alive for the host
    std::unique_ptr<ApplicationFilter> applicationFilter_;
    Range range_;
    bool editing_ = false;  ///< entered and not left yet
    bool wasLocked_ = false;
    bool clickSelects_ = false;
    bool refusesPress_ = false;
};

}  // namespace halvek
