// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/printers/Cups.h>
#include <halvekutils/printers/PrinterAnswer.h>

#include <cstddef>
#include <memory>
#include <string>

namespace halvek {

namespace {

constexpr char16_t kPrefix[] = u"print scheduler: ";

using Message = std::unique_ptr<ipp_t, decltype(&ippDelete)>;

Message Parsed(const Cups& cups, std::string_view bytes) {
    const auto read = [](void* context, ipp_uchar_t* buffer, std::size_t most) {
        auto& rest = *static_cast<std::string_view*>(context);
        const std::size_t length = rest.copy(reinterpret_cast<char*>(buffer), most);
        rest.remove_prefix(length);
        return static_cast<ssize_t>(length);
    };
    Message answer(cups.ippNew(), cups.ippDelete);
    if (cups.ippReadIO(&bytes, read, 1, nullptr, answer.get()) != IPP_STATE_DATA) {
        FailAtScheduler("the answer breaks off");
    }
    return answer;
}

/// "Not found" is how the scheduler says that there are no queues.
void CheckStatus(const Cups& cups, ipp_t* answer) {
    // Whoever answers may send a number that is no status.
    const auto status = static_cast<int>(cups.ippGetStatusCode(answer));
    if (status < IPP_STATUS_REDIRECTION_OTHER_SITE || status == IPP_STATUS_ERROR_NOT_FOUND) return;
    FailAtScheduler(cups.ippErrorString(static_cast<ipp_status_t>(status)));
}

std::u16string TextOf(const Cups& cups, ipp_attribute_t* attribute) {
    const char* const text = cups.ippGetString(attribute, 0, nullptr);
    return text == nullptr ? std::u16string() : FromUtf8(text);
}

/// The queues of an answer, in which each is a group of attributes.
std::vector<InstalledPrinter> QueuesOf(const Cups& cups, ipp_t* answer) {
    std::vector<InstalledPrinter> queues;
    bool inGroup = false;
    for (ipp_attribute_t* at = cups.ippFirstAttribute(answer); at != nullptr;
         at = cups.ippNextAttribute(answer)) {
        const bool isQueue =
            cups.ippGetGroupTag(at) == IPP_TAG_PRINTER && cups.ippGetName(at) != nullptr;
        if (isQueue && !inGroup) queues.emplace_back();
        inGroup = isQueue;
        if (!isQueue) continue;
        const std::string_view name = cups.ippGetName(at);
        if (name == "printer-name") queues.back().deviceName = TextOf(cups, at);
        if (name == "device-uri") queues.back().port = TextOf(cups, at);
        if (name == "printer-make-and-model") queues.back().driverName = TextOf(cups, at);
    }
    return queues;
}

/// Nobody could choose a queue without a name, or print to it.
void LeaveOutNameless(std::vector<InstalledPrinter>& queues) {
    const auto all = queues.size();
    std::erase_if(queues, [](const InstalledPrinter& queue) { return queue.deviceName.empty(); });
    const std::size_t left = all - queues.size();
    if (left == 0) return;
    LogAtScheduler(u"queues without a name are left out: " + FromUtf8(std::to_string(left)));
}

}  // namespace

void FailAtScheduler(std::string_view reason) {
    throw RuntimeError(Fault::DeviceError, kPrefix + FromUtf8(reason));
}

void LogAtScheduler(const std::u16string& line) {
    // A client that builds its printers before InitUtils gets them all the same.
    Quietly(false, [&] {
        Services::Current().LogError(kPrefix + line);
        return true;
    });
}

std::vector<InstalledPrinter> QueuesInAnswer(const Cups& cups, std::string_view bytes) {
    const Message answer = Parsed(cups, bytes);
    CheckStatus(cups, answer.get());
    std::vector<InstalledPrinter> queues = QueuesOf(cups, answer.get());
    LeaveOutNameless(queues);
    return queues;
}

}  // namespace halvek
