// SPDX-License-Identifier: MIT
#include <halvekutils/core/Platform.h>
#include <halvekutils/core/Session.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/core/WayIn.h>
#include <halvekutils/text/CharacterFilter.h>
#include <halvekutils/text/DelimitedText.h>
#include <halvekutils/text/ServerDates.h>

#include <optional>

namespace halvek {

namespace {

constexpr char16_t kIncorrectTime[] = u"Error: time is incorrect";

}  // namespace

// Delimited text

std::u16string Utils::SplitStr(TextIn strSplit, TextIn delim, std::int16_t intNum) const {
    return halvek::SplitStr(strSplit, delim, intNum);
}

bool Utils::StrToArr(TextIn Str, TextIn DEL, StringArray& Arr) const {
    return halvek::StrToArr(Str, DEL, Arr);
}

std::int32_t Utils::CountInstances(TextIn strSearchIn, TextIn strSearchFor) const {
    return halvek::CountInstances(strSearchIn, strSearchFor);
}

bool Utils::ChunkStrToArr(TextIn Str, StringArray& Arr, std::int32_t ChunkLength,
                          TextIn DEL) const {
    return halvek::ChunkStrToArr(Str, Arr, ChunkLength, DEL);
}

void Utils::SplitLeftRight(TextIn strSplit, TextIn Delimiter, std::u16string& strLeft,
                           std::u16string& strRight) {
    const auto prefix = [&] { return u"Error in SplitLeftRight :" + strSplit.Str() + u", "; };
    EnteredVoid(*this, OnFault::Beep, prefix,
                [&] { halvek::SplitLeftRight(strSplit, Delimiter, strLeft, strRight); });
}

// Characters

bool Utils::IsAlpha(TextIn strText) const {
    return halvek::IsAlpha(strText);
}

bool Utils::RemoveUnwantedChars(TextIn strIN, std::u16string& strOUT, TextIn strReplaceWith,
                                bool bShowMessage, bool bDoNotRemoveUnwantedChars,
                                TextIn strExceptions) {
    const auto self = shared_from_this();
    const FilterReport report = halvek::RemoveUnwantedChars(
        strIN, strOUT, strReplaceWith, bDoNotRemoveUnwantedChars, strExceptions);
    if (bShowMessage && report.found) {
        ShowMsgBox(report.message, mbOkOnly, mbExclamation, AppName());
    }
    return report.found;
}

bool Utils::IsUnwantedChar(std::int32_t locChar) const {
    return halvek::IsUnwantedChar(locChar);
}
bool Utils::IsDateChar(std::int32_t locChar) const {
    return halvek::IsDateChar(locChar);
}

std::u16string Utils::RemoveUnprintableChars(TextIn Str) const {
    return halvek::RemoveUnprintableChars(Str);
}

// Dates of the server

std::u16string Utils::ConvertNumberToDate(TextIn strDate, bool bConvert) {
    const auto convert = [&] {
        return bConvert ? DateOfDigits(strDate, *TheSession().machine) : DigitsOfDate(strDate);
    };
    return Entered(*this, OnFault::Quiet, u"Error in Utils.ConvertNumberToDate ", std::u16string(),
                   convert);
}

std::u16string Utils::ConvertHDate(TextIn HDate) {
    std::u16string text;
    EnteredVoid(*this, OnFault::Quiet, u"Error in Utils.ConvertHDate ", [&] {
        if (HDate.empty()) return;
        const std::optional<DateTime> when = ReadServerDate(HDate, *TheSession().machine);
        text = when ? DateTimeText(*when) : kIncorrectTime;
        if (when || !DBG()) return;
        Platform::Installed().ShowStockMessage(u"Hey this time is not correct.....",
                                               StockIcon::None, AppName());
    });
    return text;
}

}  // namespace halvek
