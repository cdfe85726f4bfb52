// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/SystemFault.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/system/LocalMachine.h>

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

namespace halvek {

namespace fs = std::filesystem;

namespace {

std::error_code LastError() {
    // A user's full quota counts as a full disk.
    return {errno == EDQUOT ? ENOSPC : errno, std::generic_category()};
}

[[noreturn]] void ThrowLastError(const fs::path& file) {
    throw SystemFault(LastError(), file);
}

/// An open file, closed at the end of its scope.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }

    int Number() const { return number_; }

    /// Closes the file now, since a full disk on the network may only report itself here.
    bool Close() { return ::close(std::exchange(number_, -1)) == 0; }

  private:
    int number_;
};

struct Account {
    std::u16string name;
    fs::path home;
};

/// The effective user's entry in the password database.
std::optional<Account> EffectiveAccount() {
    passwd entry{};
    passwd* found = nullptr;
    std::vector<char> texts(4096);
    int error = 0;
    while ((error = ::getpwuid_r(::geteuid(), &entry, texts.data(), texts.size(), &found)) ==
           ERANGE) {
        texts.resize(texts.size() * 2);
    }
    if (error != 0 || found == nullptr) return std::nullopt;
    return Account{FromUtf8(entry.pw_name), entry.pw_dir};
}

// Only regular files hold logs. Without O_NONBLOCK, open would wait for the other end of a pipe
// that somebody has put in the log's place.
constexpr int kAppendFlags = O_WRONLY | O_APPEND | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;

int OpenForAppend(const fs::path& file) {
    return ::open(file.c_str(), kAppendFlags | O_CREAT, S_IRUSR | S_IWUSR);
}

struct stat StatusOf(const Descriptor& open, const fs::path& file) {
    struct stat status {};
    if (::fstat(open.Number(), &status) != 0) ThrowLastError(file);
    return status;
}

/// Whether users other than this process's and the superuser may put files into a folder.
bool OthersMayWrite(const fs::path& folder) {
    struct stat status {};
    if (::stat(folder.empty() ? "." : folder.c_str(), &status) != 0) ThrowLastError(folder);
    const bool trusted = status.st_uid == 0 || status.st_uid == ::geteuid();
    return !trusted || (status.st_mode & (S_IWGRP | S_IWOTH)) != 0;
}

/// Whether somebody else may have put this file in the log's place, to read what is logged or to
/// have it written into another file. Only a folder that others can write lets them.
bool MayBePlanted(const struct stat& status, const fs::path& file) {
    const bool foreign = status.st_uid != ::geteuid() || status.st_nlink > 1;
    return foreign && OthersMayWrite(file.parent_path());
}

void RequireOwnLog(const Descriptor& open, const fs::path& file) {
    const struct stat status = StatusOf(open, file);
    if (!S_ISREG(status.st_mode) || MayBePlanted(status, file)) {
        throw RuntimeError(Fault::PermissionDenied, FromUtf8(file.native()));
    }
}

/// Removes the start of a line whose end found no room, unless another process has written after
/// it.
void UndoPartialWrite(const Descriptor& open, std::size_t written) {
    const off_t end = ::lseek(open.Number(), 0, SEEK_CUR);
    struct stat status {};
    if (::fstat(open.Number(), &status) != 0 || status.st_size != end) return;
    // If even this fails, the line stays torn.
    [[maybe_unused]] const int ignored =
        ::ftruncate(open.Number(), end - static_cast<off_t>(written));
}

/// Writes the bytes, all of them or none, and closes the file.
void WriteAll(Descriptor& open, std::string_view bytes, const fs::path& file) {
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t written = ::write(open.Number(), bytes.data() + done, bytes.size() - done);
        if (written < 0) {
            const std::error_code error = LastError();
            if (done > 0) UndoPartialWrite(open, done);
            throw SystemFault(error, file);
        }
        done += static_cast<std::size_t>(written);
    }
    if (!open.Close()) ThrowLastError(file);
}

void CreatePrivateFolder(const fs::path& folder) {
    if (folder.empty() || ::mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST) return;
    if (errno != ENOENT || folder == folder.parent_path()) ThrowLastError(folder);
    CreatePrivateFolder(folder.parent_path());
    if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) ThrowLastError(folder);
}

}  // namespace

