// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"
#include "tests/printers/PrivateScheduler.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/printers/CupsPrinters.h>
#include <halvekutils/refdata/PrintersCollection.h>

#include <cups/cups.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <thread>

namespace halvek {
namespace {

using namespace std::string_view_literals;

struct CupsDesktop : ScriptedPlatform {
    std::unique_ptr<PrinterSource> Printers() override {
        return std::make_unique<CupsPrinters>(libcups);
    }

    const char* libcups = CupsPrinters::kLibrary;
};

/// A socket that answers each connection in its own way, in pieces, for as long as the caller
/// listens.
class Impostor {
  public:
    struct Way {
        std::string_view start;       ///< sent at once
        std::string_view again = {};  ///< then sent again and again
        int pause = 0;                ///< milliseconds before each
        bool hangsUp = false;
    };

    Impostor(const std::string& socket, const Way& way)
        : way_(way), listener_(::socket(AF_UNIX, SOCK_STREAM, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, socket.c_str(), sizeof address.sun_path - 1);
        EXPECT_EQ(::bind(listener_, reinterpret_cast<const sockaddr*>(&address), sizeof address),
                  0);
        EXPECT_EQ(::listen(listener_, 8), 0);
        thread_ = std::thread([this] { Serve(); });
    }
    ~Impostor() {
        ended_ = true;
        ::shutdown(listener_, SHUT_RDWR);
        thread_.join();
        ::close(listener_);
        for (const int caller : waiting_) ::close(caller);
    }
    Impostor(const Impostor&) = delete;
    Impostor& operator=(const Impostor&) = delete;

  private:
    static bool Send(int caller, std::string_view bytes) {
        return ::send(caller, bytes.data(), bytes.size(), MSG_NOSIGNAL) >= 0;
    }

    void Serve() {
        for (int caller = 0; (caller = ::accept(listener_, nullptr, nullptr)) >= 0;) {
            char request[4096];
            if (::recv(caller, request, sizeof request, 0) > 0) Answer(caller);
            waiting_.push_back(caller);
            if (!way_.hangsUp) continue;
            ::close(caller);
            waiting_.pop_back();
        }
    }

    void Answer(int caller) {
        Send(caller, way_.start);
        while (!way_.again.empty() && !ended_) {
            std::this_thread::sleep_for(std::chrono::milliseconds(way_.pause));
            if (!Send(caller, way_.again)) return;
        }
    }

    Way way_;
    std::vector<int> waiting_;
    int listener_;
    std::atomic<bool> ended_ = false;
    std::thread thread_;
};

class CupsPrintersTest : public CleanState {
  protected:
    ~CupsPrintersTest() override { ::cupsSetServer(nullptr); }

    /// Rebuilds the collection from a scheduler; "type/name/port/driver" of each printer.
    std::string Build(const std::string& socket, TextIn specialMode = {}) {
        ::cupsSetServer(socket.c_str());
        utils_->SpecialMode(specialMode);
        utils_->ClearPrintersCollection();
        utils_->BuildPrintersCollection(u"");
        std::string shown;
        for (const auto& printer : utils_->GetPrintersCollection()) {
            shown += ToUtf8(printer->PrinterID() + u'/' + printer->PrinterDeviceName() + u'/' +
                            printer->PrinterPort() + u'/' + printer->PrinterDriverName() + u'\n');
        }
        return shown;
    }

    /// True when the last two lines of the log report a failure and an empty printer list.
    bool LogEndsWithFallBack() const {
        const std::string log = Log();
        const std::size_t failure =
            log.rfind("\tAddWindowsPrintersWSH Device error: print scheduler: ");
        return failure != std::string::npos &&
               log.ends_with("\tAdding Printers the old way 100 max. Total count: 0\r\n") &&
               std::ranges::count(log.substr(failure), '\n') == 2;
    }

    void ExpectFallBack(const Impostor::Way& way) {
        const Impostor impostor(folder_ / "socket", way);
        const auto sent = testing::Message() << way.start << way.again.substr(0, 30);
        EXPECT_EQ(Build(folder_ / "socket"), "") << sent;
        EXPECT_TRUE(LogEndsWithFallBack()) << sent << Log();
        std::filesystem::remove(folder_ / "socket");
        std::filesystem::remove(machine_.ownFolder / "Error.Log");
    }

