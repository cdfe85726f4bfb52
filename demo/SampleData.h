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

/// A list that the user chooses codes from.
struct SelectionSource {
    QString name;
    QString values;  ///< in the server's format
};

/// What a practice's server would send at start-up, read from the files of a data folder.
class SampleData {
  public:
    /// Throws std::runtime_error, naming the file, when one cannot be read.
    explicit SampleData(const QString& folder);

    /// The data folder beside an installed program, or that of the source tree.
    static QString Folder();

    Identity StartIdentity() const;
    Preferences StartPreferences() const;
    OtherSettings StartOtherSettings() const;

    /// A value of session.txt as it stands there; empty when it is missing.
    QString SessionValue(const QString& name) const { return session_.value(name); }

    /// codes.txt: the code tables in the server's format.
    const std::u16string& Codes() const { return codes_; }

    /// The lists of selections.txt, in their order there.
    const std::vector<SelectionSource>& Selections() const { return selections_; }

  private:
    halvek::Color SessionColor(const QString& name) const { return session_.value(name).toInt(); }

    QHash<QString, QString> session_;
    halvek::StringArray colors_;
    std::u16string codes_;
    std::vector<SelectionSource> selections_;
};

}  // namespace frontdesk
