// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace halvek {

struct Session;

/// The debug console without its window: its text, its switches and its file.
///
/// A process has one, made for the first line. A window shows it and forwards its events.
class HALVEK_EXPORT DebugConsole : public std::enable_shared_from_this<DebugConsole> {
  public:
    /// The console of the process. Throws when there is no memory for the first.
    static std::shared_ptr<DebugConsole> Current();

    /// @param session  whose debug mode, log and machine are used; it outlives the console
    explicit DebugConsole(Session& session);
    ~DebugConsole();
    DebugConsole(const DebugConsole&) = delete;
    DebugConsole& operator=(const DebugConsole&) = delete;

    // What the program writes

    /// Adds a line and shows the console. Dropped outside debug mode, where the desktop allows no
    /// modeless windows, and while logging is stopped. A fault is logged with "Can not display
    /// Debug window".
    void ShowInDebug(TextIn strText) noexcept;

    /// Shows the console and empties it; does nothing outside debug mode.
    void ClearDebug() noexcept;

    // What the window shows

    /// The lines, each ended by CR LF.
    const std::u16string& Text() const { return text_; }

    /// Changes whenever the text changes in any way but by growing at its end.
    std::uint64_t Replacements() const { return replacements_; }

    /// Whether new lines are dropped.
    bool LoggingStopped() const { return loggingStopped_; }
    /// Whether every new line goes to the error log as well.
    bool AllGoesToFile() const { return allGoesToFile_; }
    /// Whether the window stays above all others.
    bool KeptOnTop() const { return keptOnTop_; }

    /// The path of DEBUG.log; empty when it cannot be told.
    std::u16string LogFile() const noexcept;

    /// Called after every change.
    std::function<void()> Changed;

    // What the user does

    /// chkNoLog: new lines are dropped while logging is stopped.
    void StopLogging(bool stop);
    /// chkToFile: every new line goes to the error log as well.
    void SendAllToFile(bool send);
    /// Check1: the window stays above all others.
    void KeepOnTop(bool keep);
    /// cmdClear and F7: empties the text.
    void Clear();
    /// Command1: appends the text to DEBUG.log in the component's own folder, in Windows-1252.
    /// Returns false on a failure, which is not reported further.
    bool SaveToFile() noexcept;
    /// Command2: deletes that file. Returns false on a failure, which is not reported further.
    bool KillLogFile() noexcept;

  private:
    bool MayShow() const;
    void AddLine(std::u16string_view line);
    void Replace(std::u16string_view text);
    void SendToFile(TextIn line);
    void NotifyChanged() const;

    Session& session_;
    std::u16string text_;
    std::uint64_t replacements_ = 0;
    bool loggingStopped_ = false;
    bool allGoesToFile_ = false;
    bool keptOnTop_ = false;
    bool sendingToFile_ = false;
};

}  // namespace halvek
