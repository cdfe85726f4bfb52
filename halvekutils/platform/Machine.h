// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/DateText.h>
#include <halvekutils/base/Export.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace halvek {

/// The workstation as the library sees it: its clock, its user, its folders and the operations on
/// log files. A host's tests supply their own.
///
/// File operations throw a RuntimeError whose description names the file.
class HALVEK_EXPORT Machine {
  public:
    virtual ~Machine();

    /// The local wall clock in whole seconds.
    virtual DateTime Now() = 0;

    /// Lets time pass without handling any event.
    virtual void Sleep(std::chrono::milliseconds time);

    /// The login name of the user the process acts for; empty when it cannot be found.
    virtual std::u16string LoginName() = 0;

    /// The component's own folder, for logs that the host gave no folder. It is created by the
    /// first append to a file in it, and no other folder ever is.
    virtual std::filesystem::path OwnFolder() = 0;

    /// What there is to know of a file before a line is written.
    struct FileState {
        bool exists = false;        ///< it is there, as a file or anything else
        bool writable = false;      ///< its owner may write
        std::uintmax_t length = 0;  ///< in bytes
    };
    /// The state of a file; a missing one is no fault.
    virtual FileState StateOf(const std::filesystem::path& file) = 0;

    /// Adds write permission for the owner, no more.
    virtual void MakeWritable(const std::filesystem::path& file) = 0;

    /// Renames a file. An existing file of the new name is a fault and stays as it is.
    virtual void Rename(const std::filesystem::path& from, const std::filesystem::path& to) = 0;

    /// Deletes a file, a read-only one too.
    virtual void Delete(const std::filesystem::path& file) = 0;

    /// Calls `visit` with each file of a folder, not with its sub-folders, in the file system's
    /// order, until it returns false.
    virtual void VisitFiles(const std::filesystem::path& folder,
                            const std::function<bool(const std::filesystem::path&)>& visit) = 0;

    /// Adds bytes at the end of a regular file in one write, creating the file when it is missing.
    virtual void Append(const std::filesystem::path& file, std::string_view bytes) = 0;

    /// Append, when there is nothing to be done before it: false, and nothing is written, unless
    /// the file is there, regular, writable for its owner and shorter than `length` bytes.
    virtual bool TryAppend(const std::filesystem::path& file, std::string_view bytes,
                           std::uintmax_t length) = 0;

    /// Runs `action` unless another process is just now running one on the same file: false then,
    /// and nothing is run. Never waits.
    virtual bool TryExclusive(const std::filesystem::path& file,
                              const std::function<void()>& action);

  protected:
    Machine() = default;
    Machine(const Machine&) = default;
    Machine& operator=(const Machine&) = default;
};

}  // namespace halvek
