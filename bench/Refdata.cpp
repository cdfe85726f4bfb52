// SPDX-License-Identifier: MIT
#include "Rows.h"

#include <halvekutils/qt/QtText.h>

#include <QHash>
#include <QString>

#include <algorithm>
#include <memory>
#include <random>

namespace bench {

namespace {

using namespace halvek;

constexpr char16_t kField = 230;
constexpr char16_t kRecord = u'|';

std::u16string Digits(std::size_t number) {
    std::u16string digits;
    for (std::size_t place = 1; place <= 100'000; place *= 10) {
        digits.insert(digits.begin(), static_cast<char16_t>(u'0' + number / place % 10));
    }
    return digits;
}

/// The texts of one code table: description, key, report and sort list.
struct CodeTexts {
    std::u16string description, key, report, sortBy;
};

std::vector<CodeTexts> MakeCodes(std::size_t count) {
    std::vector<CodeTexts> codes;
    codes.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        codes.push_back({u"Insurance plan " + Digits(i), u"PLAN" + Digits(i),
                         u"Plans by name " + Digits(i % 100),
                         u"By code\x00E6"
                         u"By name"});
    }
    return codes;
}

std::u16string CodesData(const std::vector<CodeTexts>& codes) {
    std::u16string data;
    for (const CodeTexts& code : codes) {
        data += code.description + kField + code.key + kField + u'1' + kField + u'0' + kField +
                code.report + kField + code.sortBy + kField + u'0' + kField + u'1' + kRecord;
    }
    return data;
}

struct PeerCode {
    QString description, key, report, sortBy;
    bool hasLookup = false, inMenu = false, entitySpecific = false, system = false;
};

QHash<QString, PeerCode> PeerCodes(const QString& data) {
    QHash<QString, PeerCode> codes;
    for (const QString& record : data.split(QChar(kRecord), Qt::SkipEmptyParts)) {
        const QStringList fields = record.split(QChar(kField));
        if (fields.size() < 9) continue;
        codes.insert(fields[1].toCaseFolded(),
                     {fields[0], fields[1], fields[4], fields[5] + QChar(kField) + fields[6],
                      fields[2].toInt() == 1, fields[3] == u"1", fields[7].toInt() == 1,
                      fields[8].toInt() == 1});
    }
    return codes;
}

Case BuildCodes(double scale) {
    const auto codes = std::make_shared<std::vector<CodeTexts>>(
        MakeCodes(static_cast<std::size_t>(100'000 * scale)));
    const auto data = std::make_shared<std::u16string>(CodesData(*codes));
    const auto peerData = std::make_shared<QString>(ToQString(*data));
    return {.floor =
                [codes] {
                    const std::vector<CodeTexts> copy = *codes;
                    Use(&copy);
                },
            .ours = [data] { Session().BuildCodesCollection(*data); },
            .peer =
                [peerData] {
                    const QHash<QString, PeerCode> built = PeerCodes(*peerData);
                    Use(&built);
                }};
}

/// Keys as a host writes them, half of them in lower case, in random order.
struct LookUps {
    std::vector<std::u16string> keys;
    std::vector<std::int32_t> positions;  ///< from 1
};

LookUps MakeLookUps(const std::vector<std::u16string>& stored) {
    LookUps lookUps;
    lookUps.positions.resize(stored.size());
    for (std::size_t i = 0; i < stored.size(); ++i) {
        lookUps.positions[i] = static_cast<std::int32_t>(i) + 1;
    }
    std::ranges::shuffle(lookUps.positions, std::mt19937(7));
    for (const std::int32_t position : lookUps.positions) {
        std::u16string key = stored[static_cast<std::size_t>(position) - 1];
        if (position % 2 == 0) {
            for (char16_t& c : key) c = c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
        }
        lookUps.keys.push_back(std::move(key));
    }
    return lookUps;
}

bool SameKey(std::u16string_view left, std::u16string_view right) {
    const auto fold = [](char16_t c) {
        return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c;
    };
    return std::ranges::equal(left, right, {}, fold, fold);
}

Case FindCodes(std::size_t count) {
    const std::vector<CodeTexts> codes = MakeCodes(count);
    const std::u16string data = CodesData(codes);
    std::vector<std::u16string> keys;
    for (const CodeTexts& code : codes) keys.push_back(code.key);
    const auto lookUps = std::make_shared<LookUps>(MakeLookUps(keys));
    const auto floorItems = std::make_shared<std::vector<std::shared_ptr<const CodeTexts>>>();
    for (const CodeTexts& code : codes) {
        floorItems->push_back(std::make_shared<const CodeTexts>(code));
    }
    Session().BuildCodesCollection(data);
    const auto collection = Session().GetCodesCollection();
    const auto peer = std::make_shared<QHash<QString, PeerCode>>(PeerCodes(ToQString(data)));
    const auto peerKeys = std::make_shared<std::vector<QString>>();
    for (const std::u16string& key : lookUps->keys) peerKeys->push_back(ToQString(key));
    return {.floor =
                [lookUps, floorItems] {
                    for (std::size_t i = 0; i < lookUps->keys.size(); ++i) {
                        const auto at = static_cast<std::size_t>(lookUps->positions[i]) - 1;
                        const std::shared_ptr<const CodeTexts> found = (*floorItems)[at];
                        if (SameKey(found->key, lookUps->keys[i])) Use(found.get());
                    }
                },
            .ours =
                [lookUps, collection] {
                    for (const std::u16string& key : lookUps->keys)
                        Use(collection->Item(key).get());
                },
            .peer =
                [peer, peerKeys] {
                    for (const QString& key : *peerKeys) {
                        Use(&*peer->constFind(key.toCaseFolded()));
                    }
                }};
}

Case BuildRightsAndLookUp(double scale) {
    const auto count = static_cast<std::size_t>(10'000 * scale);
    std::vector<std::u16string> keys;
    std::u16string data;
    for (std::size_t i = 0; i < count; ++i) {
        keys.push_back(u"SCREEN." + Digits(i));
        if (i > 0) data += kField;
        data += keys.back() + u'F';
    }
    const auto lookUps = std::make_shared<LookUps>(MakeLookUps(keys));
    const auto stored = std::make_shared<std::vector<std::u16string>>(std::move(keys));
    const auto text = std::make_shared<std::u16string>(std::move(data));
    const auto peerText = std::make_shared<QString>(ToQString(*text));
    const auto peerKeys = std::make_shared<std::vector<QString>>();
    for (const std::u16string& key : lookUps->keys) peerKeys->push_back(ToQString(key));
    return {.floor =
                [stored, lookUps] {
                    const std::vector<std::u16string> copy = *stored;
                    for (std::size_t i = 0; i < lookUps->keys.size(); ++i) {
                        const auto at = static_cast<std::size_t>(lookUps->positions[i]) - 1;
                        if (SameKey(copy[at], lookUps->keys[i])) Use(&copy[at]);
                    }
                },
            .ours =
                [text, lookUps] {
                    Session().BuildSecurityCollection(*text);
                    const auto rights = Session().GetSecurityItemsCollection();
                    for (const std::u16string& key : lookUps->keys) Use(rights->Item(key).get());
                },
            .peer =
                [peerText, peerKeys] {
                    QHash<QString, int> rights;
                    for (const QString& item : peerText->split(QChar(kField), Qt::SkipEmptyParts)) {
                        rights.insert(item.chopped(1).toCaseFolded(),
                                      item.right(1).toInt(nullptr, 16));
                    }
                    for (const QString& key : *peerKeys) {
                        Use(&*rights.constFind(key.toCaseFolded()));
                    }
                }};
}

}  // namespace

Rows RefdataRows() {
    const std::string peer = "split and QHash on case-folded keys";
    return {
        {"BuildCodesCollection, 100,000 records of 9 fields", "allocate and copy the text fields",
         1.6, peer, 4, BuildCodes},
        {"Item(key), 256 entries", "compare at the known position", 0, "QHash, case-folded key", 3,
         [](double) { return FindCodes(256); }, false},
        {"Item(key), 100,000 entries", "compare at the known position", 2.5,
         "QHash, case-folded key", 0,
         [](double scale) { return FindCodes(static_cast<std::size_t>(100'000 * scale)); }},
        {"BuildSecurityCollection, 10,000 items, 10,000 look-ups",
         "allocate and copy the keys, compare at the known position", 1.6, peer, 4,
         BuildRightsAndLookUp},
    };
}

}  // namespace bench
