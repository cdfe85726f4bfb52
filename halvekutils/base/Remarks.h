// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace halvek {

/// What a reader did with a part of a server's text that it could not take as it is.
enum class RemarkKind {
    Ignored,    ///< the part has no effect
    Defaulted,  ///< a value that the server did not send stands in for it
    Doubled,    ///< an earlier record has the same key
};

/// One such part.
struct Remark {
    RemarkKind kind;
    std::size_t record;    ///< from 1; empty records count
    std::size_t field;     ///< from 0
    std::size_t position;  ///< of the first character, from 0
    std::u16string text;   ///< what is wrong, and what was done
};

/// Collects the remarks of the readers of the server's texts.
///
/// Readers take a pointer, null in a client: then each record costs them one comparison.
class Remarks {
  public:
    /// A reader begins; the places of all remarks to come lie in this text.
    void Begin(TextIn text) {
        start_ = text.data();
        record_ = 0;
    }
    /// The reader comes to the next record.
    void NextRecord() { ++record_; }

    /// Remarks on an empty record, unless it is the one after the last separator.
    void OnEmptyRecord(TextIn text, TextIn record) {
        if (record.data() == text.data() + text.size()) return;
        Add(RemarkKind::Ignored, 0, record, u"empty record skipped");
    }
    /// Remarks on a field of the current record.
    /// @param place  the part of the text; when it is missing, an empty one where it should be
    void Add(RemarkKind kind, std::size_t field, TextIn place, std::u16string text) {
        const auto position = static_cast<std::size_t>(place.data() - start_);
        all_.push_back({kind, record_, field, position, std::move(text)});
    }

    /// The remarks so far, in the reader's order.
    const std::vector<Remark>& All() const { return all_; }

  private:
    const char16_t* start_ = nullptr;
    std::size_t record_ = 0;
    std::vector<Remark> all_;
};

/// The text in quotation marks, cut short when it is long.
std::u16string Quoted(TextIn text);

/// Remarks on one field of a text, by the kind of value that it should hold.
class FieldRemarks {
  public:
    /// @param name  how the remarks call the field
    FieldRemarks(Remarks& remarks, std::size_t field, std::u16string_view name, TextIn text)
        : remarks_(remarks), field_(field), name_(name), text_(text) {}

    /// The number that the field begins with, as Val reads it; nothing should follow.
    /// @param whenEmpty  what stands in for an empty field
    /// @param whenNoNumber  what stands in for a field without a number
    /// @return false when the field holds no number
    bool OnNumber(std::u16string_view whenEmpty = u"0",
                  std::u16string_view whenNoNumber = u"0") const;
    /// A whole number of 32 bits.
    /// @param fallback  what stands in for a field that is empty or too large
    void OnInteger(std::u16string_view fallback) const;
    /// A flag that is true when its number is 1; the other value is 0.
    void OnFlag() const;
    /// A flag that is true for exactly "1".
    void OnExactFlag() const;
    /// "True" or "False".
    void OnSwitch() const;

    /// A sentence that begins with the field's name.
    void Add(RemarkKind kind, std::u16string_view rest) const;
    /// The same with the field's text after its name.
    void AddWithText(RemarkKind kind, std::u16string_view rest) const;

  private:
    bool OnEmpty(std::u16string_view fallback) const;

    Remarks& remarks_;
    std::size_t field_;
    std::u16string_view name_;
    TextIn text_;
};

}  // namespace halvek
