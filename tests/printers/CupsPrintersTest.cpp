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
#include <chrono>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <stop_token>
#include <string_view>
#include <thread>
#include <vector>

namespace halvek {
namespace {

using namespace std::string_view_literals;

struct CupsDesktop : ScriptedPlatform {
    std::unique_ptr<PrinterSource> Printers() override { return std::make_unique<CupsPrinters>(); }
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

TEST_F(CupsPrintersTest, AStoppedSchedulerCountsAsNotThere) {
    const PrivateScheduler scheduler(3);
    scheduler.Stop();
    // The scheduler goes on by itself soon: a build that waited for it would list the queues and
    // fail here.
    const std::jthread late([&](const std::stop_token& ended) {
        for (int i = 0; i < 40 && !ended.stop_requested(); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
        scheduler.Continue();
    });
    EXPECT_EQ(Build(scheduler.Socket()), "");
    EXPECT_TRUE(LogEndsWithFallBack()) << Log();
    EXPECT_EQ(cups_.Beeps(), 1);
}

TEST_F(CupsPrintersTest, WithoutASchedulerTheListIsEmpty) {
    EXPECT_EQ(Build(folder_ / "none"), "");
    EXPECT_TRUE(LogEndsWithFallBack()) << Log();
}

/// Answers each of a number of connections on a socket once, then hangs up or just hangs.
class Impostor {
  public:
    Impostor(const std::string& socket, std::string_view answer, bool hangsUp)
        : hangsUp_(hangsUp), listener_(::socket(AF_UNIX, SOCK_STREAM, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, socket.c_str(), sizeof address.sun_path - 1);
        EXPECT_EQ(::bind(listener_, reinterpret_cast<const sockaddr*>(&address), sizeof address),
                  0);
        EXPECT_EQ(::listen(listener_, 8), 0);
        thread_ = std::thread([this, answer] { Serve(answer); });
    }
    ~Impostor() {
        ::shutdown(listener_, SHUT_RDWR);
        thread_.join();
        ::close(listener_);
        for (const int caller : waiting_) ::close(caller);
    }
    Impostor(const Impostor&) = delete;
    Impostor& operator=(const Impostor&) = delete;

  private:
    void Serve(std::string_view answer) {
        for (int caller = 0; (caller = ::accept(listener_, nullptr, nullptr)) >= 0;) {
            char request[4096];
            if (::recv(caller, request, sizeof request, 0) > 0) {
                ::send(caller, answer.data(), answer.size(), MSG_NOSIGNAL);
            }
            waiting_.push_back(caller);
            if (!hangsUp_) continue;
            ::close(caller);
            waiting_.pop_back();
        }
    }

    bool hangsUp_;
    std::vector<int> waiting_;
    int listener_;
    std::thread thread_;
};

TEST_F(CupsPrintersTest, AnAnswerThatIsNoneCountsAsAFailure) {
    const std::string_view answers[] = {
        ""sv,
        "no print scheduler at all\r\n\r\n"sv,
        "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"CUPS\"\r\n\r\n"sv,
        "HTTP/1.1 100 Continue\r\n\r\n"sv,
        "HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\n\2\0\0\0\0\0\0\1\4B\0\x0Cprinter-n"sv,
        "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n\2\0\5\0\0\0\0\1\3"sv,
    };
    for (std::size_t i = 0; i < 2 * std::size(answers); ++i) {
        const std::string_view answer = answers[i / 2];
        const Impostor impostor(folder_ / "socket", answer, i % 2 == 0);
        EXPECT_EQ(Build(folder_ / "socket"), "") << answer;
        EXPECT_TRUE(LogEndsWithFallBack()) << answer << Log();
        std::filesystem::remove(folder_ / "socket");
        std::filesystem::remove(machine_.ownFolder / "Error.Log");
    }
}

}  // namespace
}  // namespace halvek
