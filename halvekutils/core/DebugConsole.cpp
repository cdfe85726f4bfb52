// SPDX-License-Identifier: MIT
#include <halvekutils/base/CodePage.h>
#include <halvekutils/base/DateText.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/DebugConsole.h>
#include <halvekutils/core/Platform.h>
#include <halvekutils/core/Session.h>
#include <halvekutils/platform/Guard.h>

namespace halvek {

namespace {

constexpr std::size_t kMaxCharacters = 30'000;
constexpr std::u16string_view kLineBreak = u"\r\n";
constexpr std::u16string_view kCleared = u"<<<<<CLEARED>>>>>>";
constexpr std::u16string_view kStopped = u"<<<<<LOG STOPPED>>>>>";
constexpr std::u16string_view kStarted = u"<<<<<LOG STARTED>>>>>";
constexpr char16_t kFault[] = u"Can not display Debug window";

std::filesystem::path FileOf(Machine& machine) {
    return machine.OwnFolder() / "DEBUG.log";
}

}  // namespace

// The console of the process

void Session::ShowInDebug(TextIn text) noexcept {
    Guarded(OnFault::Quiet, kFault, *this, [&] {
        DebugConsole::Current()->ShowInDebug(text);  // making the console can fail as well
    });
}

void Session::ClearDebug() noexcept {
    Guarded(OnFault::Quiet, kFault, *this, [&] { DebugConsole::Current()->ClearDebug(); });
}

std::shared_ptr<DebugConsole> DebugConsole::Current() {
    Session& session = TheSession();
    std::shared_ptr<DebugConsole>& console = session.debugConsole;
    if (console == nullptr) console = std::make_shared<DebugConsole>(session);
    return console;
}

DebugConsole::DebugConsole(Session& session) : session_(session) {}
DebugConsole::~DebugConsole() = default;

bool DebugConsole::MayShow() const {
    const Desktop* const desktop = Desktop::Installed();
    return session_.debugMode && desktop != nullptr && desktop->AllowsModelessWindows();
}

void DebugConsole::ShowInDebug(TextIn strText) noexcept {
    Guarded(OnFault::Quiet, kFault, session_, [&] {
        if (!MayShow()) return;
        const std::u16string line(strText);
        Platform::Installed().Show(shared_from_this());
        if (loggingStopped_) return;
        if (text_.size() > kMaxCharacters) Replace(kCleared);
        if (session_.debugMode) AddLine(line);
        if (allGoesToFile_) SendToFile(line);
    });
}

void DebugConsole::ClearDebug() noexcept {
    Guarded(OnFault::Quiet, kFault, session_, [&] {
        if (!MayShow()) return;
        Platform::Installed().Show(shared_from_this());
        Clear();
    });
}

void DebugConsole::StopLogging(bool stop) {
    loggingStopped_ = stop;
    if (stop) {
        AddLine(kStopped);
    } else {
        ShowInDebug(kStarted);
    }
}

void DebugConsole::SendAllToFile(bool send) {
    allGoesToFile_ = send;
    NotifyChanged();
}

void DebugConsole::KeepOnTop(bool keep) {
    keptOnTop_ = keep;
    NotifyChanged();
}

void DebugConsole::Clear() {
    Replace({});
    NotifyChanged();
}

std::u16string DebugConsole::LogFile() const noexcept {
    return Quietly(std::u16string(), [&] { return FromUtf8(FileOf(*session_.machine).native()); });
}

bool DebugConsole::SaveToFile() noexcept {
    const auto save = [&] {
        const std::u16string stamp = DateTimeText(session_.machine->Now());
        std::u16string saved(stamp);
        saved.append(kLineBreak).append(kLineBreak).append(text_).append(kLineBreak);
        session_.machine->Append(FileOf(*session_.machine), ToCodePage(saved));
        return true;
    };
    return Quietly(false, save);
}

bool DebugConsole::KillLogFile() noexcept {
    return Quietly(false, [&] {
        session_.machine->Delete(FileOf(*session_.machine));
        return true;
    });
}

void DebugConsole::AddLine(std::u16string_view line) {
    text_.reserve(text_.size() + line.size() + kLineBreak.size());  // all of the line or nothing
    text_.append(line).append(kLineBreak);
    NotifyChanged();
}

void DebugConsole::Replace(std::u16string_view text) {
    text_ = std::u16string(text);  // which also frees the memory of a huge line
    ++replacements_;
}

/// A line that arrives while another is being sent to the log, from the log itself or during the
/// message about its failure, is not sent on: that might never end.
void DebugConsole::SendToFile(TextIn line) {
    if (sendingToFile_) return;
    sendingToFile_ = true;
    session_.LogError(line);
    sendingToFile_ = false;
}

void DebugConsole::NotifyChanged() const {
    if (Changed) Changed();
}

}  // namespace halvek