    CupsDesktop cups_;
};

TEST_F(CupsPrintersTest, ListsTheQueuesOfARunningScheduler) {
    EXPECT_EQ(Build(PrivateScheduler(0).Socket()), "");
    const PrivateScheduler scheduler(2);
    EXPECT_EQ(Build(scheduler.Socket()),
              "1WIN/Queue1/file:/dev/null/\n2WIN/Queue2/ipp://192.0.2.1/2/\n");
    EXPECT_EQ(Build(scheduler.Socket(), u"printerlistold"),
              "1WIN/Queue1/file:/dev/null/Local Raw Printer\n"
              "2WIN/Queue2/ipp://192.0.2.1/2/Halvek Label 200\n");
    EXPECT_EQ(Log(), "(missing)");
}

TEST_F(CupsPrintersTest, WithoutASchedulerTheListIsEmpty) {
    EXPECT_EQ(Build(folder_ / "none"), "");
    EXPECT_TRUE(LogEndsWithFallBack()) << Log();
    EXPECT_EQ(cups_.Beeps(), 1);
}

TEST_F(CupsPrintersTest, WithoutItsLibraryASchedulerCountsAsNotThere) {
    const std::pair<const char*, const char*> rows[] = {
        {"libcups-gone.so", "No such file"}, {"libc.so.6", "undefined symbol: cupsEncryption"}};
    utils_->InitUtils(u"", u"Desk", u"test", false, u"1.0");
    const PrivateScheduler scheduler(1);
    for (const auto& [libcups, reason] : rows) {
        cups_.libcups = libcups;
        EXPECT_EQ(Build(scheduler.Socket()), "");
        EXPECT_TRUE(LogEndsWithFallBack()) << Log();
        EXPECT_EQ(Build(scheduler.Socket(), u"printerlistold"), "");
        const std::string log = Log();
        const std::size_t line = log.rfind("\tprint scheduler: libcups cannot be");
        ASSERT_NE(line, std::string::npos) << log;
        const std::string last = log.substr(line);
        EXPECT_NE(last.find(reason), std::string::npos) << last;
        EXPECT_EQ(std::ranges::count(last, '\n'), 1) << last;
    }
}

constexpr std::string_view kHeader = "HTTP/1.1 200 OK\r\nContent-Length: 99999999\r\n\r\n";
constexpr std::string_view kChunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";

TEST_F(CupsPrintersTest, AnAnswerThatIsNoneCountsAsAFailure) {
    const Impostor::Way ways[] = {
        {""sv},  // and when it does not hang up, a scheduler that is stopped
        {"no print scheduler at all\r\n\r\n"sv},
        {"HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"CUPS\"\r\n\r\n"sv},
        {"HTTP/1.1 426 Upgrade Required\r\n\r\n"sv},
        {"HTTP/1.1 100 Continue\r\n\r\n"sv},
        {"HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\n\2\0\0\0\0\0\0\1\4B\0\x0Cprinter-n"sv},
        {"HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n\2\0\5\0\0\0\0\1\3"sv},
        {"HTTP/1.1 200 OK\r\nContent-Length: -5\r\n\r\n\2\0\0\0\0\0\0\1\3"sv},
        {kHeader},
        {kChunked},
        {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nFFFFFFFFFFFFFFFF\r\n"sv},
    };
    for (Impostor::Way way : ways) {
        for (const bool hangsUp : {true, false}) {
            way.hangsUp = hangsUp;
            ExpectFallBack(way);
        }
    }
}

// None of these ends by itself: the test would never end if the client waited for them.
TEST_F(CupsPrintersTest, AnAnswerWithoutEndIsCutOff) {
    static const std::string flood = "10000\r\n" + std::string(0x10000, 'x') + "\r\n";
    const Impostor::Way ways[] = {
        {"HTTP/1.1 200 OK\r\nX: "sv, "y"sv, 20},
        {"HTTP/1.1 200 OK\r\n"sv, "X: y\r\n"sv, 0},
        {"HTTP/1.1 200 OK\r\n"sv, "HTTP/1.1 100 Continue\r\n\r\n"sv, 0},
        {""sv, "HTTP/1.1 100 Continue\r\n\r\n"sv, 0},
        {kHeader, "\0"sv, 100},
        {kHeader, flood, 0},
        {kChunked, "1\r\nx\r\n"sv, 100},
        {kChunked, "1\r\nx\r\n"sv, 0},
        {kChunked, "0"sv, 20},
        {kChunked, flood, 0},
        {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n8\r\n\2\0\0\0\0\0\0\1\r\n"sv,
         "A\r\n\4B\0\1a\0\3xyz\r\n"sv, 0},
    };
    for (const Impostor::Way& way : ways) ExpectFallBack(way);
}

TEST_F(CupsPrintersTest, LeavesOutAQueueWithoutAName) {
    const Impostor impostor(folder_ / "socket",
                            {"HTTP/1.1 200 OK\r\nContent-Length: 66\r\n\r\n\2\0\0\0\0\0\0\1"
                             "\4E\0\x0A"
                             "device-uri\0\3a:b"
                             "\4B\0\x0Cprinter-name\0\2Q1"
                             "E\0\x0A"
                             "device-uri\0\3c:d\3"sv});
    utils_->InitUtils(u"", u"Desk", u"test", false, u"1.0");
    EXPECT_EQ(Build(folder_ / "socket"), "1WIN/Q1/c:d/\n");
    EXPECT_NE(Log().find("print scheduler: queues without a name are left out: 1"),
              std::string::npos)
        << Log();
}

}  // namespace
}  // namespace halvek
