// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/platform/Guard.h>

#include <memory>
#include <string>
#include <utility>

namespace halvek {

/// An argument as a call keeps it: a text as a copy, an object by a pointer of its own.
inline std::u16string Kept(TextIn text) {
    return text.Str();
}
template <class Object>
std::shared_ptr<Object> Kept(const std::shared_ptr<Object>& object) {
    return object;
}

/// Calls `body` with arguments that outlive the caller's. Throws off the user-interface thread.
template <class Body, class... Arguments>
decltype(auto) WithKept(const Body& body, const Arguments&... arguments) {
    Desktop::RequireItsThread();
    return body(Kept(arguments)...);
}

/// The way into a member that may open a window, if only the message about a log that fails.
///
/// While a window is open the host handles its events. It may then release the object that was
/// called, the texts and pointers that it passed, or begin another session. So the call holds the
/// object and works on its own copies of the arguments, taken before a window can open. Off the
/// user-interface thread, and when the copies need more memory than there is, it fails as any fault
/// of the member does.
///
/// @code{.cpp}
/// return Entered(*this, OnFault::Beep, u"Error in Utils.Calculate ", std::u16string(),
///                [&](const std::u16string& value) { ... }, InitValue);
/// @endcode
template <class Object, class Prefix, class Result, class Body, class... Arguments>
Result Entered(Object& object, OnFault onFault, const Prefix& prefix, Result neutral,
               const Body& body, const Arguments&... arguments) {
    const auto self = object.shared_from_this();
    return Guarded(onFault, prefix, object, std::move(neutral),
                   [&] { return WithKept(body, arguments...); });
}

/// The same for a member without a result.
template <class Object, class Prefix, class Body, class... Arguments>
void EnteredVoid(Object& object, OnFault onFault, const Prefix& prefix, const Body& body,
                 const Arguments&... arguments) {
    const auto self = object.shared_from_this();
    Guarded(onFault, prefix, object, [&] { WithKept(body, arguments...); });
}

}  // namespace halvek
