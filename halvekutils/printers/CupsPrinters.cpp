// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/printers/CupsPrinters.h>

#include <cups/cups.h>

#include <exception>
#include <iterator>
#include <memory>
#include <string_view>
#include <system_error>

namespace halvek {

namespace {

constexpr int kMaxWait = 1000;  // milliseconds, to connect and again for the answer

struct Close {
    void operator()(http_t* connection) const { httpClose(connection); }
    void operator()(ipp_t* message) const { ippDelete(message); }
};
using Connection = std::unique_ptr<http_t, Close>;
using Message = std::unique_ptr<ipp_t, Close>;

[[noreturn]] void Fail(std::string_view reason) {
    throw RuntimeError(Fault::DeviceError, u"print scheduler: " + FromUtf8(reason));
}

Connection Connect() {
    Connection connection(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                                       cupsEncryption(), 1, kMaxWait, nullptr));
    if (connection == nullptr) {
        const char* const reason = cupsLastErrorString();
        Fail(reason == nullptr ? "no connection" : reason);
    }
    const auto giveUp = [](http_t*, void*) { return 0; };
    httpSetTimeout(connection.get(), kMaxWait / 1000.0, giveUp, nullptr);
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

/// Sends the request and reads the answer, once. The call of libcups that does this would wait a
/// second longer, try again and, when asked for a password, read one from the terminal.
Message Exchange(http_t* connection, ipp_t* request) {
    httpClearFields(connection);
    httpSetField(connection, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
    httpSetLength(connection, ippLength(request));
    if (httpPost(connection, "/") != 0 || ippWrite(connection, request) != IPP_STATE_DATA) {
        Fail("the request cannot be sent");
    }
    http_status_t status = HTTP_STATUS_CONTINUE;
    while (status == HTTP_STATUS_CONTINUE) status = httpUpdate(connection);
    if (status == HTTP_STATUS_ERROR) {
        Fail(std::generic_category().message(httpError(connection)));
    }
    if (status != HTTP_STATUS_OK) Fail(httpStatus(status));

    Message answer(ippNew());
    if (ippRead(connection, answer.get()) != IPP_STATE_DATA) Fail("the answer breaks off");
    return answer;
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
        const Connection connection = Connect();
        const Message answer = Exchange(connection.get(), QueuesRequest().get());
        CheckStatus(answer.get());
        queues_ = QueuesOf(answer.get());
    } catch (const RuntimeError&) {
        failure_ = std::current_exception();
    }
}

}  // namespace halvek
