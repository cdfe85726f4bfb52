// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/printers/Cups.h>
#include <halvekutils/printers/CupsPrinters.h>
#include <halvekutils/printers/PrinterAnswer.h>

#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <iterator>
#include <memory>
#include <mutex>
#include <stop_token>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>

namespace halvek {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kMaxWait(1000);  // from the first byte to the last
constexpr std::size_t kMaxAnswer = 16'000'000;

using Connection = std::unique_ptr<http_t, decltype(&httpClose)>;
using Message = std::unique_ptr<ipp_t, decltype(&ippDelete)>;

/// Ends the traffic on a connection at a time, so that whatever waits for it goes on. The calls of
/// libcups only limit each single wait: a scheduler that sends a byte now and then, or header lines
/// without end, would keep the client for good.
class Watch {
  public:
    Watch(int socket, Clock::time_point end)
        : thread_([this, socket, end](const std::stop_token& stop) {
              std::unique_lock lock(mutex_);
              const auto never = [] { return false; };
              ends_.wait_until(lock, stop, end, never);
              if (!stop.stop_requested()) ::shutdown(socket, SHUT_RDWR);
          }) {}

  private:
    std::mutex mutex_;
    std::condition_variable_any ends_;
    std::jthread thread_;
};

/// Says what is missing, which the list of installed printers, empty without a word, would not.
Cups Load(const char* library) {
    try {
        return Cups(library);
    } catch (const Cups::Missing& missing) {
        LogAtScheduler(u"libcups cannot be loaded: " + FromUtf8(missing.what()));
        FailAtScheduler("libcups is missing");
    }
}

Connection Connect(const Cups& cups) {
    Connection connection(
        cups.httpConnect2(cups.cupsServer(), cups.ippPort(), nullptr, AF_UNSPEC,
                          cups.cupsEncryption(), 1, int{kMaxWait.count()}, nullptr),
        cups.httpClose);
    if (connection == nullptr) {
        const char* const reason = cups.cupsLastErrorString();
        FailAtScheduler(reason == nullptr ? "no connection" : reason);
    }
    const auto giveUp = [](http_t*, void*) { return 0; };
    cups.httpSetTimeout(connection.get(), std::chrono::duration<double>(kMaxWait).count(), giveUp,
                        nullptr);
    return connection;
}

Message QueuesRequest(const Cups& cups) {
    static constexpr const char* kWanted[] = {"printer-name", "device-uri",
                                              "printer-make-and-model"};
    Message request(cups.ippNewRequest(IPP_OP_CUPS_GET_PRINTERS), cups.ippDelete);
    cups.ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                       static_cast<int>(std::size(kWanted)), nullptr, kWanted);
    return request;
}

/// The rest of the answer, after its headers.
std::string Body(const Cups& cups, http_t* connection) {
    std::string body;
    std::array<char, 65536> part;
    while (true) {
        const ssize_t length = cups.httpRead2(connection, part.data(), part.size());
        if (length <= 0) return body;
        body.append(part.data(), static_cast<std::size_t>(length));
        if (body.size() > kMaxAnswer) FailAtScheduler("the answer is too long");
    }
}

/// Sends the request and reads the answer, once. The call of libcups that does this would wait a
/// second longer, try again and, when asked for a password, read one from the terminal.
std::string Exchange(const Cups& cups, http_t* connection, ipp_t* request, Clock::time_point end) {
    std::string body;
    {
        const Watch watch(cups.httpGetFd(connection), end);
        cups.httpClearFields(connection);
        cups.httpSetField(connection, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
        cups.httpSetLength(connection, cups.ippLength(request));
        if (cups.httpPost(connection, "/") != 0 ||
            cups.ippWrite(connection, request) != IPP_STATE_DATA) {
            FailAtScheduler("the request cannot be sent");
        }
        http_status_t status = HTTP_STATUS_CONTINUE;
        while (status == HTTP_STATUS_CONTINUE) status = cups.httpUpdate(connection);
        if (status == HTTP_STATUS_ERROR && Clock::now() < end) {
            FailAtScheduler(std::generic_category().message(cups.httpError(connection)));
        }
        if (status == HTTP_STATUS_OK) {
            body = Body(cups, connection);
        } else if (status != HTTP_STATUS_ERROR) {
            FailAtScheduler(cups.httpStatus(status));
        }
    }
    if (Clock::now() >= end) FailAtScheduler("the answer takes too long");
    return body;
}

}  // namespace

CupsPrinters::CupsPrinters(const char* library) : library_(library) {}
CupsPrinters::~CupsPrinters() = default;

std::vector<PrinterConnection> CupsPrinters::Connections() {
    Ask();
    if (failure_) std::rethrow_exception(failure_);
    std::vector<PrinterConnection> connections;
    connections.reserve(queues_.size());
    for (const auto& [name, uri, driver] : queues_) connections.push_back({uri, name});
    return connections;
}

std::vector<InstalledPrinter> CupsPrinters::Installed() {
    Ask();
    return queues_;
}

void CupsPrinters::Ask() {
    if (asked_) return;
    asked_ = true;
    try {
        const Cups cups = Load(library_);
        const Clock::time_point end = Clock::now() + kMaxWait;
        const Connection connection = Connect(cups);
        queues_ =
            QueuesInAnswer(cups, Exchange(cups, connection.get(), QueuesRequest(cups).get(), end));
    } catch (const RuntimeError&) {
        failure_ = std::current_exception();
    }
}

}  // namespace halvek
