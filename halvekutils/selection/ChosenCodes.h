// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace halvek {

/// The box of typed codes, as the rules want it. Positions count characters from 0.
struct TypedCodesBox {
    std::u16string text;        ///< what it holds
    std::int32_t caret = 0;     ///< how many characters are before the caret
    std::int32_t selected = 0;  ///< how many characters after the caret are selected
    bool enabled = true;        ///< text in a disabled box was not typed by the user
};

/// The chosen codes, joined by ",", and the box that shows them until the user types in it.
///
/// With a few thousand codes chosen both texts are long, so while they are the same only one is
/// kept.
class HALVEK_EXPORT ChosenCodes {
  public:
    /// The chosen codes.
    std::u16string_view Text() const { return boxIsChoice_ ? box_.text : choice_; }
    /// The box of typed codes.
    const TypedCodesBox& Box() const { return box_; }
    /// Grows whenever the rules, not the user, change the box.
    std::uint32_t BoxVersion() const { return boxVersion_; }

    // Choosing: the codes in the box, with one more or one less, become the choice and the box's
    // text. Each function is true when that empties a box that held something.

    /// Adds a code after the others.
    bool Add(std::u16string_view code);
    /// Removes a code, however often it occurs.
    bool Remove(std::u16string_view code);
    /// Chooses these codes and no other.
    bool Replace(const std::vector<std::u16string_view>& codes);

    // Typing

    /// Puts a text into the box without changing the choice.
    void Type(std::u16string text);
    /// Sets caret and selection to where the user has them, or to the nearest place in the text.
    void MoveCaret(std::int32_t caret, std::int32_t selected);
    /// Sets caret and selection to where the rules want them.
    void Select(std::size_t start, std::size_t length);
    /// Selects a code that was refused, with the comma after it.
    void SelectCode(std::u16string_view code);
    /// Whether the user can type.
    void Enable(bool enabled) { box_.enabled = enabled; }

    // Checking: the choice is made code by code

    /// Makes room for codes of this length before the first is accepted.
    void Reserve(std::size_t length) { box_.text.reserve(length); }
    /// Clears the choice, with room for all that the box holds.
    void StartCheck();
    /// Adds a code of the box to the choice.
    void Accept(std::u16string_view code);
    /// Call after the last code.
    void EndCheck();
    /// Chooses nothing; the box stays as it is.
    void Clear();

  private:
    bool SetText(std::u16string codes);
    void TakeBox();

    TypedCodesBox box_;
    std::uint32_t boxVersion_ = 0;
    std::u16string choice_;    ///< while the box holds another text
    bool boxIsChoice_ = true;  ///< the box holds the choice itself
    bool hasComma_ = false;    ///< a code with a comma in it was chosen
};

}  // namespace halvek
