// SPDX-License-Identifier: MIT
#include <halvekutils/core/ComponentServices.h>
#include <halvekutils/core/ComponentState.h>
#include <halvekutils/core/DebugConsole.h>
#include <halvekutils/core/ErrorLog.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/core/UtilsPrivate.h>

namespace halvek {

Utils::Utils() : d_(std::make_unique<Private>()) {}
Utils::~Utils() = default;

std::shared_ptr<Utils> Utils::Create() {
    return std::shared_ptr<Utils>(new Utils);
}
std::shared_ptr<Utils> Utils::CurrentUtils() {
    return State().currentUtils;
}

// Start-up. Every argument is copied before the state changes: it may be a view of that state.

void Utils::InitUtils(TextIn ErrFileName, TextIn AppName, TextIn AppType, bool DebugMode,
                      TextIn ExeFileStamp) {
    std::u16string errFileName(ErrFileName);
    std::u16string appName(AppName);
    std::u16string appType(AppType);
    std::u16string exeFileStamp(ExeFileStamp);
    Services& services = ComponentServices();
    ComponentState& state = State();
    state.debugMode = DebugMode;
    state.appName = std::move(appName);
    state.appType = std::move(appType);
    state.errFileName = std::move(errFileName);
    state.exeFileStamp = std::move(exeFileStamp);
    const auto before = std::exchange(state.currentUtils, shared_from_this());
    Services::Install(&services);
}

void Utils::InitPrefs(const StringArray& ColorArray, Color FormSkinColor, Color FormTextColor,
                      Color FormTopColor, Color RequiredFieldBackColor) {
    ComponentState& state = State();
    state.colorArray = StringArray(ColorArray);
    state.formSkinColor = FormSkinColor;
    state.formTextColor = FormTextColor;
    state.formTopColor = FormTopColor;
    state.requiredFieldBackColor = RequiredFieldBackColor;
}

void Utils::InitOtherSettings(Color HighlightBackColor, Color HighlightForeColor,
                              TextIn CodeDelimiter, double ColumnAdjustValue,
                              std::int32_t ScrollBarWidth) {
    ComponentState& state = State();
    state.codeDelimiter = std::u16string(CodeDelimiter);
    state.highlightBackColor = HighlightBackColor;
    state.highlightForeColor = HighlightForeColor;
    state.columnAdjustValue = ColumnAdjustValue;
    state.scrollBarWidth = ScrollBarWidth;
}

// Values of the component state

std::u16string Utils::AppName() const {
    return State().appName;
}
std::u16string Utils::AppType() const {
    return State().appType;
}
bool Utils::DBG() const {
    return State().debugMode;
}
std::u16string Utils::ExeFileStamp() const {
    return State().exeFileStamp;
}
Color Utils::FormSkinColor() const {
    return State().formSkinColor;
}
Color Utils::FormTextColor() const {
    return State().formTextColor;
}
Color Utils::FormTopColor() const {
    return State().formTopColor;
}
Color Utils::RequiredFieldBackColor() const {
    return State().requiredFieldBackColor;
}
std::u16string Utils::CodeDelimiter() const {
    return State().codeDelimiter;
}
std::int32_t Utils::ScrollBarWidth() const {
    return State().scrollBarWidth;
}

float Utils::ColumnAdjustValue() const {
    return static_cast<float>(State().columnAdjustValue);
}

StringArray Utils::ColorArray() const {
    const StringArray& colors = State().colorArray;
    colors.LBound();  // throws before InitPrefs
    return colors;
}

std::u16string Utils::SpecialMode() const {
    return State().specialMode;
}
void Utils::SpecialMode(TextIn value) {
    State().specialMode = std::u16string(value);
}

std::u16string Utils::EntityListForUser() const {
    return State().entityListForUser;
}
void Utils::EntityListForUser(TextIn value) {
    State().entityListForUser = std::u16string(value);
}

std::u16string Utils::RemoteSettings() const {
    return State().remoteSettings;
}
void Utils::RemoteSettings(TextIn value) {
    State().remoteSettings = std::u16string(value);
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

// Error log and debug console

void Utils::LogError(TextIn strError) noexcept {
    WriteErrorLog(State(), strError);
}

void Utils::ShowInDebug(TextIn strText) {
    ComponentServices().ShowInDebug(strText);
}
void Utils::ClearDebug() {
    DebugConsole::Current()->ClearDebug();
}

}  // namespace halvek
