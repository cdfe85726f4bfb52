// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"
#include "tests/FaultOf.h"
#include "tests/TestMachine.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/core/ServerTextCheck.h>
#include <halvekutils/text/ServerDates.h>

using namespace halvek;

namespace {

void CheckText(const std::u16string& text, TestMachine& machine) {
    if (const auto date = ParseDateTime(text, machine.now)) {
        Require(ParseDateTime(DateTimeText(*date), *date) == date, "a date's text reads back");
    }
    FaultOf([&] { ServerClockOffset(text, machine); });
    const auto sent = ReadServerDate(text, machine);
    const std::size_t comma = std::min(text.find(u','), text.size());
    const bool isLate = comma < text.size() && Val(text.substr(comma + 1)) >= 86'400;
    Require(sent.has_value() != isLate, "a day ends after 86,400 seconds");
    const std::u16string digits = DigitsOfDate(text);
    Require(!digits.starts_with(u' ') && !digits.ends_with(u' '), "digits are trimmed");
    const std::u16string converted = DateOfDigits(text, machine);
    Require(converted.empty() || Val(converted) <= 12, "no month above 12");
}

/// Writes and reads a second between the first and the last date in every form that it has.
void CheckSecond(DateTime when, TestMachine& machine) {
    using namespace std::chrono;
    const std::u16string text = DateTimeText(when);
    Require(ParseDateTime(text, machine.now) == when, "a date and time read back");
    const DateParts parts = PartsOf(when);
    Require(MakeDateTime(parts.year, parts.month, parts.day, parts.hour, parts.minute,
                         parts.second) == when,
            "the parts of a date make it");
    const std::u16string day = DateOnlyText(when);
    Require(DateOfDigits(DigitsOfDate(day), machine) == day, "a day's digits read back");

    const seconds past = when - local_days(1840y / 12 / 31);
    const auto days = floor<std::chrono::days>(past);
    const std::u16string sent =
        IntegerText(days.count()) + u',' + IntegerText((past - days).count());
    Require(ReadServerDate(sent, machine) == when, "the server's counts give the date");
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    TestMachine machine("");
    const auto last = (kLastDateTime - kFirstDateTime).count();
    const auto past = input.ConsumeIntegralInRange<std::int64_t>(0, last);
    CheckSecond(kFirstDateTime + std::chrono::seconds(past), machine);
    const std::u16string text = RestAsText(input);
    CheckText(text, machine);
    Remarks remarks;
    const std::u16string lines = Narrowed(text, u"0123456789,,\n-.x");
    ServerTextCheck::Dates(lines, remarks);
    DoubledIn(remarks, lines);
}
