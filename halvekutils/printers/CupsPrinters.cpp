// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/printers/CupsPrinters.h>
#include <halvekutils/printers/PrinterAnswer.h>

#include <cups/cups.h>
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

struct Close {
    void operator()(http_t* connection) const { httpClose(connection); }
    void operator()(ipp_t* message) const { ippDelete(message); }
};
using Connection = std::unique_ptr<http_t, Close>;
using Message = std::unique_ptr<ipp_t, Close>;

/// Ends the traffic on a connection at a time, so that whatever waits for it goes on. The calls of
/// libcups only limit each single wait: a scheduler that sends a byte now and then, or header lines
/// without end, would keep the client for good.
class Watch {
  public:
    Watch(http_t* connection, Clock::time_point end)
        : thread_([this, socket = httpGetFd(connection), end](const std::stop_token& stop) {
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

Connection Connect() {
    Connection connection(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                                       cupsEncryption(), 1, int{kMaxWait.count()}, nullptr));
    if (connection == nullptr) {
        const char* const reason = cupsLastErrorString();
        FailAtScheduler(reason == nullptr ? "no connection" : reason);
    }
    const auto giveUp = [](http_t*, void*) { return 0; };
    httpSetTimeout(connection.get(), std::chrono::duration<double>(kMaxWait).count(), giveUp,
                   nullptr);
    return connection;
}

Message QueuesRequest() {
    static constexpr const char* kWanted[] = {"printer-name", "device-uri",
                                              "printer-make-and-model"};
    Message request(ippNewRequest(IPP_OP_CUPS_GET_PRINTERS));
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(std::size(kWanted)), nullptr, kWanted);
    return request;
}

/// The rest of the answer, after its headers.
std::string Body(http_t* connection) {
    std::string body;
    std::array<char, 65536> part;
    while (true) {
        const ssize_t length = httpRead2(connection, part.data(), part.size());
        if (length <= 0) return body;
        body.append(part.data(), static_cast<std::size_t>(length));
        if (body.size() > kMaxAnswer) FailAtScheduler("the answer is too long");
    }
}

/// Sends the request and reads the answer, once. The call of libcups that does this would wait a
/// second longer, try again and, when asked for a password, read one from the terminal.
std::string Exchange(http_t* connection, ipp_t* request, Clock::time_point end) {
    std::string body;
    {
        const Watch watch(connection, end);
        httpClearFields(connection);
        httpSetField(connection, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
        httpSetLength(connection, ippLength(request));
        if (httpPost(connection, "/") != 0 || ippWrite(connection, request) != IPP_STATE_DATA) {
            FailAtScheduler("the request cannot be sent");
        }
        http_status_t status = HTTP_STATUS_CONTINUE;
        while (status == HTTP_STATUS_CONTINUE) status = httpUpdate(connection);
        if (status == HTTP_STATUS_ERROR && Clock::now() < end) {
            FailAtScheduler(std::generic_category().message(httpError(connection)));
        }
        if (status == HTTP_STATUS_OK) {
            body = Body(connection);
        } else if (status != HTTP_STATUS_ERROR) {
            FailAtScheduler(httpStatus(status));
        }
    }
    if (Clock::now() >= end) FailAtScheduler("the answer takes too long");
    return body;
}

}  // namespace

CupsPrinters::CupsPrinters() = default;
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
        const Clock::time_point end = Clock::now() + kMaxWait;
        const Connection connection = Connect();
        queues_ = QueuesInAnswer(Exchange(connection.get(), QueuesRequest().get(), end));
    } catch (const RuntimeError&) {
        failure_ = std::current_exception();
    }
}

}  // namespace halvek
