// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/platform/Machine.h>

namespace halvek {

/// The Linux workstation that the process runs on.
///
/// Log files can hold patient data: they are created with mode 0600, opened without following a
/// link, and anything but a regular file is refused. In a folder that others can write, so is a
/// file of another owner or with a second name: somebody may have put it there. The component's own
/// folder is `.local/state/HalvekUtils` in the home directory of the effective user, with mode
/// 0700.
class LocalMachine : public Machine {
  public:
    LocalMachine();
    ~LocalMachine() override;

    DateTime Now() override;
    std::u16string LoginName() override;
    std::filesystem::path OwnFolder() override;
    FileState StateOf(const std::filesystem::path& file) override;
    void MakeWritable(const std::filesystem::path& file) override;
    void Rename(const std::filesystem::path& from, const std::filesystem::path& to) override;
    void Delete(const std::filesystem::path& file) override;
    void VisitFiles(const std::filesystem::path& folder,
                    const std::function<bool(const std::filesystem::path&)>& visit) override;
    void Append(const std::filesystem::path& file, std::string_view bytes) override;
    bool TryAppend(const std::filesystem::path& file, std::string_view bytes,
                   std::uintmax_t length) override;
    bool TryExclusive(const std::filesystem::path& file,
                      const std::function<void()>& action) override;
};

}  // namespace halvek
