// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/StringArray.h>
#include <halvekutils/base/TextIn.h>

#include <QString>
#include <QStringList>

#include <concepts>
#include <cstdint>

namespace frontdesk {

/// Arguments and results as the list of calls shows them: texts in quotes, with the middle of long
/// ones cut out, control characters as escapes, arrays with their bounds.
QString Shown(const QString& text);
QString Shown(halvek::TextIn text);
QString Shown(const halvek::StringArray& array);
QString Shown(std::int32_t value);
QString Shown(double value);
/// Only for booleans: a pointer must not become "true".
template <std::same_as<bool> T>
QString Shown(T value) {
    return value ? "true" : "false";
}

/// Each argument as it is shown.
template <class... T>
QStringList Args(const T&... arguments) {
    return {Shown(arguments)...};
}

}  // namespace frontdesk
