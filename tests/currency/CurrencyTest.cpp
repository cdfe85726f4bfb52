#include "tests/CleanState.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/currency/AmountText.h>
#include <halvekutils/currency/CurrencyHandlers.h>
#include <halvekutils/currency/CurrencyKeys.h>
#include <halvekutils/platform/TextField.h>

#include <gtest/gtest.h>

#include <gmock/gmock.h>

#include <memory>
#include <random>
#include <stdexcept>
#include <string>

namespace halvek {
namespace {

constexpr auto kUnsigned = AmountSign::Unsigned;
constexpr auto kSigned = AmountSign::Signed;

/// A field written as "12|.50" with its caret, or as "1[2.5]0" with its selection.
TextField FieldOf(std::u16string shown) {
    const auto start = static_cast<std::int32_t>(shown.find_first_of(u"|["));
    const auto end = static_cast<std::int32_t>(shown.find(u']'));
    std::erase_if(shown, [](char16_t c) { return c == u'|' || c == u'[' || c == u']'; });
    return TextField(shown, start, end < 0 ? 0 : end - start - 1);
}

std::string Shown(const TextField& field) {
    std::u16string shown = field.Text();
    const auto start = static_cast<std::size_t>(field.SelStart());
    const auto length = static_cast<std::size_t>(field.SelLength());
    if (length > 0) shown.insert(start + length, 1, u']');
    return ToUtf8(shown.insert(start, 1, length > 0 ? u'[' : u'|'));
}

/// A key as a text box has it: judged, inserted if it passes, and the change cut. "<" is Backspace.
void Press(TextField& field, char16_t letter, AmountSign sign) {
    const std::u16string before = field.Text();
    auto key = static_cast<std::int16_t>(letter == u'<' ? 8 : letter);
    PressCurrencyKey(field, key, sign);
    if (key != 0) {
        const auto start = static_cast<std::size_t>(field.SelStart());
        const auto length = static_cast<std::size_t>(field.SelLength());
        const bool erasesOne = key == 8 && length == 0 && start > 0;
        const std::size_t at = erasesOne ? start - 1 : start;
        const std::u16string typed(key == 8 ? 0 : 1, letter);
        field.Text(field.Text().replace(at, erasesOne ? 1 : length, typed));
        field.SelStart(static_cast<std::int32_t>(at + typed.size()));
    }
    if (field.Text() != before) CutDecimals(field, sign);
}

TEST(Currency, KeysGiveTheTextAndTheCaret) {
    const struct {
        AmountSign sign;
        const char16_t* before;
        const char16_t* keys;
        const char* after;
    } rows[] = {
        {kUnsigned, u"|", u"12.345", "12.34|"},
        {kUnsigned, u"|", u".", "0.|"},
        {kUnsigned, u"|", u"a,+ $\u0665\uFF15-7", "7|"},
        {kUnsigned, u"|", u"123456789.129", "1234567.12|"},
        {kUnsigned, u"12|34567", u"8", "1234567|"},
        {kUnsigned, u"1|234567.12", u"8", "1234567.12|"},
        {kUnsigned, u"|1234567.1", u"8", "8|1234567.1"},
        {kUnsigned, u"1,234,567|.10", u"8", "1,234,567.10|"},
        {kUnsigned, u"$1,2|34.10", u"8", "$1,28|34.10"},
        {kUnsigned, u"$12.34|", u"5", "$12.34|"},
        {kUnsigned, u"$12.3|4", u"5", "$12.35|"},
        {kUnsigned, u"1|.23.4", u".", "1.|23.4"},
        {kUnsigned, u"$1|.5", u".", "$1.|5"},
        {kUnsigned, u"12|.34", u"9", "129|.34"},
        {kUnsigned, u"12.|34", u"9", "12.93|"},
        {kUnsigned, u"|125", u".", "0.12|"},
        {kUnsigned, u"[12.50]", u"7", "7|"},
        {kUnsigned, u"[12.50]", u".", "0.|"},
        {kUnsigned, u"[12.50]", u"-", "|"},
        {kUnsigned, u"[12.50]", u"x", "[12.50]"},
        {kUnsigned, u"[12.50]", u"<", "|"},
        {kUnsigned, u"1[2345]67", u"8", "18|67"},
        {kUnsigned, u"12.3|4", u"<<", "12|4"},
        {kSigned, u"25|", u"-", "-|25"},
        {kSigned, u"25|", u"--", "|25"},
        {kSigned, u"-2|5", u"+", "|25"},
        {kSigned, u"25|", u"+", "|25"},
        {kSigned, u"|", u"+-", "-|"},
        {kSigned, u"|", u"-5", "-5|"},
        {kSigned, u"|", u"-.125", "-0.12|"},
        {kSigned, u"|-25", u"1", "-1|25"},
        {kSigned, u"|-25", u".", "-.|25"},
        {kSigned, u"|-1.5", u".", "-1.|5"},
        {kSigned, u"[-]25", u"1", "1|25"},
        {kSigned, u"-[25]", u"3", "-3|"},
        {kSigned, u"[-25]", u"3", "3|"},
        {kSigned, u"[25]", u"-", "-|"},
        {kSigned, u"-1234567|", u"8.918", "-1234567.91|"},
        {kSigned, u"-12.|34", u"9", "-12.93|"},
    };
    for (const auto& [sign, before, keys, after] : rows) {
        TextField field = FieldOf(before);
        for (const char16_t key : std::u16string(keys)) Press(field, key, sign);
        EXPECT_EQ(Shown(field), after) << ToUtf8(before) << " " << ToUtf8(keys);
    }
}

/// The amount as people write it: 123456 hundredths are "$1,234.56".
std::string Written(long hundredths) {
    std::string text = std::to_string(hundredths / 100);
    for (auto at = static_cast<int>(text.size()) - 3; at > 0; at -= 3) {
        text.insert(static_cast<std::size_t>(at), 1, ',');
    }
    return "$" + text + '.' + static_cast<char>('0' + hundredths / 10 % 10) +
           static_cast<char>('0' + hundredths % 10);
}

/// Leaves the field, enters it again and leaves it again.
bool ComesBack(TextField field, AmountSign sign, const std::string& expected) {
    const std::u16string wanted(expected.begin(), expected.end());
    bool cancel = false;
    LeaveCurrencyField(field, cancel, sign);
    if (field.Text() != wanted) return false;
    EnterCurrencyField(field);
    LeaveCurrencyField(field, cancel, sign);
    return field.Text() == wanted;
}

TextField Typed(TextField field, long digit) {
    Press(field, static_cast<char16_t>(u'0' + digit), kUnsigned);
    return field;
}

TEST(Currency, EveryAmountUpToFiveDigitsComesBackToItself) {
#ifdef __SANITIZE_ADDRESS__
    constexpr long kStep = 101;
#else
    constexpr long kStep = 1;
#endif
    long wrong = 0;
    for (long dollars = 0; dollars < 100'000; dollars += kStep) {
        TextField whole;
        for (const char digit : std::to_string(dollars)) whole = Typed(whole, digit - '0');
        Press(whole, u'.', kUnsigned);
        for (long dimes = 0; dimes < 10; ++dimes) {
            const TextField tenths = Typed(whole, dimes);
            for (long cents = 0; cents < 10; ++cents) {
                const std::string written = Written(dollars * 100 + dimes * 10 + cents);
                wrong += ComesBack(Typed(tenths, cents), kUnsigned, written) ? 0 : 1;
            }
        }
    }
    EXPECT_EQ(wrong, 0);
}

TEST(Currency, AmountsUpToSevenDigitsComeBackWithEitherSign) {
    std::mt19937 random(7);
    for (int i = 0; i < 10'000; ++i) {
        const long hundredths = std::uniform_int_distribution<long>(1, 999'999'999)(random);
        const bool negative = i % 2 == 0;
        TextField field;
        const std::string written = Written(hundredths);
        for (const char key : (negative ? "-" : "") + written) {
            Press(field, static_cast<char16_t>(key), kSigned);  // "$" and "," are swallowed
        }
        const std::string expected = negative ? "$-" + written.substr(1) : written;
        EXPECT_TRUE(ComesBack(field, kSigned, expected)) << written << " " << Shown(field);
    }
}

/// Runs the member for the event of a field.
class CurrencyMembers : public CleanState {
  protected:
    CurrencyMembers() { utils_->InitUtils(u"", u"Front Desk", u"", false, u""); }

