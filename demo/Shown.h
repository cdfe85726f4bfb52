// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/StringArray.h>
#include <halvekutils/base/TextIn.h>

#include <QString>
#include <QStringList>

#include <concepts>
#include <cstddef>
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

/// An enumerator and its name in code.
template <class Enum>
struct Named {
    Enum value;
    const char* name;
};

/// The name of a value, or its number when the enumeration lacks it.
template <class Enum, std::size_t n>
QString NameOf(const Named<Enum> (&table)[n], Enum value) {
    for (const Named<Enum>& row : table) {
        if (row.value == value) return QString::fromLatin1(row.name);
    }
    return QString::number(value);
}

}  // namespace frontdesk
