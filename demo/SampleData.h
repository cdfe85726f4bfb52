// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>
#include <halvekutils/base/StringArray.h>

#include <QHash>
#include <QString>

#include <cstdint>
#include <string>
#include <vector>

namespace frontdesk {

/// The arguments of Utils::InitUtils.
struct Identity {
    QString errFileName;
    QString appName;
    QString appType;
    bool debugMode = false;
    QString exeFileStamp;
};

/// The arguments of Utils::InitPrefs.
struct Preferences {
    halvek::StringArray colors;
    halvek::Color formSkin = 0;
    halvek::Color formText = 0;
    halvek::Color formTop = 0;
    halvek::Color requiredFieldBack = 0;
};

/// The arguments of Utils::InitOtherSettings.
struct OtherSettings {
    halvek::Color highlightBack = 0;
    halvek::Color highlightFore = 0;
    QString codeDelimiter;
    double columnAdjust = 1.0;
    std::int32_t scrollBarWidth = 0;
};

/// A list from which the user chooses codes.
struct SelectionSource {
    QString name;
    QString values;  ///< in the server's format
};

/// What the server sends when an account is opened.
struct Reminder {
    QString account;
    QString data;  ///< in the server's format
};

/// What a practice's server would send at start-up, read from the files in a data folder.
class SampleData {
  public:
    /// Throws std::runtime_error, naming the file, when one cannot be read.
    explicit SampleData(const QString& folder);

    /// The data folder beside the program, installed or in a build folder.
    static QString Folder();

    /// The client's help file, in the same folder; it may be missing.
    static QString HelpFile();

    Identity StartIdentity() const;
    Preferences StartPreferences() const;
    OtherSettings StartOtherSettings() const;

    /// A value of session.txt, unchanged; empty when it is missing.
    QString SessionValue(const QString& name) const { return session_.value(name); }

    /// codes.txt: the code tables in the server's format.
    const std::u16string& Codes() const { return codes_; }

    /// rights.txt, printers.txt and settings.txt: the user's rights, the serial printers and the
    /// user's settings in the server's format.
    const std::u16string& Rights() const { return rights_; }
    const std::u16string& Printers() const { return printers_; }
    const std::u16string& Settings() const { return settings_; }

    /// The lists of selections.txt, in their order there.
    const std::vector<SelectionSource>& Selections() const { return selections_; }

    /// The accounts of reminders.txt, in their order there.
    const std::vector<Reminder>& Reminders() const { return reminders_; }

  private:
    halvek::Color SessionColor(const QString& name) const { return session_.value(name).toInt(); }

    QHash<QString, QString> session_;
    halvek::StringArray colors_;
    std::u16string codes_;
    std::u16string rights_;
    std::u16string printers_;
    std::u16string settings_;
    std::vector<SelectionSource> selections_;
    std::vector<Reminder> reminders_;
};

}  // namespace frontdesk
