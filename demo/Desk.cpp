// SPDX-License-Identifier: MIT
#include "Desk.h"

#include "Shown.h"

#include <utility>

namespace frontdesk {

Desk::Desk(SampleData data, const QString& logFolder)
    : data_(std::move(data)), errorLog_(logFolder + '/' + data_.SessionValue("ErrFileName")) {
    Identity identity = data_.StartIdentity();
    identity.errFileName = errorLog_.Path();
    InitUtils(identity);
    InitPrefs(data_.StartPreferences());
    InitOtherSettings(data_.StartOtherSettings());
    utils_->SpecialMode(data_.SessionValue("SpecialMode"));
    utils_->EntityListForUser(data_.SessionValue("EntityListForUser"));
    utils_->RemoteSettings(data_.SessionValue("RemoteSettings"));
    utils_->InitHelp(SampleData::HelpFile());
    calls_.Add("InitHelp", Args(SampleData::HelpFile()));
    BuildCodes();
}

void Desk::InitUtils(const Identity& identity) {
    utils_->InitUtils(identity.errFileName, identity.appName, identity.appType, identity.debugMode,
                      identity.exeFileStamp);
    errorLog_.Follow(identity.errFileName);
    calls_.Add("InitUtils", Args(identity.errFileName, identity.appName, identity.appType,
                                 identity.debugMode, identity.exeFileStamp));
}

void Desk::InitPrefs(const Preferences& preferences) {
    utils_->InitPrefs(preferences.colors, preferences.formSkin, preferences.formText,
                      preferences.formTop, preferences.requiredFieldBack);
    const QString colors =
        QString("%1 to %2").arg(preferences.colors.LBound()).arg(preferences.colors.UBound());
    calls_.Add("InitPrefs", QStringList("colors " + colors) +
                                Args(preferences.formSkin, preferences.formText,
                                     preferences.formTop, preferences.requiredFieldBack));
}

void Desk::InitOtherSettings(const OtherSettings& settings) {
    utils_->InitOtherSettings(settings.highlightBack, settings.highlightFore,
                              settings.codeDelimiter, settings.columnAdjust,
                              settings.scrollBarWidth);
    calls_.Add("InitOtherSettings",
               Args(settings.highlightBack, settings.highlightFore, settings.codeDelimiter,
                    settings.columnAdjust, settings.scrollBarWidth));
}

QStringList Desk::ShowHelp(int contextId, const QString& file) {
    const bool found = utils_->ShowHelp(0, contextId, file);
    return calls_.Add("ShowHelp", Args(0, contextId, file), Shown(found));
}

QStringList Desk::ShowHelpByTopic(const QString& topic, const QString& file) {
    const bool found = utils_->ShowHelpByTopic(0, topic, file);
    return calls_.Add("ShowHelpByTopic", Args(0, topic, file), Shown(found));
}

void Desk::BuildCodes() {
    utils_->BuildCodesCollection(data_.Codes());
    loggedByBuild_ = calls_.Add("BuildCodesCollection", Args(data_.Codes()));
}

}  // namespace frontdesk
