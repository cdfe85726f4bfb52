// SPDX-License-Identifier: MIT
#include <halvekutils/base/Utf8.h>

#include <cstddef>

namespace halvek {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

constexpr bool IsHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool IsLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

void AppendUtf8(std::string& out, char32_t point) {
    const auto trail = [&out, point](int shift) {
        out += static_cast<char>(0x80 | (point >> shift & 0x3F));
    };
    if (point < 0x80) {
        out += static_cast<char>(point);
    } else if (point < 0x800) {
        out += static_cast<char>(0xC0 | point >> 6);
        trail(0);
    } else if (point < 0x10000) {
        out += static_cast<char>(0xE0 | point >> 12);
        trail(6);
        trail(0);
    } else {
        out += static_cast<char>(0xF0 | point >> 18);
        trail(12);
        trail(6);
        trail(0);
    }
}

void AppendUtf16(std::u16string& out, char32_t point) {
    if (point < 0x10000) {
        out += static_cast<char16_t>(point);
    } else {
        out += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
        out += static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF));
    }
}

/// How many bytes a sequence with this lead byte has; 0 for a byte that cannot be one.
constexpr std::size_t SequenceLength(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 0;
}

/// Reads the sequence at the start of the bytes; sets `length` to the bytes it took, at least 1.
char32_t DecodeUtf8(std::string_view bytes, std::size_t& length) {
    const auto lead = static_cast<unsigned char>(bytes[0]);
    const std::size_t wanted = SequenceLength(lead);
    length = 1;
    if (wanted == 1) return lead;
    if (wanted == 0 || wanted > bytes.size()) return kReplacement;
    char32_t point = lead & (0x7Fu >> wanted);
    for (std::size_t i = 1; i < wanted; ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        if ((byte & 0xC0) != 0x80) return kReplacement;
        point = point << 6 | (byte & 0x3Fu);
    }
    constexpr char32_t kMin[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = IsHighSurrogate(point) || IsLowSurrogate(point);
    if (point < kMin[wanted] || point > 0x10FFFF || surrogate) return kReplacement;
    length = wanted;
    return point;
}

}  // namespace

std::string ToUtf8(TextIn text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t unit = text[i];
        if (IsHighSurrogate(unit) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            ++i;
            AppendUtf8(out, 0x10000 + ((unit - 0xD800) << 10) + (text[i] - 0xDC00u));
        } else {
            AppendUtf8(out, IsHighSurrogate(unit) || IsLowSurrogate(unit) ? kReplacement : unit);
        }
    }
    return out;
}

std::u16string FromUtf8(std::string_view bytes) {
    std::u16string out;
    out.reserve(bytes.size());
    while (!bytes.empty()) {
        std::size_t length = 0;
        AppendUtf16(out, DecodeUtf8(bytes, length));
        bytes.remove_prefix(length);
    }
    return out;
}

}  // namespace halvek
