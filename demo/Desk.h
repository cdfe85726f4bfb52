// SPDX-License-Identifier: MIT
#pragma once

#include "CallLog.h"
#include "ErrorLogFile.h"
#include "SampleData.h"

#include <halvekutils/core/Utils.h>

#include <QString>

#include <memory>

namespace frontdesk {

/// The client without its windows: the library object, the practice's data, the error log and the
/// list of calls, which all pages share.
class Desk {
  public:
    /// Starts the session with the data's values, as a client does when its user logs in.
    Desk(SampleData data, const QString& logFolder);

    halvek::Utils& Library() { return *utils_; }
    const SampleData& Data() const { return data_; }
    const ErrorLogFile& ErrorLog() const { return errorLog_; }
    CallLog& Calls() { return calls_; }

    // The three start-up calls, noted in the list of calls.

    void InitUtils(const Identity& identity);
    void InitPrefs(const Preferences& preferences);
    void InitOtherSettings(const OtherSettings& settings);

    // The help members, noted as well; an empty file stands for the client's own. They return what
    // they logged.

    QStringList ShowHelp(int contextId, const QString& file = {});
    QStringList ShowHelpByTopic(const QString& topic, const QString& file = {});

    /// Builds the codes collection from the server's data.
    void BuildCodes();
    /// What the last build wrote to the error log.
    const QStringList& LoggedByBuild() const { return loggedByBuild_; }

  private:
    SampleData data_;
    ErrorLogFile errorLog_;
    CallLog calls_{errorLog_};
    QStringList loggedByBuild_;
    std::shared_ptr<halvek::Utils> utils_ = halvek::Utils::Create();
};

}  // namespace frontdesk
