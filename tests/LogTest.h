// SPDX-License-Identifier: MIT
#pragma once

#include "tests/CleanState.h"

#include <halvekutils/base/CodePage.h>
#include <halvekutils/base/Utf8.h>

namespace halvek {

using Names = std::set<std::string>;

/// A log that is due for its rotation, and the name of its archive on the test's clock.
inline const std::string kFull(1'048'576, 'x');
inline constexpr char kArchive[] = "Error_2024_3_5_9_7_3.log";
inline constexpr std::string_view kStampAndUser = "03/05/24 09:07:03 AM\tnina\t";

inline std::string Line(std::string_view message) {
    return std::string(kStampAndUser).append(message).append("\r\n");
}

/// A session whose log is a file of the test's choice.
struct LogTest : CleanState {
    void Start(const std::filesystem::path& file, bool debugMode = false) {
        utils_->InitUtils(FromUtf8(file.native()), u"Front Desk", u"test", debugMode, u"1");
    }

    /// How often the library beeps while it logs a line.
    int BeepsAt(std::string_view line) {
        const int before = desktop_.Beeps();
        utils_->LogError(FromCodePage(line));
        return desktop_.Beeps() - before;
    }

    const std::filesystem::path log_ = folder_ / "a.log";
};

}  // namespace halvek
