// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Compiler.h>
#include <halvekutils/base/Export.h>

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <type_traits>

namespace halvek {

/// Anything that gives access to its 16-bit characters in place, as a QString does.
template <class T>
concept Utf16Text = requires(const T& text) {
    requires sizeof(*text.utf16()) == sizeof(char16_t);
    static_cast<std::size_t>(text.size());
};

/// A byte, as in plain literals.
template <class T>
concept ByteCharacter = std::is_same_v<T, char>;

/// A text argument: a view of 16-bit characters that the caller keeps alive for the call.
///
/// Takes string literals, std::u16string, views and any class with utf16() and size(), all without
/// a copy. A null pointer counts as the empty text. Positions in the documentation are 1-based.
///
/// @code{.cpp}
/// utils->LogError(u"Printer is out of paper");
/// utils->LogError(lineEdit->text());  // a QString
/// @endcode
class TextIn : public std::u16string_view {
  public:
    constexpr TextIn() noexcept = default;
    /// From a view.
    constexpr TextIn(std::u16string_view text) noexcept : std::u16string_view(text) {}
    /// From a literal; null counts as the empty text.
    constexpr TextIn(const char16_t* text) noexcept
        : std::u16string_view(text == nullptr ? u"" : text) {}
    /// From a string.
    TextIn(const std::u16string& text) noexcept : std::u16string_view(text) {}
    /// From a text of another library, a QString above all.
    template <Utf16Text T>
    TextIn(const T& text) noexcept
        : std::u16string_view(reinterpret_cast<const char16_t*>(text.utf16()),
                              static_cast<std::size_t>(text.size())) {}

    /// Not from bytes, whose character set nobody knows.
    template <ByteCharacter Byte>
    TextIn(const Byte*) = delete;  // write u"..." for a text; FromServer(bytes) for the server's
    template <ByteCharacter Byte>
    TextIn(const std::basic_string<Byte>&) = delete;  // write u"..." or FromServer(bytes)

    /// A copy that outlives the caller's text.
    std::u16string Str() const { return std::u16string(*this); }
};

/// Prints a text in quotes, as UTF-8, when a test by Google Test fails.
HALVEK_EXPORT void PrintTo(TextIn text, std::ostream* out);

}  // namespace halvek