    std::string Log() const { return ReadFile(machine_.ownFolder / "Error.Log"); }

    std::shared_ptr<Utils> utils_ = Utils::Create();
    bool cancel_ = true;
};

TEST_F(CurrencyMembers, FocusTakesTheMarksOffAndLeavingPutsThemOn) {
    const struct {
        const char16_t* text;
        const char* entered;
        const char* left;
        const char* leftSigned;
    } rows[] = {
        {u"$1,234.50", "[1234.50]", "$1,234.50", "$1,234.50"},
        {u"-$5.00", "[-5.00]", "$-5.00", "$-5.00"},
        {u"$-1,025.00", "[-1025.00]", "$-1,025.00", "$-1,025.00"},
        {u"5", "[5]", "$5.00", "$5.00"},
        {u"5.", "[5.]", "$5.00", "$5.00"},
        {u".5", "[.5]", "$0.50", "$0.50"},
        {u"007", "[007]", "$7.00", "$7.00"},
        {u"123456789", "[123456789]", "$1,234,567.89", "$1,234,567.89"},
        {u"12345678", "[12345678]", "$1,234,567.00", "$1,234,567.00"},
        {u"1234567890", "[1234567890]", "$1,234,567.00", "$1,234,567.00"},
        {u"-123456789", "[-123456789]", "-123456789", "$-1,234,567.89"},
        {u"999999.995", "[999999.995]", "$1,000,000.00", "$1,000,000.00"},
        {u"2.675", "[2.675]", "$2.68", "$2.68"},
        {u"-2.674", "[-2.674]", "$-2.67", "$-2.67"},
        {u"-0.00", "[-0.00]", "$0.00", "0.00"},
        {u"-0", "[-0]", "$0.00", "$0.00"},
        {u"-", "[-]", "-", ""},
        {u" ", "[ ]", " ", " "},
        {u".", "[.]", ".", "."},
        {u"abc", "[abc]", "abc", "abc"},
        {u"1.2.3", "[1.2.3]", "1.2.3", "1.2.3"},
        {u"1e5", "[1e5]", "1e5", "1e5"},
        {u"\uFF15", "[\uFF15]", "\uFF15", "\uFF15"},
    };
    for (const auto& [text, entered, left, leftSigned] : rows) {
        const auto box = std::make_shared<TextField>(text);
        utils_->OnCurrencyCtrGotFocus(box);
        EXPECT_EQ(Shown(*box), entered);
        const auto twin = std::make_shared<TextField>(*box);
        utils_->OnCurrencyCtrValidate(box, cancel_);
        utils_->OnNegCurrencyCtrValidate(twin, cancel_);
        EXPECT_EQ(ToUtf8(box->Text()), left);
        EXPECT_EQ(ToUtf8(twin->Text()), leftSigned);
    }
    EXPECT_FALSE(cancel_);
}

TEST_F(CurrencyMembers, AnUpperAmountBelowTheLowerOneIsRefused) {
    const struct {
        const char16_t* lower;
        const char16_t* upper;
        bool refused;
    } rows[] = {
        {u"50", u"20", true},     {u"$10.01", u"$10.00", true}, {u"-5", u"-6", true},
        {u"10", u"10", false},    {u"0", u"-10", false},        {u"", u"10", false},
        {u"50", u"0", false},     {u"50", u"x", false},         {u"1,000", u"$1,000.01", false},
        {u"1e300", u"20", false},
    };
    for (const auto& [lower, upper, refused] : rows) {
        const auto box = std::make_shared<TextField>(upper);
        const std::size_t told = desktop_.StockMessages().size();
        cancel_ = false;
        utils_->OnCurrencyCtrValidateRange(box, lower, upper, u"From", u"To", cancel_);
        EXPECT_EQ(cancel_, refused) << ToUtf8(lower);
        EXPECT_EQ(box->Text(), refused ? u"" : upper);
        EXPECT_EQ(desktop_.StockMessages().size() - told, refused ? 1 : 0);
    }
    const auto& message = desktop_.StockMessages().front();
    EXPECT_EQ(message.text, u"\"To\" amount cannot be less then \"From\" amount.");
    EXPECT_EQ(message.title, u"Front Desk");
    EXPECT_EQ(message.icon, StockIcon::Critical);
    EXPECT_THAT(Log(), testing::HasSubstr("OnCurrencyCtrValidateRange  Overflow"));
}

TEST_F(CurrencyMembers, ALockedFieldTakesNoKeyAndKeepsItsMarks) {
    const auto box = std::make_shared<TextField>(u"$1,234.50");
    box->Locked(true);
    std::int16_t key = u'5';
    utils_->OnCurrencyCtrKeyPress(box, key);
    EXPECT_EQ(key, 0);
    utils_->OnCurrencyCtrGotFocus(box);
    EXPECT_EQ(Shown(*box), "[$1,234.50]");
}

/// A control that fails in every member.
class BrokenControl : public TextControl {
  public:
    void Text(TextIn) override { Fail(); }
    std::u16string Text() const override { Fail(); }
    void SelStart(std::int32_t) override { Fail(); }
    std::int32_t SelStart() const override { Fail(); }
    void SelLength(std::int32_t) override { Fail(); }
    std::int32_t SelLength() const override { Fail(); }
    bool Locked() const override { Fail(); }

