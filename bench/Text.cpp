// SPDX-License-Identifier: MIT
#include "Rows.h"

#include <halvekutils/qt/QtText.h>
#include <halvekutils/text/CharacterFilter.h>
#include <halvekutils/text/DelimitedText.h>

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <cstring>
#include <memory>

namespace bench {

namespace {

using namespace halvek;

constexpr std::size_t kMiB = 1024 * 1024;

std::size_t Characters(double bytes) {
    return static_cast<std::size_t>(bytes) / sizeof(char16_t);
}

/// Fields of `length` lower-case letters, with a separator before each but the first.
std::u16string FieldsText(std::size_t characters, std::size_t length,
                          std::u16string_view separator) {
    std::u16string text;
    text.reserve(characters);
    while (text.size() + length + separator.size() <= characters) {
        if (!text.empty()) text += separator;
        for (std::size_t i = 0; i < length; ++i)
            text += static_cast<char16_t>(u'a' + (text.size() + i) % 26);
    }
    return text;
}

/// Reads every byte once, eight at a time.
std::uint64_t OnePass(std::u16string_view text) {
    const char* const bytes = reinterpret_cast<const char*>(text.data());
    const std::size_t size = text.size() * sizeof(char16_t);
    std::uint64_t sum = 0;
    for (std::size_t i = 0; i + sizeof sum <= size; i += sizeof sum) {
        std::uint64_t word;
        std::memcpy(&word, bytes + i, sizeof word);
        sum += word;
    }
    return sum;
}

Case Count(std::u16string separator, double bytes) {
    const auto text = std::make_shared<std::u16string>(FieldsText(Characters(bytes), 8, separator));
    const auto peerText = std::make_shared<QString>(ToQString(*text));
    const QString peerSeparator = ToQString(separator);
    return {.floor =
                [text] {
                    const std::uint64_t sum = OnePass(*text);
                    Use(&sum);
                },
            .ours =
                [text, separator] {
                    const std::int32_t count = CountInstances(*text, separator);
                    Use(&count);
                },
            .peer =
                [peerText, peerSeparator] {
                    const qsizetype count = peerSeparator.size() == 1
                                                ? peerText->count(peerSeparator.front())
                                                : peerText->count(peerSeparator);
                    Use(&count);
                }};
}

Case SplitAll(std::size_t length, double bytes) {
    const auto text = std::make_shared<std::u16string>(FieldsText(Characters(bytes), length, u"|"));
    const auto peerText = std::make_shared<QString>(ToQString(*text));
    return {.floor =
                [text, length] {
                    const std::u16string_view view = *text;
                    const std::size_t count = (view.size() + 1) / (length + 1);
                    std::vector<std::u16string> fields;
                    fields.reserve(count + 1);
                    fields.emplace_back();
                    for (std::size_t i = 0; i < count; ++i) {
                        fields.emplace_back(view.substr(i * (length + 1), length));
                    }
                    Use(&fields);
                },
            .ours =
                [text] {
                    StringArray fields;
                    StrToArr(*text, u"|", fields);
                    Use(&fields);
                },
            .peer =
                [peerText] {
                    const QStringList fields = peerText->split(u'|');
                    Use(&fields);
                }};
}

Case SplitOne(double scale) {
    const auto text =
        std::make_shared<std::u16string>(FieldsText(Characters(4096 * scale), 1, u"|"));
    const auto number = static_cast<std::int16_t>(1000 * scale);
    return {.floor =
                [text, number] {
                    const std::u16string_view view = *text;
                    std::size_t start = 0;
                    for (int i = 1; i < number; ++i) start = view.find(u'|', start) + 1;
                    const std::u16string field(view.substr(start, view.find(u'|', start) - start));
                    Use(&field);
                },
            .ours =
                [text, number] {
                    const std::u16string field = SplitStr(*text, u"|", number);
                    Use(&field);
                },
            .peer = {}};
}

/// Words and numbers as people type them, with one unwanted character in fifty unless it is clean.
std::u16string TypedText(std::size_t characters, bool clean) {
    constexpr std::u16string_view kLine = u"Seen on 03/07/2004 by Dr. Adams; follow-up in 2 weeks.";
    constexpr std::array<char16_t, 4> kUnwanted = {u'|', u'^', u'\t', 0xE6};
    std::u16string text;
    text.reserve(characters);
    while (text.size() < characters) {
        const bool unwanted = !clean && text.size() % 50 == 49;
        text += unwanted ? kUnwanted[text.size() / 50 % 4] : kLine[text.size() % kLine.size()];
    }
    return text;
}

bool IsUnwantedForPeer(QChar character) {
    static const auto table = [] {
        std::array<bool, 256> unwanted{};
        for (int code = 0; code < 256; ++code)
            unwanted[static_cast<std::size_t>(code)] = IsUnwantedChar(code);
        return unwanted;
    }();
    return character.unicode() > 255 || table[character.unicode()];
}

Case Filter(bool clean, double scale) {
    const auto text =
        std::make_shared<std::u16string>(TypedText(Characters(16 * kMiB * scale), clean));
    const auto peerText = std::make_shared<QString>(ToQString(*text));
    return {.floor =
                [text] {
                    const std::u16string copy = *text;
                    Use(&copy);
                },
            .ours =
                [text] {
                    std::u16string out;
                    RemoveUnwantedChars(*text, out, u"", false, u"");
                    Use(&out);
                },
            .peer =
                [peerText] {
                    QString out = *peerText;
                    out.removeIf(IsUnwantedForPeer);
                    Use(&out);
                }};
}

}  // namespace

Rows TextRows() {
    constexpr double kText = 64 * kMiB;
    return {
        {"CountInstances, one character, 64 MiB", "one pass over the bytes", 1.2, "QString::count",
         2.5, [](double scale) { return Count(u"|", kText * scale); }},
        {"CountInstances, two characters, 64 MiB", "one pass over the bytes", 1.3, "QString::count",
         6, [](double scale) { return Count(u"~|", kText * scale); }},
        {"StrToArr, 64 MiB, fields of 8", "allocate and copy each field", 1.25, "QString::split", 2,
         [](double scale) { return SplitAll(8, kText * scale); }},
        {"StrToArr, 64 MiB, fields of 32", "allocate and copy each field", 1.25, "QString::split",
         0, [](double scale) { return SplitAll(32, kText * scale); }},
        {"SplitStr, field 1,000 of 4 KiB", "a find loop", 0.5, "", 0, SplitOne},
        {"RemoveUnwantedChars, 16 MiB, clean", "copy of the text", 1.5,
         "QString::removeIf with a table", 1.5, [](double scale) { return Filter(true, scale); }},
        {"RemoveUnwantedChars, 16 MiB, 2 % to remove", "copy of the text", 3,
         "QString::removeIf with a table", 1.5, [](double scale) { return Filter(false, scale); }},
    };
}

}  // namespace bench
