// SPDX-License-Identifier: MIT
#pragma once

#include "CallLog.h"
#include "OpenAccounts.h"
#include "practice/Practice.h"

#include <halvekutils/core/Utils.h>
#include <halvekutils/prefs/ReminderDefinition.h>

#include <QLineEdit>
#include <QObject>
#include <QString>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>

namespace frontdesk {

/// The screens of the client, in the order of its tool bar.
enum class ScreenId { Schedule, Account, CheckIn, Payment };

enum class Right { Read, Add, Modify, Delete };

/// The client without its windows: what all screens share. Every call of the library is made and
/// noted here, except those on a screen's own controls.
class Desk : public QObject {
    Q_OBJECT

  public:
    /// Starts the user's session: hands the library what the practice's server says about it.
    Desk(std::shared_ptr<halvek::Utils> utils, CallLog& calls, std::unique_ptr<Practice> practice);

    /// What may take a second, when the first window is on the screen: the printers.
    void FinishStart();

    halvek::Utils& Library() { return *utils_; }
    Practice& Server() { return *practice_; }
    CallLog& Calls() { return calls_; }
    OpenAccounts& Accounts() { return accounts_; }

    QString User() const;
    bool May(const QString& item, Right right);

    // The account that is worked on

    /// The account's patient; nothing before the first is chosen.
    const std::optional<Patient>& Current() const { return current_; }
    /// The current patient's visit of today that is not paid yet.
    std::optional<Visit> VisitOfToday();
    /// What the server reminds of when the account is opened.
    halvek::ReminderDefinition RemindersOfAccount();
    /// Shows a patient above the screens.
    void Select(int patient);
    /// Opens an account, or goes back to it, and shows a screen of it.
    void OpenAccount(int patient, ScreenId screen);
    void CloseAccount();
    void CloseAllAccounts();
    /// After the desk changed something in the practice.
    void NotePracticeChanged();

    // Preferences

    std::shared_ptr<halvek::UserPrefs> Prefs() const { return prefs_; }
    bool ShowsPaidVisits() const;
    void ShowPaidVisits(bool show);
    QString ReceiptPrinter() const;
    void UseReceiptPrinter(const QString& description);
    /// Stores the preferences on the server and uses them.
    bool SavePrefs();

    // Dialogs of the library

    halvek::MbMsgBoxResult Ask(const QString& text, halvek::ButtonsChoice buttons,
                               halvek::IconChoice icon, const QString& title, int seconds = 0);
    /// A day as mm/dd/yyyy; empty when none was chosen.
    QString ChooseDay(QWidget* beside, const QString& shown);
    /// Codes from a table of the server's; nothing when the choice stays.
    std::optional<QString> ChooseCodes(const QString& table, const QString& chosen, QWidget* beside,
                                       bool byDescription, const QString& typed);
    std::optional<halvek::Color> ChooseColor(QWidget* beside);
    /// What the calculator shows at its end; empty when it was closed.
    QString Calculate(const QString& amount);
    void ShowHelp(int context);

    // Fields

    void MakeAmount(QLineEdit* line);
    void MakeSignedAmount(QLineEdit* line);
    /// Marks the caption of the field in which the user is.
    void Highlight(QWidget* caption, bool on);
    /// "1" for the key that looks up by code, "2" by description; empty for any other key.
    QString SearchBy(int key);

    /// A line for the debug console, which opens in debug mode only.
    void Debug(const QString& line);

  signals:
    void PatientChanged();
    void PracticeChanged();
    void PrefsChanged();
    void PrintersKnown();
    void GoTo(frontdesk::ScreenId screen);

  private:
    void ReadPrefs();
    void UsePrefs();
    void ReadSystemPrefs();
    void ReadReferenceData();
    void NoteFault(const QString& fault);

    std::shared_ptr<halvek::Utils> utils_;
    CallLog& calls_;
    std::unique_ptr<Practice> practice_;
    OpenAccounts accounts_;
    std::shared_ptr<halvek::UserPrefs> prefs_ = std::make_shared<halvek::UserPrefs>();
    std::optional<Patient> current_;
    bool faultIsShown_ = false;
};

}  // namespace frontdesk
