// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace halvek {

/// Copies style sheets of help pages without anything that would cost the text layout minutes or
/// gigabytes: known properties only, with values of ordinary size.
class HALVEK_INTERNAL HelpStyle {
  public:
    /// @param picture  the address under which a background is served; empty for a missing one,
    ///     which is left out
    explicit HelpStyle(std::function<std::u16string(std::u16string_view)> picture)
        : picture_(std::move(picture)) {}

    /// The declarations of one element, as in "color: red; margin: 2px".
    std::u16string Declarations(std::u16string_view written);

    /// The rules of a whole sheet; at most 1,000 in all calls.
    std::u16string Sheet(std::u16string_view written);

    /// How many rules there are in all sheets.
    std::size_t Rules() const { return rules_; }

    /// True once a declaration has given a colour or a background.
    bool HasColours() const { return hasColours_; }

  private:
    enum class Kind;
    struct Property;

    std::u16string Value(std::u16string_view written, const Property& property);
    std::u16string Url(std::u16string_view written);
    static std::u16string Number(std::u16string_view& rest, const Property& property);
    std::u16string Rule(std::u16string_view selectors, std::u16string_view declarations);

    std::function<std::u16string(std::u16string_view)> picture_;
    std::size_t rules_ = 0;
    bool hasColours_ = false;
};

}  // namespace halvek