LocalMachine::LocalMachine() = default;
LocalMachine::~LocalMachine() = default;

DateTime LocalMachine::Now() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return DateTime(std::chrono::seconds(now + local.tm_gmtoff));
}

std::u16string LocalMachine::LoginName() {
    const auto account = EffectiveAccount();
    return account ? account->name : std::u16string();
}

fs::path LocalMachine::OwnFolder() {
    const auto account = EffectiveAccount();
    if (!account) throw RuntimeError(Fault::PathNotFound, u"home directory");
    return account->home / ".local/state/HalvekUtils";
}

Machine::FileState LocalMachine::StateOf(const fs::path& file) {
    struct stat status {};
    if (::lstat(file.c_str(), &status) != 0) {
        if (errno == ENOENT) return {};
        ThrowLastError(file);
    }
    return {true, (status.st_mode & S_IWUSR) != 0, static_cast<std::uintmax_t>(status.st_size)};
}

void LocalMachine::MakeWritable(const fs::path& file) {
    // Through an open file: if a link takes the log's place in the meantime, the permission must
    // not go to its target.
    const Descriptor open(::open(file.c_str(), O_PATH | O_CLOEXEC | O_NOFOLLOW));
    if (open.Number() < 0) ThrowLastError(file);
    RequireOwnLog(open, file);
    const fs::path self = "/proc/self/fd/" + std::to_string(open.Number());
    const mode_t mode = (StatusOf(open, file).st_mode & 07777) | S_IWUSR;
    if (::chmod(self.c_str(), mode) != 0) ThrowLastError(file);
}

void LocalMachine::Rename(const fs::path& from, const fs::path& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return;
    if (errno != EINVAL && errno != ENOSYS) ThrowLastError(to);
    // A file system without that flag: a hard link refuses an existing name just as well.
    if (::link(from.c_str(), to.c_str()) != 0) ThrowLastError(to);
    if (::unlink(from.c_str()) != 0) ThrowLastError(from);
}

void LocalMachine::Delete(const fs::path& file) {
    if (::unlink(file.c_str()) != 0) ThrowLastError(file);
}

void LocalMachine::VisitFiles(const fs::path& folder,
                              const std::function<bool(const fs::path&)>& visit) {
    try {
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            const bool isFolder = entry.symlink_status().type() == fs::file_type::directory;
            if (!isFolder && !visit(entry.path())) return;
        }
    } catch (const fs::filesystem_error& caught) {
        throw AsRuntimeError(caught);
    }
}

void LocalMachine::Append(const fs::path& file, std::string_view bytes) {
    int number = OpenForAppend(file);
    if (number < 0 && errno == ENOENT) {
        if (file.parent_path() != OwnFolder()) {
            throw RuntimeError(Fault::PathNotFound, FromUtf8(file.native()));
        }
        CreatePrivateFolder(file.parent_path());
        number = OpenForAppend(file);
    }
    Descriptor open(number);
    if (number < 0) ThrowLastError(file);
    RequireOwnLog(open, file);
    WriteAll(open, bytes, file);
}

bool LocalMachine::TryAppend(const fs::path& file, std::string_view bytes, std::uintmax_t length) {
    Descriptor open(::open(file.c_str(), kAppendFlags));
    if (open.Number() < 0) return false;
    const struct stat status = StatusOf(open, file);
    const bool ready = S_ISREG(status.st_mode) && (status.st_mode & S_IWUSR) != 0 &&
                       static_cast<std::uintmax_t>(status.st_size) < length &&
                       !MayBePlanted(status, file);
    if (ready) WriteAll(open, bytes, file);
    return ready;
}

bool LocalMachine::TryExclusive(const fs::path& file, const std::function<void()>& action) {
    const Descriptor open(::open(file.c_str(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    // On a file system without locks the processes stay uncoordinated.
    if (open.Number() >= 0 && ::flock(open.Number(), LOCK_EX | LOCK_NB) != 0 &&
        errno == EWOULDBLOCK) {
        return false;
    }
    action();
    return true;
}

}  // namespace halvek
