// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace halvek {

/// An attribute as it is written, its character references not replaced.
struct HtmlAttribute {
    std::u16string_view name;
    std::u16string_view value;
};

/// The texts and tags of a page, one after the other, in time that grows with its length, whatever
/// it is. Comments, declarations and instructions are left out.
///
/// @code{.cpp}
/// for (HtmlTokens tokens(html); tokens.Next();) {
///     if (tokens.IsText()) text += tokens.Text();
/// }
/// @endcode
class HtmlTokens {
  public:
    explicit HtmlTokens(std::u16string_view html) : html_(html) {}

    /// Moves to the next text or tag; false at the end.
    bool Next();

    bool IsText() const { return name_.empty(); }
    /// Letter case of the name does not matter.
    bool IsStart(std::u16string_view name) const;
    bool IsEnd(std::u16string_view name) const;

    std::u16string_view Text() const { return text_; }
    std::u16string_view Name() const { return name_; }
    /// True for "</name>".
    bool IsEnd() const { return isEnd_; }

    /// The attributes of the tag, in order; at most 64.
    std::vector<HtmlAttribute> Attributes() const;

    /// After a start tag whose content is no HTML, as that of a script: moves behind its end tag
    /// and returns the content. For few names only, each of which costs a search.
    std::u16string_view TakeRaw();

  private:
    bool TakeTag();
    void TakeText(std::size_t end);
    std::size_t EndOfTag(std::size_t at);
    std::size_t Find(std::u16string_view what, std::size_t from, bool& isThere) const;

    std::u16string_view html_;
    std::size_t at_ = 0;
    std::u16string_view text_;
    std::u16string_view name_;
    std::u16string_view inTag_;  ///< what follows the name
    bool isEnd_ = false;
    // What was looked for up to the end in vain is not looked for again.
    bool hasQuote_ = true;
    bool hasApostrophe_ = true;
    bool hasCommentEnd_ = true;
    std::vector<std::u16string_view> unclosed_;
};

/// The value of an attribute with its references replaced; empty when there is none of that name.
std::u16string ValueOf(const std::vector<HtmlAttribute>& attributes, std::u16string_view name);

}  // namespace halvek
