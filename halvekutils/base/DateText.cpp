// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/Characters.h>
#include <halvekutils/base/DateText.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/RuntimeError.h>

#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace halvek {

namespace {

constexpr std::u16string_view kMonthNames[] = {
    u"January", u"February", u"March",     u"April",   u"May",      u"June",
    u"July",    u"August",   u"September", u"October", u"November", u"December",
};

bool InRange(DateTime when) {
    return when >= kFirstDateTime && when <= kLastDateTime;
}

bool IsTimeOfDay(const DateParts& parts) {
    return parts.hour >= 0 && parts.hour < 24 && parts.minute >= 0 && parts.minute < 60 &&
           parts.second >= 0 && parts.second < 60;
}

bool IsCalendarDay(const DateParts& parts) {
    // The calendar types keep only the low bits, so the numbers are checked first.
    if (parts.year < 100 || parts.year > 9999 || parts.month > 12 || parts.day > 31) return false;
    const std::chrono::year_month_day date(std::chrono::year(parts.year),
                                           std::chrono::month(parts.month),
                                           std::chrono::day(parts.day));
    return date.ok();
}

std::chrono::seconds TimeOfDay(const DateParts& parts) {
    return std::chrono::hours(parts.hour) + std::chrono::minutes(parts.minute) +
           std::chrono::seconds(parts.second);
}

std::optional<DateTime> Joined(const DateParts& parts) {
    if (!IsCalendarDay(parts) || !IsTimeOfDay(parts)) return std::nullopt;
    return detail::MidnightOf(parts.year, parts.month, parts.day) + TimeOfDay(parts);
}

// Writing

constexpr char16_t Tens(unsigned number) {
    return static_cast<char16_t>(u'0' + number / 10);
}
constexpr char16_t Ones(unsigned number) {
    return static_cast<char16_t>(u'0' + number % 10);
}

void AppendTwoDigits(std::u16string& out, unsigned number) {
    out += Tens(number);
    out += Ones(number);
}

void AppendDate(std::u16string& out, const DateParts& parts) {
    const unsigned month = parts.month;
    const unsigned day = parts.day;
    const unsigned century = static_cast<unsigned>(parts.year) / 100;
    const unsigned year = static_cast<unsigned>(parts.year) % 100;
    const char16_t text[] = {Tens(month), Ones(month),   u'/',          Tens(day),  Ones(day),
                             u'/',        Tens(century), Ones(century), Tens(year), Ones(year)};
    out.append(text, std::size(text));
}

void AppendTime(std::u16string& out, const DateParts& parts) {
    const int hour = parts.hour % 12;
    AppendTwoDigits(out, static_cast<unsigned>(hour == 0 ? 12 : hour));
    out += u':';
    AppendTwoDigits(out, static_cast<unsigned>(parts.minute));
    out += u':';
    AppendTwoDigits(out, static_cast<unsigned>(parts.second));
    out += parts.hour < 12 ? u" AM" : u" PM";
}

// Reading

constexpr char16_t kNumber = u'9';
constexpr char16_t kWord = u'A';
constexpr char16_t kEnd = 0;

/// What a character starts: a number, a word, or a mark; kEnd for any other.
constexpr char16_t KindOf(char16_t character) {
    if (IsDigit(character)) return kNumber;
    if (IsLetter(character)) return kWord;
    return std::u16string_view(u"/-:,").find(character) == std::u16string_view::npos ? kEnd
                                                                                     : character;
}

struct Token {
    char16_t kind = kEnd;
    std::u16string_view text;
};

/// The parts of a text, one after the other. The Take functions advance only when they return true.
class Tokens {
  public:
    /// False when the text has a character that no date has, or more parts than any date.
    bool Split(std::u16string_view text) {
        std::size_t at = 0;
        for (std::size_t count = 0; count <= kMax; ++count) {
            while (at < text.size() && IsBlank(text[at])) ++at;
            if (at == text.size()) return true;
            const std::size_t end = EndOfToken(text, at);
            tokens_[count] = {KindOf(text[at]), text.substr(at, end - at)};
            if (tokens_[count].kind == kEnd) return false;
            at = end;
        }
        return false;
    }

    bool AtEnd() const { return KindAhead(0) == kEnd; }
    char16_t KindAhead(std::size_t steps) const { return tokens_[next_ + steps].kind; }
    std::u16string_view Text() const { return tokens_[next_].text; }

    bool Take(char16_t kind) {
        if (KindAhead(0) != kind) return false;
        ++next_;
        return true;
    }

    bool TakeWord(std::u16string_view word) { return EqualFolded(Text(), word) && Take(kWord); }

    template <class Integer>
    bool TakeNumber(std::size_t leastDigits, std::size_t mostDigits, Integer& number) {
        const std::u16string_view digits = Text();
        if (digits.size() < leastDigits || digits.size() > mostDigits || !Take(kNumber)) {
            return false;
        }
        number = 0;
        for (const char16_t digit : digits) number = number * 10 + Integer(digit - u'0');
        return true;
    }

  private:
    static constexpr std::size_t kMax = 12;  // 2004-03-07T02:05:09 PM

    /// Numbers and words are runs of characters; a mark is a single one.
    static std::size_t EndOfToken(std::u16string_view text, std::size_t at) {
        const char16_t kind = KindOf(text[at++]);
        if (kind != kNumber && kind != kWord) return at;
        while (at < text.size() && KindOf(text[at]) == kind) ++at;
        return at;
    }

