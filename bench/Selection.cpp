// SPDX-License-Identifier: MIT
#include "Rows.h"

#include <halvekutils/platform/Services.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/selection/SelectGrid.h>

#include <QString>
#include <QStringList>

#include <memory>

namespace bench {

namespace {

using namespace halvek;

constexpr std::size_t kChosen = 10'000;

std::u16string CodeAt(std::size_t number) {
    std::u16string code = u"C000000";
    for (std::size_t i = code.size() - 1; number > 0; number /= 10, --i) {
        code[i] = static_cast<char16_t>(u'0' + number % 10);
    }
    return code;
}

std::u16string ListText(std::size_t entries) {
    std::u16string text = u"HEADER";
    for (std::size_t i = 0; i < entries; ++i) {
        text += u':' + CodeAt(i) + u"\tDiagnosis with a name of usual length\t0";
    }
    return text;
}

/// Every n-th code of a list, separated by ",".
std::u16string ChosenText(std::size_t entries, std::size_t chosen) {
    std::u16string text;
    for (std::size_t i = 0; i < chosen; ++i) {
        if (i > 0) text += u',';
        text += CodeAt(i * (entries / chosen));
    }
    return text;
}

std::unique_ptr<SelectGrid> Open(const std::u16string& list, const std::u16string& chosen) {
    auto grid = std::make_unique<SelectGrid>(
        SelectionRequest{.listName = u"Diagnoses", .allValues = list, .selectedValues = chosen},
        Services::Current(), [](const SelectionMessage&) {});
    grid->Prepare();
    return grid;
}

/// Looks up each code by comparing it with the entries, from the first on.
std::size_t ScanPerCode(std::u16string_view list, std::u16string_view chosen) {
    std::vector<std::u16string_view> codes;
    for (std::size_t at = 0; (at = list.find(u':', at)) != list.npos;) {
        ++at;
        codes.push_back(list.substr(at, list.find(u'\t', at) - at));
    }
    std::size_t found = 0;
    for (std::size_t at = 0; at < chosen.size();) {
        const std::u16string_view code = chosen.substr(at, chosen.find(u',', at) - at);
        for (std::size_t i = 0; i < codes.size(); ++i) {
            if (codes[i] == code) {
                found += i;
                break;
            }
        }
        at += code.size() + 1;
    }
    return found;
}

Case LoadAndMark(double scale) {
    const auto entries = static_cast<std::size_t>(100'000 * scale);
    const auto list = std::make_shared<std::u16string>(ListText(entries));
    const auto chosen = std::make_shared<std::u16string>(ChosenText(entries, entries / 10));
    return {.floor =
                [list] {
                    std::size_t separators = 0;
                    for (const char16_t c : *list) separators += c == u':' || c == u'\t' ? 1 : 0;
                    Use(&separators);
                },
            .ours = [list, chosen] { Use(Open(*list, *chosen).get()); },
            .peer =
                [list, chosen] {
                    const std::size_t found = ScanPerCode(*list, *chosen);
                    Use(&found);
                }};
}

Case Toggle(double scale) {
    const auto chosenCount = static_cast<std::size_t>(kChosen * scale);
    const std::size_t entries = 10 * chosenCount;
    const std::u16string list = ListText(entries);
    const std::u16string chosen = ChosenText(entries, chosenCount);
    const std::shared_ptr<SelectGrid> grid = Open(list, chosen);
    const auto text = std::make_shared<std::u16string>(chosen);
    const auto buffer = std::make_shared<std::u16string>(chosen);
    const auto peerChosen = std::make_shared<QString>(ToQString(chosen));
    const CellPlace cell = CheckCellOf(static_cast<std::int32_t>(entries / 2) + 2);
    return {.floor =
                [text, buffer] {
                    for (int i = 0; i < 2; ++i) {
                        text->copy(buffer->data(), text->size());
                        Use(buffer->data());
                    }
                },
            .ours =
                [grid, cell] {
                    for (int i = 0; i < 2; ++i) grid->ClickCell(cell.row, cell.column);
                    Use(grid.get());
                },
            .peer =
                [peerChosen] {
                    for (int i = 0; i < 2; ++i) {
                        QStringList codes = peerChosen->split(u',');
                        codes.swapItemsAt(codes.size() / 2, codes.size() - 1);
                        *peerChosen = codes.join(u',');
                    }
                    Use(peerChosen.get());
                }};
}

/// A letter typed into the find bar: `word` is looked for from scratch.
Case FindWord(double scale, const QString& word) {
    const auto entries = static_cast<std::size_t>(100'000 * scale);
    const auto list = std::make_shared<std::u16string>(ListText(entries));
    const std::shared_ptr<SelectGrid> grid = Open(*list, {});
    const auto texts = std::make_shared<QStringList>(ToQString(*list).split(u':'));
    return {.floor =
                [list] {
                    std::size_t found = 0;
                    for (const char16_t c : *list) found += c == u'q' ? 1 : 0;
                    Use(&found);
                },
            .ours =
                [grid, word] {
                    grid->Find({});
                    grid->Find(word);
                    Use(grid.get());
                },
            .peer =
                [texts, word] {
                    const QStringList found = texts->filter(word, Qt::CaseInsensitive);
                    Use(&found);
                }};
}

}  // namespace

Rows SelectionRows() {
    return {{"selection list: load 100,000 entries, mark 10,000 codes", "one pass over the text", 0,
             "a scan per code", 500, LoadAndMark},
            {"selection: toggle one of 10,000 chosen codes on and off",
             "10,000 codes moved in memory, twice", 5, "split and join", 20, Toggle},
            {"find bar, 100,000 entries: a letter that all have", "one pass over the text", 0,
             "QStringList::filter", 1, [](double scale) { return FindWord(scale, "u"); }},
            {"find bar, 100,000 entries: a letter that none has", "one pass over the text", 0,
             "QStringList::filter", 1, [](double scale) { return FindWord(scale, "q"); }}};
}

}  // namespace bench
