// SPDX-License-Identifier: MIT
#include "pages/DelimitedTextPage.h"

#include "Shown.h"
#include "tour/Tour.h"

#include <cstdint>
#include <string>

namespace frontdesk {

using halvek::StringArray;

namespace {

CallBox* MakeSplitStr(Desk& desk) {
    return new CallBox("One field of a text", "Spl&itStr",
                       {{"Text", "Visit^Provider^Room"}, {"Delimiter", "^"}, {"Field", 2}},
                       [&desk](const QVariantList& arguments) {
                           const QString text = arguments[0].toString();
                           const QString delimiter = arguments[1].toString();
                           const auto number = static_cast<std::int16_t>(arguments[2].toInt());
                           QString result = Shown(desk.Library().SplitStr(text, delimiter, number));
                           desk.Calls().Add("SplitStr", Args(text, delimiter, number), result);
                           return result;
                       });
}

CallBox* MakeStrToArr(Desk& desk) {
    return new CallBox("All fields of a text", "Str&ToArr",
                       {{"Text", "INS|REF|PRV"}, {"Delimiter", "|"}},
                       [&desk](const QVariantList& arguments) {
                           const QString text = arguments[0].toString();
                           const QString delimiter = arguments[1].toString();
                           StringArray array;
                           const bool returned = desk.Library().StrToArr(text, delimiter, array);
                           QString result = Shown(returned) + ", array " + Shown(array);
                           desk.Calls().Add("StrToArr", Args(text, delimiter), result);
                           return result;
                       });
}

CallBox* MakeChunkStrToArr(Desk& desk) {
    return new CallBox("Pieces that end at a delimiter", "Chun&kStrToArr",
                       {{"Text", "INS|REF|PRV|LOC|"}, {"Longest piece", 9}, {"Delimiter", "|"}},
                       [&desk](const QVariantList& arguments) {
                           const QString text = arguments[0].toString();
                           const int length = arguments[1].toInt();
                           const QString delimiter = arguments[2].toString();
                           StringArray array;
                           const bool returned =
                               desk.Library().ChunkStrToArr(text, array, length, delimiter);
                           QString result = Shown(returned) + ", array " + Shown(array);
                           desk.Calls().Add("ChunkStrToArr", Args(text, length, delimiter), result);
                           return result;
                       });
}

CallBox* MakeCountInstances(Desk& desk) {
    return new CallBox("How often a text occurs in another", "C&ountInstances",
                       {{"Search in", "a,b,,c"}, {"Search for", ","}},
                       [&desk](const QVariantList& arguments) {
                           const QString text = arguments[0].toString();
                           const QString sought = arguments[1].toString();
                           QString result = Shown(desk.Library().CountInstances(text, sought));
                           desk.Calls().Add("CountInstances", Args(text, sought), result);
                           return result;
                       });
}

CallBox* MakeSplitLeftRight(Desk& desk) {
    return new CallBox("What stands before and after the first delimiter", "Split&LeftRight",
                       {{"Text", "Room=12"}, {"Delimiter", "="}},
                       [&desk](const QVariantList& arguments) {
                           const QString text = arguments[0].toString();
                           const QString delimiter = arguments[1].toString();
                           std::u16string left = u"as it was";
                           std::u16string right = u"as it was";
                           desk.Library().SplitLeftRight(text, delimiter, left, right);
                           QString result = "left " + Shown(left) + ", right " + Shown(right);
                           desk.Calls().Add("SplitLeftRight", Args(text, delimiter), result);
                           return result;
                       });
}

}  // namespace

DelimitedTextPage::DelimitedTextPage(Desk& desk)
    : Page("&Delimited text", "Cuts the server's strings into fields, arrays and pieces."),
      splitStr_(MakeSplitStr(desk)),
      strToArr_(MakeStrToArr(desk)),
      chunkStrToArr_(MakeChunkStrToArr(desk)),
      countInstances_(MakeCountInstances(desk)),
      splitLeftRight_(MakeSplitLeftRight(desk)) {
    auto* lastRow = new QHBoxLayout;
    lastRow->addWidget(countInstances_);
    lastRow->addWidget(splitLeftRight_);
    Body().addWidget(splitStr_);
    Body().addWidget(strToArr_);
    Body().addWidget(chunkStrToArr_);
    Body().addLayout(lastRow);
    Body().addStretch();
}

void DelimitedTextPage::Play(Tour& tour) {
    struct Case {
        CallBox* box;
        QVariantList arguments;
        QString result;
    };
    const Case cases[] = {
        {splitStr_, {"A^B^C", "^", 4}, R"("")"},
        {splitStr_, {"A~|B~|C", "~|", 2}, R"("B")"},
        {splitStr_, {"A^B^C", "^", 0}, R"("")"},
        {splitStr_, {"Visit^Provider^Room", "^", 2}, R"("Provider")"},
        {strToArr_, {"", "|"}, R"(true, array (0 to 1) "", "")"},
        {strToArr_, {"INS|REF|PRV|", "|"}, R"(true, array (0 to 3) "", "INS", "REF", "PRV")"},
        {chunkStrToArr_,
         {"AB|CD|EF|", 3, "|"},
         R"(true, array (0 to 3) "AB|", "AB|", "CD|", "EF|")"},
        {chunkStrToArr_, {"no delimiter", 4, "|"}, R"(false, array (0 to 0) "")"},
        {chunkStrToArr_, {"fits", 10, "|"}, "false, array unallocated"},
        {chunkStrToArr_,
         {"INS|REF|PRV|LOC|", 9, "|"},
         R"(true, array (0 to 1) "INS|REF|", "PRV|LOC|")"},
        {countInstances_, {"anything", ""}, "0"},
        {countInstances_, {"a,b,,c", ","}, "3"},
        {splitLeftRight_, {"no delimiter", "="}, R"(left "as it was", right "as it was")"},
        {splitLeftRight_, {"Room=12", "="}, R"(left "Room", right "12")"},
    };
    for (const Case& each : cases) {
        tour.ExpectResult(each.box->MemberName(), each.box->CallWith(each.arguments), each.result);
    }
}

}  // namespace frontdesk