    std::array<Token, kMax + 3> tokens_;  // with room to look two steps ahead of the last
    std::size_t next_ = 0;
};

bool ReadYear(Tokens& in, int& year) {
    const bool twoDigits = in.Text().size() == 2;
    if (!in.TakeNumber(2, 4, year)) return false;
    if (twoDigits) year += year < 30 ? 2000 : 1900;
    return true;
}

bool ReadMonthName(Tokens& in, unsigned& month) {
    for (month = 1; month <= 12; ++month) {
        const std::u16string_view name = kMonthNames[month - 1];
        if (in.TakeWord(name) || in.TakeWord(name.substr(0, 3))) return true;
    }
    return false;
}

/// The number of a month or a day.
bool ReadShort(Tokens& in, unsigned& number) {
    return in.TakeNumber(1, 2, number);
}

/// The mark between the parts of a date of digits: the one after its first number.
char16_t DateMark(const Tokens& in) {
    return in.KindAhead(1) == u'-' ? u'-' : u'/';
}

bool ReadMonthDayYear(Tokens& in, DateParts& parts) {
    const char16_t mark = DateMark(in);
    return ReadShort(in, parts.month) && in.Take(mark) && ReadShort(in, parts.day) &&
           in.Take(mark) && ReadYear(in, parts.year);
}

/// A "T" after the date must be followed by a time.
bool ReadYearMonthDay(Tokens& in, DateParts& parts) {
    const char16_t mark = DateMark(in);
    return in.TakeNumber(4, 4, parts.year) && in.Take(mark) && ReadShort(in, parts.month) &&
           in.Take(mark) && ReadShort(in, parts.day) && !(in.TakeWord(u"t") && in.AtEnd());
}

bool ReadNameDayYear(Tokens& in, DateParts& parts) {
    if (!ReadMonthName(in, parts.month) || !ReadShort(in, parts.day)) return false;
    in.Take(u',');
    return ReadYear(in, parts.year);
}

bool ReadDayNameYear(Tokens& in, DateParts& parts) {
    if (!ReadShort(in, parts.day)) return false;
    for (const char16_t mark : {u'-', u'/'}) {
        if (!in.Take(mark)) continue;
        return ReadMonthName(in, parts.month) && in.Take(mark) && ReadYear(in, parts.year);
    }
    if (!ReadMonthName(in, parts.month)) return false;
    in.Take(u',');
    return ReadYear(in, parts.year);
}

bool ReadDate(Tokens& in, DateParts& parts) {
    if (in.KindAhead(0) == kWord) return ReadNameDayYear(in, parts);
    if (in.KindAhead(1) == kWord || in.KindAhead(2) == kWord) return ReadDayNameYear(in, parts);
    if (in.Text().size() == 4) return ReadYearMonthDay(in, parts);
    return ReadMonthDayYear(in, parts);
}

/// Applies AM or PM, which needs an hour from 1 to 12.
bool ReadHalfOfDay(Tokens& in, int& hour) {
    const bool morning = in.TakeWord(u"am");
    if (!morning && !in.TakeWord(u"pm")) return true;
    if (hour < 1 || hour > 12) return false;
    hour = hour % 12 + (morning ? 0 : 12);
    return true;
}

bool ReadTime(Tokens& in, DateParts& parts) {
    if (!in.TakeNumber(1, 2, parts.hour) || !in.Take(u':')) return false;
    if (!in.TakeNumber(2, 2, parts.minute)) return false;
    if (in.Take(u':') && !in.TakeNumber(2, 2, parts.second)) return false;
    return ReadHalfOfDay(in, parts.hour) && in.AtEnd();
}

std::optional<DateTime> ReadTimeAlone(Tokens& in, DateTime today) {
    DateParts parts;
    if (!ReadTime(in, parts) || !IsTimeOfDay(parts) || !InRange(today)) return std::nullopt;
    return std::chrono::floor<std::chrono::days>(today) + TimeOfDay(parts);
}

}  // namespace

DateTime MakeDateTime(int year, unsigned month, unsigned day, int hour, int minute, int second) {
    const std::optional<DateTime> when = Joined({year, month, day, hour, minute, second});
    if (!when) throw RuntimeError(Fault::InvalidArgument);
    return *when;
}

DateParts PartsOf(DateTime when) {
    if (!InRange(when)) throw RuntimeError(Fault::Overflow);
    const auto midnight = std::chrono::floor<std::chrono::days>(when);
    const std::chrono::year_month_day date(midnight);
    const auto seconds = static_cast<int>((when - midnight).count());
    return {int(date.year()), unsigned(date.month()), unsigned(date.day()),
            seconds / 3600,   seconds / 60 % 60,      seconds % 60};
}

std::u16string DateTimeText(DateTime when) {
    const DateParts parts = PartsOf(when);
    std::u16string out;
    out.reserve(22);
    AppendDate(out, parts);
    if (parts.hour == 0 && parts.minute == 0 && parts.second == 0) return out;
    out += u' ';
    AppendTime(out, parts);
    return out;
}

std::u16string DateOnlyText(DateTime when) {
    std::u16string out;
    AppendDate(out, PartsOf(when));
    return out;
}

std::optional<DateTime> ParseDateTime(TextIn text, DateTime today) {
    Tokens in;
    if (!in.Split(text)) return std::nullopt;
    if (in.KindAhead(1) == u':') return ReadTimeAlone(in, today);
    DateParts parts;
    if (!ReadDate(in, parts)) return std::nullopt;
    if (!in.AtEnd() && !ReadTime(in, parts)) return std::nullopt;
    return Joined(parts);
}

}  // namespace halvek
