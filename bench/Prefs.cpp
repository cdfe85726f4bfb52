// SPDX-License-Identifier: MIT
#include "Rows.h"

#include <halvekutils/qt/QtText.h>

#include <QString>
#include <QStringList>

#include <array>
#include <memory>

namespace bench {

namespace {

using namespace halvek;

constexpr char16_t kSeparator = 223;
constexpr std::size_t kFields = 31;

/// 31 fields, 2 KiB in all: numbers and switches where the settings have them, otherwise form data.
std::vector<std::u16string> MakeFields() {
    std::vector<std::u16string> fields(kFields, u"Left=1200;Top=900;Width=14400;Height=9600;");
    for (const std::size_t number : {5u, 6u, 7u, 8u, 9u, 11u}) fields[number] = u"16777215";
    for (const std::size_t flag : {10u, 14u, 16u, 20u, 22u, 23u}) fields[flag] = u"True";
    fields[15] = u"2";
    return fields;
}

Case ReadAndWrite(double) {
    const auto fields = std::make_shared<std::vector<std::u16string>>(MakeFields());
    const auto text = std::make_shared<std::u16string>();
    for (const std::u16string& field : *fields) {
        if (!text->empty()) *text += kSeparator;
        *text += field;
    }
    const auto peerText = std::make_shared<QString>(ToQString(*text));
    return {.floor =
                [fields] {
                    const std::vector<std::u16string> copy = *fields;
                    Use(&copy);
                },
            .ours =
                [text] {
                    UserPrefs prefs;
                    prefs.PopulateSettings(*text);
                    const std::u16string settings = prefs.GetSettingsString();
                    Use(&settings);
                },
            .peer =
                [peerText] {
                    const QStringList split = peerText->split(QChar(kSeparator));
                    const QString joined = split.join(QChar(kSeparator));
                    Use(&joined);
                }};
}

}  // namespace

Rows PrefsRows() {
    return {{"PopulateSettings and GetSettingsString, 2 KiB", "copy the 31 fields", 2,
             "QString::split and join", 2, ReadAndWrite, false}};
}

}  // namespace bench
