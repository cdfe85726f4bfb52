// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/platform/Beep.h>

#include <exception>
#include <string>
#include <type_traits>

namespace halvek {

/// Whether a fault also beeps.
enum class OnFault {
    Quiet,  ///< it is only logged
    Beep,   ///< it beeps and is logged
};

/// Runs `body`; when it throws, beeps if asked to and logs `prefix` followed by the fault's
/// description.
///
/// @code{.cpp}
/// Guarded(OnFault::Beep, u"Error in Utils.AddBin ", services, [&] { ... });
/// @endcode
///
/// `log` is the session's Services, or anything else that has LogError, or a callable for a session
/// that may not have begun. `prefix` is a text, or a callable that builds one once a fault has
/// happened. A failure while the fault is reported, usually out of memory, is dropped: there is
/// nowhere left to report it.
template <class Prefix, class Log, class Body>
void Guarded(OnFault onFault, const Prefix& prefix, Log&& log, const Body& body) {
    try {
        body();
    } catch (const std::exception& caught) {
        if (onFault == OnFault::Beep) Beep();
        try {
            std::u16string line;
            if constexpr (std::is_invocable_v<const Prefix&>) {
                line = prefix();
            } else {
                line = prefix;
            }
            line += AsRuntimeError(caught).Description();
            if constexpr (requires { log.LogError(line); }) {
                log.LogError(line);
            } else {
                log(line);
            }
        } catch (const std::exception&) {
            return;
        }
    }
}

/// The same for a body with a result; after a fault the result is `neutral`.
template <class Prefix, class Log, class Result, class Body>
Result Guarded(OnFault onFault, const Prefix& prefix, Log&& log, Result neutral, const Body& body) {
    Guarded(onFault, prefix, log, [&] { neutral = body(); });
    return neutral;
}

/// Runs `body` and returns its result, or `neutral` when it throws. The fault is not reported.
template <class Result, class Body>
Result Quietly(Result neutral, const Body& body) {
    try {
        return body();
    } catch (const std::exception&) {
        return neutral;
    }
}

}  // namespace halvek
