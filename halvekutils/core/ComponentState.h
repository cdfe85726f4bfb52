// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>
#include <halvekutils/base/StringArray.h>
#include <halvekutils/platform/Machine.h>

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

/// The values that all Utils objects and dialogs of the process share.
///
/// Empty, 0 or false until the start-up members of Utils fill them. Used on the host's
/// user-interface thread only, and never destroyed, so that a host's own late destructors can
/// still log.
struct HALVEK_EXPORT ComponentState {
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

    ComponentState();
    ~ComponentState();
    ComponentState(ComponentState&&) noexcept;
    ComponentState& operator=(ComponentState&&) noexcept;
};

/// The one component state of the process.
HALVEK_EXPORT ComponentState& State();

}  // namespace halvek
