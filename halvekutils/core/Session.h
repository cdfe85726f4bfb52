// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>
#include <halvekutils/base/Internal.h>
#include <halvekutils/base/StringArray.h>
#include <halvekutils/platform/Machine.h>
#include <halvekutils/platform/Services.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

namespace halvek {

class CodesCollection;
class DebugConsole;
class PrintersCollection;
class SecurityItemsCollection;
class Utils;

/// The session: the values that all Utils objects and dialogs of the process share, and the error
/// log and debug console that they write to. Lower rooms get it as Services.
///
/// Values are empty, 0 or false until the start-up members of Utils fill them. It is used on the
/// host's user-interface thread only, and never destroyed, so that a host's late destructors can
/// still log. This header is not installed.
struct Session final : public Services {
    bool debugMode = false;
    std::u16string appName;
    std::u16string appType;
    std::u16string errFileName;  ///< rewritten into a full path by the first log line
    std::u16string logPathName;  ///< the errFileName that logPath was made from
    std::filesystem::path logPath;
    std::u16string exeFileStamp;
    std::u16string specialMode;
    StringArray colorArray;
    Color formSkinColor = 0;
    Color formTextColor = 0;
    Color formTopColor = 0;
    Color requiredFieldBackColor = 0;
    Color highlightBackColor = 0;
    Color highlightForeColor = 0;
    std::u16string codeDelimiter;
    double columnAdjustValue = 0;
    std::int32_t scrollBarWidth = 0;
    std::u16string entityListForUser;
    std::u16string remoteSettings;
    std::u16string helpFilePath;
    std::shared_ptr<Utils> currentUtils;
    std::shared_ptr<DebugConsole> debugConsole;
    std::u16string loginUserName;
    std::u16string logFolder;
    std::shared_ptr<CodesCollection> codes;
    std::shared_ptr<SecurityItemsCollection> securityItems;
    std::shared_ptr<PrintersCollection> printers;
    Machine* machine = nullptr;  ///< never null: the local machine unless another is installed

    Session();
    ~Session() override;
    Session(Session&&) noexcept;
    Session& operator=(Session&&) noexcept;

    /// Appends one line to the error log, rotating the log first when it has reached one mebibyte.
    ///
    /// The line is the local date and time, the login name and the message, separated by tabs and
    /// ended by CR LF, in the bytes of Windows-1252. A failure beeps, shows a message in debug mode
    /// and loses only this line.
    void LogError(TextIn message) noexcept override;

    /// Adds a line to the debug console, which the first line creates. A fault is logged.
    void ShowInDebug(TextIn text) noexcept override;
    /// Empties the debug console.
    void ClearDebug() noexcept;

    bool DebugMode() const override { return debugMode; }
    std::u16string AppName() const override { return appName; }
    std::u16string SpecialMode() const override { return specialMode; }
    Color FormSkinColor() const override { return formSkinColor; }
    Color FormTextColor() const override { return formTextColor; }
};

/// The one session of the process. It is Services::Current() from the first InitUtils on.
HALVEK_INTERNAL Session& TheSession();

}  // namespace halvek
