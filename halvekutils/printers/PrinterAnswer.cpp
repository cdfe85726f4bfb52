// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/printers/PrinterAnswer.h>

#include <cups/cups.h>

#include <cstddef>
#include <memory>
#include <string>

namespace halvek {

namespace {

struct Delete {
    void operator()(ipp_t* message) const { ippDelete(message); }
};
using Message = std::unique_ptr<ipp_t, Delete>;

Message Parsed(std::string_view bytes) {
    const auto read = [](void* context, ipp_uchar_t* buffer, std::size_t most) {
        auto& rest = *static_cast<std::string_view*>(context);
        const std::size_t length = rest.copy(reinterpret_cast<char*>(buffer), most);
        rest.remove_prefix(length);
        return static_cast<ssize_t>(length);
    };
    Message answer(ippNew());
    if (ippReadIO(&bytes, read, 1, nullptr, answer.get()) != IPP_STATE_DATA) {
        FailAtScheduler("the answer breaks off");
    }
    return answer;
}

/// "Not found" is how the scheduler says that there are no queues.
void CheckStatus(ipp_t* answer) {
    // Whoever answers may send a number that is no status.
    const auto status = static_cast<int>(ippGetStatusCode(answer));
    if (status < IPP_STATUS_REDIRECTION_OTHER_SITE || status == IPP_STATUS_ERROR_NOT_FOUND) return;
    FailAtScheduler(ippErrorString(static_cast<ipp_status_t>(status)));
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
    const std::size_t left = all - queues.size();
    if (left == 0) return;
    const std::u16string line =
        u"print scheduler: queues without a name are left out: " + FromUtf8(std::to_string(left));
    // A client that builds its printers before InitUtils gets the others all the same.
    Quietly(false, [&] {
        Services::Current().LogError(line);
        return true;
    });
}

}  // namespace

void FailAtScheduler(std::string_view reason) {
    throw RuntimeError(Fault::DeviceError, u"print scheduler: " + FromUtf8(reason));
}

std::vector<InstalledPrinter> QueuesInAnswer(std::string_view bytes) {
    const Message answer = Parsed(bytes);
    CheckStatus(answer.get());
    std::vector<InstalledPrinter> queues = QueuesOf(answer.get());
    LeaveOutNameless(queues);
    return queues;
}

}  // namespace halvek
