// SPDX-License-Identifier: MIT
#pragma once

#include "CallLog.h"
#include "practice/Practice.h"

#include <halvekutils/core/Utils.h>
#include <halvekutils/prefs/ReminderDefinition.h>

#include <QList>
#include <QObject>
#include <QString>
#include <QWidget>

#include <memory>
#include <optional>

namespace frontdesk {

/// The screens of the client, in the order of its tool bar.
enum class ScreenId { Schedule, Account, CheckIn, Payment };

/// The user's folder for the practice's file and the error log; made if it is missing.
QString DataFolder();

/// The library's error log.
QString ErrorLogFile();

/// The client without its windows: what all screens share. The calls of the library that they
/// share are made and noted here.
class Desk : public QObject {
    Q_OBJECT

  public:
    Desk(CallLog& calls, bool debug);

    /// Opens the practice's file and starts the user's session with what its server says. When the
    /// file cannot be used, a message says why and offers to work with one beside it; the file
    /// itself is left as it is. False when the user declines.
    bool Open(const QString& path);

    /// What may take a second, when the first window is on the screen.
    void ReadPrinters();

    halvek::Utils& Library() { return *utils_; }
    Practice& Server() { return *practice_; }
    CallLog& Calls() { return calls_; }

    /// What the user may do with an item of the server's.
    std::shared_ptr<halvek::SecurityItem> Rights(const QString& item) const {
        return utils_->GetSecurityItemsCollection()->Item(item);
    }

    // The account that is worked on

    /// The account's patient; nothing before the first is chosen.
    const std::optional<Patient>& Current() const { return current_; }
    /// The current patient's visit of today that is not paid yet.
    std::optional<Visit> VisitOfToday();
    /// What the server reminds of when the account is opened.
    halvek::ReminderDefinition RemindersOfAccount();
    /// Shows a patient above the screens.
    void Select(int patient);
    /// The accounts that are open, in the order in which they were opened.
    QList<int> OpenAccounts() const;
    /// Adds an account to those that are open, if it is not one of them.
    void NoteOpen(int patient);
    /// Shows the patient who is due, if somebody is.
    void SelectDue();
    /// Opens an account, or goes back to it, and shows a screen of it.
    void OpenAccount(int patient, ScreenId screen);
    void CloseAccount();
    void CloseAllAccounts();
    /// After the desk changed something in the practice.
    void NotePracticeChanged();

    // Preferences

    halvek::UserPrefs& Prefs() { return prefs_; }
    QString ReceiptPrinter() const;
    void UseReceiptPrinter(const QString& description);
    /// Stores the preferences on the server and uses them.
    void SavePrefs();

    // Dialogs of the library

    halvek::MbMsgBoxResult Ask(const QString& text, halvek::ButtonsChoice buttons,
                               halvek::IconChoice icon, const QString& title, int seconds = 0);
    /// A day as mm/dd/yyyy; empty when none was chosen.
    QString ChooseDay(QWidget* beside, const QString& shown);
    /// Codes from a table of the server's; nothing when the choice stays.
    std::optional<QString> ChooseCodes(const QString& table, const QString& chosen, QWidget* beside,
                                       bool byDescription, const QString& typed);
    std::optional<halvek::Color> ChooseColor(QWidget* beside);

    // Fields

    /// Marks the caption of the field in which the user is.
    void Highlight(QWidget* caption, bool on);
    /// "1" for the key that looks up by code, "2" by description; empty for any other key.
    QString SearchBy(int key);

  signals:
    void PatientChanged();
    void PracticeChanged();
    void PrefsChanged();
    void PrintersKnown();
    void GoTo(frontdesk::ScreenId screen);
    /// An amount of the account is to be posted at once.
    void PostNow(qint64 cents);
    /// A line for the user, about something that is done.
    void Told(const QString& what);
    /// A search for a patient begins with what was typed elsewhere.
    void SearchStarted(const QString& text);

  private:
    void ReadSystemPrefs();
    void ReadReferenceData();
    void UsePrefs();
    void NoteFault(const QString& fault);

    std::shared_ptr<halvek::Utils> utils_ = halvek::Utils::Create();
    CallLog& calls_;
    std::unique_ptr<Practice> practice_;
    halvek::UserPrefs prefs_;
    std::optional<Patient> current_;
    bool faultIsShown_ = false;
};

}  // namespace frontdesk
