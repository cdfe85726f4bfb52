// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Remarks.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace halvek {

namespace {

bool FitsInt32(double number) {
    using Limits = std::numeric_limits<std::int32_t>;
    return number >= Limits::min() && number <= Limits::max();
}

}  // namespace

std::u16string Quoted(TextIn text) {
    constexpr std::size_t kMaxLength = 40;
    if (text.size() <= kMaxLength) return u'"' + text.Str() + u'"';
    return u'"' + std::u16string(text.substr(0, kMaxLength)) + u"...\"";
}

void FieldRemarks::Add(RemarkKind kind, std::u16string_view rest) const {
    std::u16string text(name_);
    remarks_.Add(kind, field_, text_, text.append(rest));
}

void FieldRemarks::AddWithText(RemarkKind kind, std::u16string_view rest) const {
    Add(kind, (u' ' + Quoted(text_)).append(rest));
}

bool FieldRemarks::OnEmpty(std::u16string_view fallback) const {
    if (!text_.empty()) return false;
    Add(RemarkKind::Defaulted, std::u16string(u" is empty: ").append(fallback));
    return true;
}

bool FieldRemarks::OnNumber(std::u16string_view whenEmpty, std::u16string_view whenNoNumber) const {
    if (OnEmpty(whenEmpty)) return false;
    const std::size_t end = NumberLength(text_);
    if (end == 0) {
        AddWithText(RemarkKind::Defaulted,
                    std::u16string(u" is not a number: ").append(whenNoNumber));
        return false;
    }
    const std::u16string_view rest = text_.substr(end);
    if (rest.find_first_not_of(u" \t") != rest.npos) {
        AddWithText(RemarkKind::Ignored, u": " + Quoted(rest) + u" is ignored");
    }
    return true;
}

void FieldRemarks::OnInteger(std::u16string_view fallback) const {
    if (!OnNumber(fallback)) return;
    const double whole = std::nearbyint(Val(text_));
    if (!FitsInt32(whole)) {
        AddWithText(RemarkKind::Defaulted,
                    std::u16string(u" does not fit into 32 bits: ").append(fallback));
    } else if (whole != Val(text_)) {
        AddWithText(RemarkKind::Ignored,
                    u" is rounded to " + IntegerText(static_cast<std::int32_t>(whole)));
    }
}

void FieldRemarks::OnFlag() const {
    if (text_ == u"0" || text_ == u"1") return;
    if (!OnNumber(u"false", u"false")) return;
    const double number = Val(text_);
    if (number != 0 && number != 1) AddWithText(RemarkKind::Defaulted, u" is not 1: false");
}

void FieldRemarks::OnExactFlag() const {
    if (text_ == u"0" || text_ == u"1" || OnEmpty(u"false")) return;
    AddWithText(RemarkKind::Defaulted, u" is not exactly 1: false");
}

void FieldRemarks::OnSwitch() const {
    if (EqualFolded(text_, u"true") || EqualFolded(text_, u"false") || OnEmpty(u"false")) return;
    AddWithText(RemarkKind::Defaulted, u" is neither True nor False: false");
}

}  // namespace halvek
