// SPDX-License-Identifier: MIT
#include <halvekutils/core/Session.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/core/WayIn.h>
#include <halvekutils/text/ServerDates.h>

#include <chrono>
#include <optional>
#include <utility>

namespace halvek {

Utils::Utils() : d_(std::make_unique<Private>()) {}
Utils::~Utils() = default;

std::shared_ptr<Utils> Utils::Create() {
    return std::shared_ptr<Utils>(new Utils);
}
std::shared_ptr<Utils> Utils::CurrentUtils() {
    return TheSession().currentUtils;
}

// Start-up. Every argument is copied before the session changes, since it may be a view into it.

void Utils::InitUtils(TextIn ErrFileName, TextIn AppName, TextIn AppType, bool DebugMode,
                      TextIn ExeFileStamp) {
    std::u16string errFileName(ErrFileName);
    std::u16string appName(AppName);
    std::u16string appType(AppType);
    std::u16string exeFileStamp(ExeFileStamp);
    Session& session = TheSession();
    session.debugMode = DebugMode;
    session.appName = std::move(appName);
    session.appType = std::move(appType);
    session.errFileName = std::move(errFileName);
    session.exeFileStamp = std::move(exeFileStamp);
    const auto before = std::exchange(session.currentUtils, shared_from_this());
    Services::Install(&session);
}

void Utils::InitPrefs(const StringArray& ColorArray, Color FormSkinColor, Color FormTextColor,
                      Color FormTopColor, Color RequiredFieldBackColor) {
    Session& session = TheSession();
    session.colorArray = StringArray(ColorArray);
    session.formSkinColor = FormSkinColor;
    session.formTextColor = FormTextColor;
    session.formTopColor = FormTopColor;
    session.requiredFieldBackColor = RequiredFieldBackColor;
}

void Utils::InitOtherSettings(Color HighlightBackColor, Color HighlightForeColor,
                              TextIn CodeDelimiter, double ColumnAdjustValue,
                              std::int32_t ScrollBarWidth) {
    Session& session = TheSession();
    session.codeDelimiter = std::u16string(CodeDelimiter);
    session.highlightBackColor = HighlightBackColor;
    session.highlightForeColor = HighlightForeColor;
    session.columnAdjustValue = ColumnAdjustValue;
    session.scrollBarWidth = ScrollBarWidth;
}

// Values of the session

std::u16string Utils::AppName() const {
    return TheSession().appName;
}
std::u16string Utils::AppType() const {
    return TheSession().appType;
}
bool Utils::DBG() const {
    return TheSession().debugMode;
}
std::u16string Utils::ExeFileStamp() const {
    return TheSession().exeFileStamp;
}
Color Utils::FormSkinColor() const {
    return TheSession().formSkinColor;
}
Color Utils::FormTextColor() const {
    return TheSession().formTextColor;
}
Color Utils::FormTopColor() const {
    return TheSession().formTopColor;
}
Color Utils::RequiredFieldBackColor() const {
    return TheSession().requiredFieldBackColor;
}
std::u16string Utils::CodeDelimiter() const {
    return TheSession().codeDelimiter;
}
std::int32_t Utils::ScrollBarWidth() const {
    return TheSession().scrollBarWidth;
}

float Utils::ColumnAdjustValue() const {
    return static_cast<float>(TheSession().columnAdjustValue);
}

StringArray Utils::ColorArray() const {
    const StringArray& colors = TheSession().colorArray;
    colors.LBound();  // throws before InitPrefs
    return colors;
}

std::u16string Utils::SpecialMode() const {
    return TheSession().specialMode;
}
void Utils::SpecialMode(TextIn value) {
    TheSession().specialMode = std::u16string(value);
}

std::u16string Utils::EntityListForUser() const {
    return TheSession().entityListForUser;
}
void Utils::EntityListForUser(TextIn value) {
    TheSession().entityListForUser = std::u16string(value);
}

std::u16string Utils::RemoteSettings() const {
    return TheSession().remoteSettings;
}
void Utils::RemoteSettings(TextIn value) {
    TheSession().remoteSettings = std::u16string(value);
}

// Values of this object

std::u16string Utils::AppDataFolderUser() const {
    return d_->appDataFolderUser;
}
void Utils::AppDataFolderUser(TextIn value) {
    d_->appDataFolderUser = std::u16string(value);
}

std::u16string Utils::AppDataFolderCommon() const {
    return d_->appDataFolderCommon;
}
void Utils::AppDataFolderCommon(TextIn value) {
    d_->appDataFolderCommon = std::u16string(value);
}

// Time

void Utils::InitServerTime(TextIn TimeFromServer) {
    const std::optional<std::int32_t> offset =
        ServerClockOffset(TimeFromServer, *TheSession().machine);
    if (!offset) return ShowInDebug(u"InitServerTime: not a date: " + TimeFromServer.Str());
    d_->serverClockOffset = *offset;
}

DateTime Utils::ServerTime() {
    return Entered(*this, OnFault::Quiet, u"Error in Utils.ServerTime ", DateTime(), [&] {
        return TheSession().machine->Now() + std::chrono::seconds(d_->serverClockOffset);
    });
}

void Utils::Sleep(std::int32_t MilliSeconds) {
    if (MilliSeconds <= 0) return;
    EnteredVoid(*this, OnFault::Beep, u"Error in Utils.Sleep ",
                [&] { TheSession().machine->Sleep(std::chrono::milliseconds(MilliSeconds)); });
}

// Error log and debug console

void Utils::LogError(TextIn strError) noexcept {
    TheSession().LogError(strError);
}

void Utils::ShowInDebug(TextIn strText) {
    TheSession().ShowInDebug(strText);
}
void Utils::ClearDebug() {
    TheSession().ClearDebug();
}

}  // namespace halvek
