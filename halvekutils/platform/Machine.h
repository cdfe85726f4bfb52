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

    /// Waits without handling any event.
    virtual void Sleep(std::chrono::milliseconds time);

    /// The login name of the user for whom the process acts; empty when it cannot be found.
    virtual std::u16string LoginName() = 0;

    /// The component's own folder, for logs without a folder of the host's. The first append to a
    /// file in it creates it; no other folder is ever created.
    virtual std::filesystem::path OwnFolder() = 0;

    /// What the log needs to know about a file before it writes a line.
    struct FileState {
        bool exists = false;        ///< it is there, as a file or anything else
        bool writable = false;      ///< its owner may write
        std::uintmax_t length = 0;  ///< in bytes
    };
    /// The state of a file; a missing file is not a fault.
    virtual FileState StateOf(const std::filesystem::path& file) = 0;

    /// Adds write permission for the owner, and nothing more.
    virtual void MakeWritable(const std::filesystem::path& file) = 0;

    /// Renames a file. If a file of the new name exists, that is a fault and the file stays as it
    /// is.
    virtual void Rename(const std::filesystem::path& from, const std::filesystem::path& to) = 0;

    /// Deletes a file, a read-only one too.
    virtual void Delete(const std::filesystem::path& file) = 0;

    /// Calls `visit` with each file of a folder, not with its sub-folders, in the file system's
    /// order, until it returns false.
    virtual void VisitFiles(const std::filesystem::path& folder,
                            const std::function<bool(const std::filesystem::path&)>& visit) = 0;

    /// Adds bytes at the end of a regular file in one write, creating the file when it is missing.
    virtual void Append(const std::filesystem::path& file, std::string_view bytes) = 0;

    /// Append, if nothing has to be done first: writes nothing and returns false unless the file
    /// exists, is regular, writable for its owner and shorter than `length` bytes.
    virtual bool TryAppend(const std::filesystem::path& file, std::string_view bytes,
                           std::uintmax_t length) = 0;

    /// Runs `action`, unless another process is running one on the same file at that moment: then
    /// returns false. Never waits.
    virtual bool TryExclusive(const std::filesystem::path& file,
                              const std::function<void()>& action);

  protected:
    Machine() = default;
    Machine(const Machine&) = default;
    Machine& operator=(const Machine&) = default;
};

}  // namespace halvek
