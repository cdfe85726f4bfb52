// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/printers/CupsPrinters.h>

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

[[noreturn]] void Fail(std::string_view reason) {
    throw RuntimeError(Fault::DeviceError, u"print scheduler: " + FromUtf8(reason));
}

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
        Fail(reason == nullptr ? "no connection" : reason);
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
        if (body.size() > kMaxAnswer) Fail("the answer is too long");
    }
}

Message Parsed(std::string_view bytes) {
    const auto read = [](void* context, ipp_uchar_t* buffer, std::size_t most) {
        auto& rest = *static_cast<std::string_view*>(context);
        const std::size_t length = rest.copy(reinterpret_cast<char*>(buffer), most);
        rest.remove_prefix(length);
        return static_cast<ssize_t>(length);
    };
    Message answer(ippNew());
    if (ippReadIO(&bytes, read, 1, nullptr, answer.get()) != IPP_STATE_DATA) {
        Fail("the answer breaks off");
    }
    return answer;
}

/// Sends the request and reads the answer, once. The call of libcups that does this would wait a
/// second longer, try again and, when asked for a password, read one from the terminal.
Message Exchange(http_t* connection, ipp_t* request, Clock::time_point end) {
    std::string body;
    {
        const Watch watch(connection, end);
        httpClearFields(connection);
        httpSetField(connection, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
        httpSetLength(connection, ippLength(request));
        if (httpPost(connection, "/") != 0 || ippWrite(connection, request) != IPP_STATE_DATA) {
            Fail("the request cannot be sent");
        }
        http_status_t status = HTTP_STATUS_CONTINUE;
        while (status == HTTP_STATUS_CONTINUE) status = httpUpdate(connection);
        if (status == HTTP_STATUS_ERROR && Clock::now() < end) {
            Fail(std::generic_category().message(httpError(connection)));
        }
        if (status == HTTP_STATUS_OK) {
            body = Body(connection);
        } else if (status != HTTP_STATUS_ERROR) {
            Fail(httpStatus(status));
        }
    }
    if (Clock::now() >= end) Fail("the answer takes too long");
    return Parsed(body);
}

/// "Not found" is how the scheduler says that there are no queues.
void CheckStatus(ipp_t* answer) {
    const ipp_status_t status = ippGetStatusCode(answer);
    if (status < IPP_STATUS_REDIRECTION_OTHER_SITE || status == IPP_STATUS_ERROR_NOT_FOUND) return;
    Fail(ippErrorString(status));
}

std::u16string TextOf(ipp_attribute_t* attribute) {
    const char* const text = ippGetString(attribute, 0, nullptr);
    return text == nullptr ? std::u16string() : FromUtf8(text);
}

/// The queues of an answer, in which each is a group of attributes.
std::vector<InstalledPrinter> QueuesOf(ipp_t* answer) {
    std::vector<InstalledPrinter> queues;
    bool inGroup = false;
    for (ipp_attribute_t* at = ippFirstAttribute(answer); at != nullptr;
         at = ippNextAttribute(answer)) {
        const bool isQueue = ippGetGroupTag(at) == IPP_TAG_PRINTER && ippGetName(at) != nullptr;
        if (isQueue && !inGroup) queues.emplace_back();
        inGroup = isQueue;
        if (!isQueue) continue;
        const std::string_view name = ippGetName(at);
        if (name == "printer-name") queues.back().deviceName = TextOf(at);
        if (name == "device-uri") queues.back().port = TextOf(at);
        if (name == "printer-make-and-model") queues.back().driverName = TextOf(at);
    }
    return queues;
}

/// Nobody could choose a queue without a name, or print to it.
void LeaveOutNameless(std::vector<InstalledPrinter>& queues) {
    const auto all = queues.size();
    std::erase_if(queues, [](const InstalledPrinter& queue) { return queue.deviceName.empty(); });
    const std::string left = std::to_string(all - queues.size());
    if (all == queues.size()) return;
    Services::Current().LogError(u"print scheduler: queues without a name are left out: " +
                                 FromUtf8(left));
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
        const Message answer = Exchange(connection.get(), QueuesRequest().get(), end);
        CheckStatus(answer.get());
        queues_ = QueuesOf(answer.get());
        LeaveOutNameless(queues_);
    } catch (const RuntimeError&) {
        failure_ = std::current_exception();
    }
}

}  // namespace halvek
