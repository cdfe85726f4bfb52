// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/platform/Guard.h>
#include <halvekutils/platform/Services.h>

namespace halvek {

/// Runs the body of an event handler or slot. An exception that left it would end the process, so
/// this beeps and logs it: "ERR in ", the form's and the handler's name, ": " and the fault.
template <class Body>
void GuardEvent(const char16_t* form, const char16_t* handler, const Body& body) {
    const auto prefix = [&] { return u"ERR in " + std::u16string(form) + handler + u": "; };
    const auto log = [](TextIn line) { Services::Current().LogError(line); };
    Guarded(OnFault::Beep, prefix, log, body);
}

/// The same where one text names both.
template <class Body>
void GuardEvent(const char16_t* handler, const Body& body) {
    GuardEvent(handler, u"", body);
}

}  // namespace halvek
