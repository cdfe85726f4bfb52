// SPDX-License-Identifier: MIT
#pragma once

#include <cups/cups.h>

#include <stdexcept>

namespace halvek {

/// The functions of libcups that this room calls. They are loaded when printers are asked for, not
/// linked: libcups brings twenty other libraries, which most clients never need.
class Cups {
  public:
    /// Thrown where the library, or a function of it, is missing; what() says which.
    struct Missing : std::runtime_error {
        using std::runtime_error::runtime_error;
    };

    /// Once loaded, the library stays with the process.
    explicit Cups(const char* file);

// The headers give each function its type.
// clang-format off
#define HALVEK_CUPS_FUNCTIONS(each) \
    each(cupsEncryption) each(cupsLastErrorString) each(cupsServer) each(httpClearFields) \
    each(httpClose) each(httpConnect2) each(httpError) each(httpGetFd) each(httpPost) \
    each(httpRead2) each(httpSetField) each(httpSetLength) each(httpSetTimeout) each(httpStatus) \
    each(httpUpdate) each(ippAddStrings) each(ippDelete) each(ippErrorString) \
    each(ippFirstAttribute) each(ippGetGroupTag) each(ippGetName) each(ippGetStatusCode) \
    each(ippGetString) each(ippLength) each(ippNew) each(ippNewRequest) each(ippNextAttribute) \
    each(ippPort) each(ippReadIO) each(ippWrite)
// clang-format on
#define HALVEK_CUPS_DECLARE(name) decltype(&::name) name;  // NOLINT(bugprone-macro-parentheses)
    HALVEK_CUPS_FUNCTIONS(HALVEK_CUPS_DECLARE)
#undef HALVEK_CUPS_DECLARE
};

}  // namespace halvek