  private:
    [[noreturn]] static void Fail() { throw std::runtime_error("the control is broken"); }
};

TEST_F(CurrencyMembers, FaultsAreLoggedWithTheirMember) {
    for (const std::shared_ptr<TextControl>& box :
         {std::shared_ptr<TextControl>(), std::shared_ptr<TextControl>(new BrokenControl)}) {
        std::int16_t key = u'5';
        utils_->OnCurrencyCtrKeyPress(box, key);
        utils_->OnCurrencyCtrChange(box);
        utils_->OnCurrencyCtrGotFocus(box);
        utils_->OnCurrencyCtrValidate(box, cancel_);
        utils_->OnNegCurrencyCtrKeyPress(box, key);
        utils_->OnNegCurrencyCtrChange(box);
        utils_->OnNegCurrencyCtrValidate(box, cancel_);
        utils_->OnCurrencyCtrValidateRange(box, u"2", u"1", u"From", u"To", cancel_);
    }
    for (const char* const member :
         {"OnCurrencyCtrKeyPress", "OnCurrencyCtrChange", "OnCurrencyCtrGotFocus",
          "OnCurrencyCtrValidate", "OnNegCurrencyCtrKeyPress", "OnNegCurrencyCtrChange",
          "OnNegCurrencyCtrValidate", "OnCurrencyCtrValidateRange"}) {
        const std::string prefix = std::string("Error in HalvekUtils/Utils/") + member + "  ";
        EXPECT_THAT(Log(), testing::HasSubstr(prefix + "Invalid argument: the control is broken"));
        EXPECT_THAT(Log(), testing::HasSubstr(prefix + "Object"));
    }
}

TEST_F(CurrencyMembers, TenMillionCharactersDoNotMatter) {
    const auto box = std::make_shared<TextField>(std::u16string(10'000'000, u'9'), 5);
    std::int16_t key = u'5';
    utils_->OnCurrencyCtrKeyPress(box, key);
    EXPECT_EQ(key, 0);
    utils_->OnCurrencyCtrValidate(box, cancel_);
    EXPECT_EQ(box->Text(), u"$9,999,999.00");
}

TEST(AmountText, TakesWhatCanBeReadInOneWay) {
    const struct {
        const char16_t* text;
        const char* bare;
        const char* bareSigned;
    } rows[] = {
        {u"$1,234.50", "1234.50", "1234.50"},
        {u" 12\t\r\n", "12", "12"},
        {u"\u00A0$.5", ".5", ".5"},
        {u"12,345,678.", "12345678.", "12345678."},
        {u"(5.00)", "none", "-5.00"},
        {u"$(1,000)", "none", "-1000"},
        {u"-$5", "none", "-5"},
        {u"$-5", "none", "-5"},
        {u"+5", "5", "5"},
    };
    const auto read = [](const char16_t* text, AmountSign sign) {
        return ToUtf8(BareAmount(text, sign).value_or(u"none"));
    };
    for (const auto& [text, bare, bareSigned] : rows) {
        EXPECT_EQ(read(text, kUnsigned), bare) << ToUtf8(text);
        EXPECT_EQ(read(text, kSigned), bareSigned) << ToUtf8(text);
    }
    for (const char16_t* const text :
         {u"",         u"$",     u"-",    u".",      u"1.234,50", u"12.345.6", u"1,23",   u"1,2345",
          u"1,234,56", u"0,123", u",123", u"1,234,", u"1 234",    u"5-",       u"--5",    u"-(5)",
          u"(-5)",     u"$$5",   u"5 $",  u"1e3",    u"five",     u"\uFF15",   u"1\u0660"}) {
        EXPECT_EQ(read(text, kSigned), "none") << ToUtf8(text);
    }
}

}  // namespace
}  // namespace halvek
