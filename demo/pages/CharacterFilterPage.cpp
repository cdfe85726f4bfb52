// SPDX-License-Identifier: MIT
#include "pages/CharacterFilterPage.h"

#include "Shown.h"
#include "tour/Tour.h"

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/qt/QtText.h>

#include <QHBoxLayout>

#include <cstdint>
#include <string>

namespace frontdesk {

namespace {

/// The fields take control characters as results show them.
QString Unescaped(QString text) {
    return text.replace("\\r", "\r").replace("\\n", "\n").replace("\\t", "\t");
}

CallBox* MakeRemoveUnwantedChars(Desk& desk) {
    return new CallBox(
        "The characters that no stored text may hold", "RemoveUn&wantedChars",
        {{"Text", R"(Smith|Jones\tsince 2004)"},
         {"Replace with", ""},
         {"Exceptions", ""},
         {"Show message", false},
         {"Only look", false}},
        [&desk](const QVariantList& arguments) {
            const QString text = Unescaped(arguments[0].toString());
            const QString replacement = arguments[1].toString();
            const QString exceptions = arguments[2].toString();
            const bool showsMessage = arguments[3].toBool();
            const bool onlyLooks = arguments[4].toBool();
            std::u16string out;
            const bool found = desk.Library().RemoveUnwantedChars(
                text, out, replacement, showsMessage, onlyLooks, exceptions);
            QString result = Shown(found) + ", strOUT " + Shown(out);
            desk.Calls().Add("RemoveUnwantedChars",
                             Args(text, replacement, showsMessage, onlyLooks, exceptions), result);
            return result;
        });
}

CallBox* MakeRemoveUnprintableChars(Desk& desk) {
    return new CallBox("Unprintable characters made visible", "RemoveUn&printableChars",
                       {{"Text", R"(line one\r\nline two\tand a tab)"}},
                       [&desk](const QVariantList& arguments) {
                           const QString text = Unescaped(arguments[0].toString());
                           QString result = Shown(desk.Library().RemoveUnprintableChars(text));
                           desk.Calls().Add("RemoveUnprintableChars", Args(text), result);
                           return result;
                       });
}

CallBox* MakeIsAlpha(Desk& desk) {
    return new CallBox("Letters from A to Z only", "Is&Alpha", {{"Text", "Smith"}},
                       [&desk](const QVariantList& arguments) {
                           const QString text = arguments[0].toString();
                           QString result = Shown(desk.Library().IsAlpha(text));
                           desk.Calls().Add("IsAlpha", Args(text), result);
                           return result;
                       });
}

CallBox* MakeIsUnwantedChar(Desk& desk) {
    return new CallBox("A code that no stored text may hold", "IsUnwanted&Char", {{"Code", 124}},
                       [&desk](const QVariantList& arguments) {
                           const int code = arguments[0].toInt();
                           QString result = Shown(desk.Library().IsUnwantedChar(code));
                           desk.Calls().Add("IsUnwantedChar", Args(code), result);
                           return result;
                       });
}

QString ResultOfIsDateChar(halvek::Utils& library, int code) {
    try {
        return Shown(library.IsDateChar(code));
    } catch (const halvek::RuntimeError& fault) {
        return QString("fault %1, %2")
            .arg(fault.Number())
            .arg(halvek::ToQString(fault.Description()));
    }
}

CallBox* MakeIsDateChar(Desk& desk) {
    return new CallBox("A code that may be typed into a date", "Is&DateChar", {{"Code", 47}},
                       [&desk](const QVariantList& arguments) {
                           const int code = arguments[0].toInt();
                           QString result = ResultOfIsDateChar(desk.Library(), code);
                           desk.Calls().Add("IsDateChar", Args(code), result);
                           return result;
                       });
}

}  // namespace

CharacterFilterPage::CharacterFilterPage(Desk& desk)
    : Page("Character &filter",
           "Keeps the server's separators and control characters out of what users type. In a "
           "text, \\t, \\r and \\n stand for a tab, a carriage return and a line feed."),
      removeUnwantedChars_(MakeRemoveUnwantedChars(desk)),
      removeUnprintableChars_(MakeRemoveUnprintableChars(desk)),
      isAlpha_(MakeIsAlpha(desk)),
      isUnwantedChar_(MakeIsUnwantedChar(desk)),
      isDateChar_(MakeIsDateChar(desk)) {
    auto* lastRow = new QHBoxLayout;
    lastRow->addWidget(isAlpha_);
    lastRow->addWidget(isUnwantedChar_);
    lastRow->addWidget(isDateChar_);
    Body().addWidget(removeUnwantedChars_);
    Body().addWidget(removeUnprintableChars_);
    Body().addLayout(lastRow);
    Body().addStretch();
}

void CharacterFilterPage::PlayTexts(Tour& tour) {
    struct Case {
        CallBox* box;
        QVariantList arguments;
        QString result;
    };
    const Case cases[] = {
        {removeUnwantedChars_, {"", "_", "", false, false}, R"(false, strOUT "")"},
        {removeUnwantedChars_,
         {"plain ~ text", "", "", true, false},
         R"(false, strOUT "plain ~ text")"},
        {removeUnwantedChars_, {R"(a|b\tc)", "", "", false, false}, R"(true, strOUT "abc")"},
        {removeUnwantedChars_, {R"(a|b\tc)", "_", "|", false, false}, R"(true, strOUT "a|b_c")"},
        {removeUnwantedChars_, {"12:30", "", "", false, true}, R"(true, strOUT "12:30")"},
        {removeUnprintableChars_, {R"(a\tb\r\nc)"}, R"("a<9>b<13>\r\n<10>c")"},
        {removeUnprintableChars_, {"Zo\u00eb"}, R"("Zo<235>")"},
        {isAlpha_, {""}, "true"},
        {isAlpha_, {"van Dyke"}, "false"},
        {isAlpha_, {"Smith"}, "true"},
        {isUnwantedChar_, {126}, "false"},
        {isUnwantedChar_, {124}, "true"},
        {isDateChar_, {8}, "true"},
        {isDateChar_, {65}, "false"},
        {isDateChar_, {-1}, "fault 5, Invalid argument: character code -1"},
        {isDateChar_, {47}, "true"},
    };
    for (const Case& each : cases) {
        tour.ExpectResult(each.box->MemberName(), each.box->CallWith(each.arguments), each.result);
    }
}

void CharacterFilterPage::PlayMessages(Tour& tour) {
    const struct {
        const char* name;
        QVariantList arguments;
        const char* result;
    } cases[] = {
        {"characters-found", {"Room 12|13", "", "", true, true}, R"(true, strOUT "Room 12|13")"},
        {"characters-removed-but-one",
         {R"(Smith|Jones\tsince 2004)", "", "|", true, false},
         R"(true, strOUT "Smith|Jonessince 2004")"},
        {"characters-removed",
         {R"(Smith|Jones\tsince 2004)", " ", "", true, false},
         R"(true, strOUT "Smith Jones since 2004")"},
    };
    for (const auto& each : cases) {
        QString result;
        tour.Answer(each.name, {tour.Snapshot(each.name), Click("arrCmd_0")},
                    [&] { result = removeUnwantedChars_->CallWith(each.arguments); });
        tour.ExpectResult(each.name, result, each.result);
    }
}

void CharacterFilterPage::Play(Tour& tour) {
    PlayTexts(tour);
    PlayMessages(tour);
}

}  // namespace frontdesk
