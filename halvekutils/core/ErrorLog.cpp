// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/CodePage.h>
#include <halvekutils/base/DateText.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/Session.h>
#include <halvekutils/platform/Beep.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/platform/LogEcho.h>
#include <halvekutils/platform/NativePath.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <mutex>
#include <string>
#include <string_view>
#include <system_error>

namespace halvek {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kRotationLength = 1'048'576;
constexpr int kLastVisit = 2000;
constexpr char16_t kSeparators[] = u"\\/";

void ResolvePaths(Session& session) {
    if (session.errFileName.empty()) session.errFileName = u"Error.Log";
    const std::size_t separator = session.errFileName.find_last_of(kSeparators);
    if (separator == std::u16string::npos) {
        if (session.logFolder.empty()) {
            session.logFolder = FromUtf8(session.machine->OwnFolder().native());
        }
        session.errFileName = session.logFolder + u'/' + session.errFileName;
    } else if (session.logFolder.empty()) {
        session.logFolder = session.errFileName.substr(0, separator);
    }
}

/// The log file; its path is made again only when the name has changed.
const fs::path& LogPath(Session& session) {
    ResolvePaths(session);
    if (session.logPathName != session.errFileName) {
        session.logPath = NativePath(session.errFileName);
        session.logPathName = session.errFileName;
    }
    return session.logPath;
}

fs::path ArchivePath(const Session& session) {
    const DateParts date = PartsOf(session.machine->Now());
    const DateParts time = PartsOf(session.machine->Now());
    char name[64];
    std::snprintf(name, sizeof name, "/Error_%d_%u_%u_%d_%d_%d.log", date.year, date.month,
                  date.day, time.hour, time.minute, time.second);
    return NativePath(session.logFolder).concat(name);
}

bool IsArchiveName(const fs::path& file) {
    std::string name = file.filename().native();
    for (char& character : name) {
        if (character >= 'A' && character <= 'Z') character = static_cast<char>(character + 0x20);
    }
    return name.ends_with(".log") && (name.starts_with("error_") || name.starts_with("merror_"));
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

void Rotate(const Session& session, const fs::path& file) {
    const fs::path folder = NativePath(session.logFolder);
    DeleteOldErrorLogs(*session.machine, folder.empty() ? "/" : folder, file);
    session.machine->Rename(file, ArchivePath(session));
}

void PrepareFile(const Session& session, const fs::path& file) {
    Machine& machine = *session.machine;
    const Machine::FileState found = machine.StateOf(file);
    if (!found.exists) return;
    if (!found.writable) machine.MakeWritable(file);
    if (found.length < kRotationLength) return;
    // Of several processes that find the log full, one rotates it. The others must not take its
    // archive for an old one, nor the new log for the full one.
    machine.TryExclusive(file, [&] {
        if (machine.StateOf(file).length >= kRotationLength) Rotate(session, file);
    });
}

/// "MM/DD/YY hh:mm:ss AM", the hour on the 12-hour clock.
std::string Stamp(DateTime now) {
    const DateParts parts = PartsOf(now);
    std::string stamp = parts.hour < 12 ? "../../.. ..:..:.. AM" : "../../.. ..:..:.. PM";
    const int numbers[] = {static_cast<int>(parts.month),
                           static_cast<int>(parts.day),
                           parts.year,
                           (parts.hour + 11) % 12 + 1,
                           parts.minute,
                           parts.second};
    std::size_t at = 0;
    for (const int number : numbers) {
        stamp[at] = static_cast<char>('0' + number / 10 % 10);
        stamp[at + 1] = static_cast<char>('0' + number % 10);
        at += 3;
    }
    return stamp;
}

std::string LogLine(const Session& session, TextIn message) {
    std::string line = Stamp(session.machine->Now());
    line.append("\t").append(ToCodePage(session.loginUserName));
    line.append("\t").append(ToCodePage(message)).append("\r\n");
    return line;
}

void ReportFailure(const Session& session, const std::exception& caught) {
    const std::u16string fault = AsRuntimeError(caught).Description();
    EchoLogLine(u"the error log cannot be written: " + fault, session.debugMode);
    Beep();
    Desktop* const desktop = Desktop::Installed();
    if (!session.debugMode || desktop == nullptr || !Desktop::IsOnItsThread()) return;
    desktop->ShowStockMessage(u"ERROR in LocalRef.LogError\r\n" + fault, StockIcon::Critical,
                              session.appName);
}

/// For the faults of calls that are refused because they come from another thread. Recursive,
/// because a host's machine may log too.
std::recursive_mutex& LogMutex() {
    static auto* const mutex = new std::recursive_mutex;
    return *mutex;
}

void WriteLine(Session& session, TextIn message) {
    const std::lock_guard lock(LogMutex());
    Machine& machine = *session.machine;
    if (session.loginUserName.empty()) session.loginUserName = machine.LoginName();
    const fs::path& file = LogPath(session);
    const std::string line = LogLine(session, message);
    if (machine.TryAppend(file, line, kRotationLength)) return;
    PrepareFile(session, file);
    machine.Append(file, line);
}

}  // namespace

void Session::LogError(TextIn message) noexcept {
    try {
        try {
            EchoLogLine(message, debugMode);
            WriteLine(*this, message);
        } catch (const std::exception& caught) {
            ReportFailure(*this, caught);
        }
    } catch (const std::exception&) {
        // The report failed as well; the line is lost, the host goes on.
        return;
    }
}

}  // namespace halvek
