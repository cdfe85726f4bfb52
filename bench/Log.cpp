// SPDX-License-Identifier: MIT
#include "Rows.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/Session.h>

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <memory>

namespace bench {

namespace {

namespace fs = std::filesystem;
using namespace halvek;

// 120 bytes with the stamp, a login name and the line end
const std::string kMessage(84, 'x');
const std::string kLine =
    std::string("11/21/2026 09:30:00 AM\tfrontdesk\t").append(kMessage).append("\r\n");

/// A folder of its own, deleted with its last user.
class Folder {
  public:
    explicit Folder(const fs::path& parent) {
        std::string pattern = parent / "halvek-bench-XXXXXX";
        path_ = ::mkdtemp(pattern.data()) == nullptr ? throw std::bad_alloc() : fs::path(pattern);
    }
    ~Folder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    fs::path File(const char* name) const { return path_ / name; }

  private:
    fs::path path_;
};

void AppendPlainly(const fs::path& file) {
    struct stat status {};
    ::lstat(file.c_str(), &status);
    const int open = ::open(file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    if (open < 0) return;
    const ssize_t written = ::write(open, kLine.data(), kLine.size());
    Use(&written);
    ::close(open);
}

void AppendWithQt(const QString& file) {
    QFile log(file);
    if (log.open(QIODevice::Append)) log.write(kLine.data(), static_cast<qint64>(kLine.size()));
}

Case Append(const fs::path& parent) {
    const auto folder = std::make_shared<Folder>(parent);
    TheSession().logFolder.clear();  // the folder of the process's first log file
    const auto utils = Utils::Create();
    utils->InitUtils(FromUtf8(folder->File("ours.log").native()), u"Benchmarks", u"", false, u"");
    const std::u16string message = FromUtf8(kMessage);
    const QString peerFile = QString::fromStdString(folder->File("peer.log").native());
    return {.floor = [folder, file = folder->File("floor.log")] { AppendPlainly(file); },
            .ours = [folder, utils, message] { utils->LogError(message); },
            .peer = [folder, peerFile] { AppendWithQt(peerFile); }};
}

}  // namespace

// Who owns a file on a disk that is mounted from elsewhere may differ, and then the log looks at
// its folder, too.
Rows LogRows() {
    const Row inMemory = {"LogError, a line of 120 bytes, in memory",
                          "stat, open, write, close",
                          1.2,
                          "QFile opened to append",
                          0,
                          [](double) { return Append("/dev/shm"); },
                          false};
    Row onDisk = inMemory;
    onDisk.work = "LogError, a line of 120 bytes, on disk";
    onDisk.prepare = [](double) { return Append(fs::current_path()); };
    onDisk.counted = false;
    return {onDisk, inMemory};
}

}  // namespace bench
