// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/CodePage.h>
#include <halvekutils/base/DateText.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/ComponentState.h>
#include <halvekutils/core/ErrorLog.h>
#include <halvekutils/core/NativePath.h>
#include <halvekutils/platform/Desktop.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace halvek {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kRotationLength = 1'048'576;
constexpr int kLastVisit = 2000;
constexpr char16_t kSeparators[] = u"\\/";

void ResolvePaths(ComponentState& state) {
    if (state.errFileName.empty()) state.errFileName = u"Error.Log";
    const std::size_t separator = state.errFileName.find_last_of(kSeparators);
    if (separator == std::u16string::npos) {
        if (state.logFolder.empty()) {
            state.logFolder = FromUtf8(state.machine->OwnFolder().native());
        }
        state.errFileName = state.logFolder + u'/' + state.errFileName;
    } else if (state.logFolder.empty()) {
        state.logFolder = state.errFileName.substr(0, separator);
    }
}

/// The log file; its path is made anew only when the name has changed.
const fs::path& LogPath(ComponentState& state) {
    ResolvePaths(state);
    if (state.logPathName != state.errFileName) {
        state.logPath = NativePath(state.errFileName);
        state.logPathName = state.errFileName;
    }
    return state.logPath;
}

fs::path ArchivePath(const ComponentState& state) {
    const DateParts date = PartsOf(state.machine->Now());
    const DateParts time = PartsOf(state.machine->Now());
    char name[64];
    std::snprintf(name, sizeof name, "/Error_%d_%u_%u_%d_%d_%d.log", date.year, date.month,
                  date.day, time.hour, time.minute, time.second);
    return NativePath(state.logFolder).concat(name);
}

bool IsArchiveName(const fs::path& file) {
    const std::u16string name = FromUtf8(file.filename().native());
    return EndsFolded(name, u".log") &&
           (StartsFolded(name, u"error_") || StartsFolded(name, u"merror_"));
}

/// True also for two spellings of one path.
bool IsSameFile(const fs::path& left, const fs::path& right) {
    std::error_code ignored;
    return left == right || fs::equivalent(left, right, ignored);
}

/// Deletes the archives of earlier rotations; a failure beeps and ends the clean-up.
void DeleteOldErrorLogs(Machine& machine, const fs::path& folder, const fs::path& live) {
    try {
        int visits = 0;
        machine.VisitFiles(folder, [&](const fs::path& file) {
            ++visits;
            if (IsArchiveName(file) && !IsSameFile(file, live)) machine.Delete(file);
            return visits <= kLastVisit;
        });
    } catch (const std::exception&) {
        Beep();
    }
}

void Rotate(const ComponentState& state, const fs::path& file) {
    const fs::path folder = NativePath(state.logFolder);
    DeleteOldErrorLogs(*state.machine, folder.empty() ? "/" : folder, file);
    state.machine->Rename(file, ArchivePath(state));
}

void PrepareFile(const ComponentState& state, const fs::path& file) {
    Machine& machine = *state.machine;
    const Machine::FileState found = machine.StateOf(file);
    if (!found.exists) return;
    if (!found.writable) machine.MakeWritable(file);
    if (found.length < kRotationLength) return;
    // Of several processes that find the log full one rotates it; the others must not take its
    // archive for an old one, nor the new log for the full one.
    machine.TryExclusive(file, [&] {
        if (machine.StateOf(file).length >= kRotationLength) Rotate(state, file);
    });
}

/// "MM/DD/YY hh:mm:ss AM", the hour on the 12-hour clock.
std::string Stamp(DateTime now) {
    const DateParts parts = PartsOf(now);
    const int hour = parts.hour % 12 == 0 ? 12 : parts.hour % 12;
    const auto twoDigits = [](auto number) {
        return std::string{static_cast<char>('0' + number / 10 % 10),
                           static_cast<char>('0' + number % 10)};
    };
    return twoDigits(parts.month) + '/' + twoDigits(parts.day) + '/' + twoDigits(parts.year) + ' ' +
           twoDigits(hour) + ':' + twoDigits(parts.minute) + ':' + twoDigits(parts.second) +
           (parts.hour < 12 ? " AM" : " PM");
}

std::string LogLine(const ComponentState& state, TextIn message) {
    return Stamp(state.machine->Now()) + '\t' + ToCodePage(state.loginUserName) + '\t' +
           ToCodePage(message) + "\r\n";
}

void ReportFailure(const ComponentState& state, const std::exception& caught) {
    Beep();
    Desktop* const desktop = Desktop::Installed();
    if (!state.debugMode || desktop == nullptr) return;
    desktop->ShowStockMessage(
        u"ERROR in LocalRef.LogError\r\n" + AsRuntimeError(caught).Description(),
        StockIcon::Critical, state.appName);
}

}  // namespace

void WriteErrorLog(ComponentState& state, TextIn message) noexcept {
    try {
        try {
            if (state.loginUserName.empty()) state.loginUserName = state.machine->LoginName();
            const fs::path& file = LogPath(state);
            const std::string line = LogLine(state, message);
            if (state.machine->TryAppend(file, line, kRotationLength)) return;
            PrepareFile(state, file);
            state.machine->Append(file, line);
        } catch (const std::exception& caught) {
            ReportFailure(state, caught);
        }
    } catch (const std::exception&) {
        // The report failed as well; the line is lost, the host goes on.
        return;
    }
}

}  // namespace halvek
