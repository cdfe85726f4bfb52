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

void Desk::BuildCodes() {
    utils_->BuildCodesCollection(data_.Codes());
    loggedByBuild_ = calls_.Add("BuildCodesCollection", Args(data_.Codes()));
}

}  // namespace frontdesk
