#include "tests/CleanState.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/currency/CurrencyHandlers.h>
#include <halvekutils/currency/CurrencyKeys.h>
#include <halvekutils/platform/TextField.h>

#include <gtest/gtest.h>

#include <gmock/gmock.h>

#include <random>
#include <sstream>

namespace halvek {
namespace {

constexpr auto kUnsigned = AmountSign::Unsigned;
constexpr auto kSigned = AmountSign::Signed;

std::u16string Wide(const std::string& text) {
    return std::u16string(text.begin(), text.end());
}

/// The cases of a table, parted by blanks, each with its parts, which are joined by ">".
std::vector<std::vector<std::string>> Cases(const std::string& table) {
    std::vector<std::vector<std::string>> cases;
    std::istringstream words(table);
    for (std::string word, part; words >> word;) {
        std::istringstream parts(word + '>');
        for (cases.emplace_back(); std::getline(parts, part, '>');) cases.back().push_back(part);
    }
    return cases;
}

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
TextField& Press(TextField& field, char letter, AmountSign sign) {
    const std::u16string before = field.Text();
    auto key = static_cast<std::int16_t>(letter == '<' ? 8 : letter);
    PressCurrencyKey(field, key, sign);
    if (key != 0) {
        const auto start = static_cast<std::size_t>(field.SelStart());
        const auto length = static_cast<std::size_t>(field.SelLength());
        const bool erasesOne = key == 8 && length == 0 && start > 0;
        const std::size_t at = erasesOne ? start - 1 : start;
        const std::u16string typed(key == 8 ? 0 : 1, static_cast<char16_t>(letter));
        field.Text(field.Text().replace(at, erasesOne ? 1 : length, typed));
        field.SelStart(static_cast<std::int32_t>(at + typed.size()));
    }
    if (field.Text() != before) CutDecimals(field, sign);
    return field;
}

TEST(Currency, KeysGiveTheTextAndTheCaret) {
    const char* const tables[] = {
        "|>12.345>12.34| |>.>0.| |>a,+$-7>7| |>123456789.129>1234567.12| 12|34567>8>1234567| "
        "1|234567.12>8>1234567.12| |1234567.1>8>8|1234567.1 1,234,567|.10>8>1,234,567.10| "
        "$12.34|>5>$12.34| $12.3|4>5>$12.35| 1|.23.4>.>1.|23.4 $1|.5>.>$1.|5 |125>.>0.12| "
        "12|.34>9>129|.34 12.|34>9>12.93| [12.50]>7>7| [12.50]>.>0.| [12.50]>->| [$12.50]>7>7| "
        "[12.50]>x>[12.50] [12.50]><>| 1[2345]67>8>18|67 12.3|4><<>12|4",
        "25|>->-|25 25|>-->|25 -2|5>+>|25 25|>+>|25 |>+->-| |>-5>-5| |>-.125>-0.12| |-25>1>-1|25 "
        "|-25>.>-.|25 |-1.5>.>-1.|5 [-]25>1>1|25 -[25]>3>-3| [-25]>3>3| [25]>->-| "
        "-1234567|>8.918>-1234567.91| -12.|34>9>-12.93| $|-25>1>$-1|25"};
    for (const AmountSign sign : {kUnsigned, kSigned}) {
        for (const auto& row : Cases(tables[sign == kSigned])) {
            TextField field = FieldOf(Wide(row[0]));
            for (const char key : row[1]) Press(field, key, sign);
            EXPECT_EQ(Shown(field), row[2]) << row[0] << " and " << row[1];
        }
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
    const std::u16string wanted = Wide(expected);
    bool cancel = false;
    LeaveCurrencyField(field, cancel, sign);
    if (field.Text() != wanted) return false;
    EnterCurrencyField(field);
    LeaveCurrencyField(field, cancel, sign);
    return field.Text() == wanted;
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
        for (const char key : std::to_string(dollars) + '.') Press(whole, key, kUnsigned);
        for (char dimes = '0'; dimes <= '9'; ++dimes) {
            TextField tenths = whole;
            Press(tenths, dimes, kUnsigned);
            for (char cents = '0'; cents <= '9'; ++cents) {
                TextField all = tenths;
                const std::string written =
                    Written(dollars * 100 + (dimes - '0') * 10 + (cents - '0'));
                wrong += !ComesBack(Press(all, cents, kUnsigned), kUnsigned, written);
            }
        }
    }
    EXPECT_EQ(wrong, 0);
}

TEST(Currency, AmountsUpToSevenDigitsComeBackWithEitherSign) {
    std::mt19937 random(7);
    for (int i = 0; i < 10'000; ++i) {
        std::string written = Written(std::uniform_int_distribution<long>(1, 999'999'999)(random));
        if (i % 2 == 0) written.insert(1, 1, '-');
        TextField field;
        for (const char key : written) Press(field, key, kSigned);  // "$" and "," are swallowed
        EXPECT_TRUE(ComesBack(field, kSigned, written)) << written << " " << Shown(field);
    }
}

class CurrencyMembers : public CleanState {
  protected:
    CurrencyMembers() { utils_->InitUtils(u"", u"Front Desk", u"", false, u""); }
    std::string Log() const { return ReadFile(machine_.ownFolder / "Error.Log"); }

    std::shared_ptr<Utils> utils_ = Utils::Create();
    bool cancel_ = false;
};

TEST_F(CurrencyMembers, FocusTakesTheMarksOffAndLeavingPutsThemOn) {
    const char* const rows =  // a text, its value once entered, and left in either family
        "$1,234.50>1234.50>$1,234.50>$1,234.50 -$5.00>-5.00>$-5.00>$-5.00 5>5>$5.00>$5.00 "
        "$-1,025.00>-1025.00>$-1,025.00>$-1,025.00 5.>5.>$5.00>$5.00 .5>.5>$0.50>$0.50 "
        "007>007>$7.00>$7.00 123456789>123456789>$1,234,567.89>$1,234,567.89 "
        "2.675>2.675>$2.68>$2.68 "
        "12345678>12345678>$1,234,567.00>$1,234,567.00 -2.674>-2.674>$-2.67>$-2.67 "
        "1234567890>1234567890>$1,234,567.00>$1,234,567.00 -0.00>-0.00>$0.00>0.00 "
        "-123456789>-123456789>-123456789>$-1,234,567.89 -0>-0>$0.00>$0.00 ->->-> .>.>.>. "
        "999999.995>999999.995>$1,000,000.00>$1,000,000.00 abc>abc>abc>abc 1e5>1e5>1e5>1e5 "
        "1.2.3>1.2.3>1.2.3>1.2.3 --5>--5>--5>$-5.00";
    for (auto row : Cases(rows)) {
        const auto box = std::make_shared<TextField>(Wide(row[0]));
        utils_->OnCurrencyCtrGotFocus(box);
        EXPECT_EQ(Shown(*box), '[' + row[1] + ']');
        const auto twin = std::make_shared<TextField>(*box);
        utils_->OnCurrencyCtrValidate(box, cancel_);
        utils_->OnNegCurrencyCtrValidate(twin, cancel_);
        row.resize(4);
        EXPECT_EQ(ToUtf8(box->Text()), row[2]);
        EXPECT_EQ(ToUtf8(twin->Text()), row[3]);
    }
    const auto huge = std::make_shared<TextField>(std::u16string(10'000'000, u'9'));
    utils_->OnCurrencyCtrValidate(huge, cancel_);
    EXPECT_EQ(huge->Text(), u"$9,999,999.00");
    huge->Text(u"\uFF15");
    utils_->OnNegCurrencyCtrValidate(huge, cancel_);
    EXPECT_EQ(huge->Text(), u"\uFF15");
    huge->Text(u"1,234,567");  // nine characters, but no cents
    utils_->OnCurrencyCtrValidate(huge, cancel_);
    EXPECT_EQ(huge->Text(), u"1,234,567");
}

TEST_F(CurrencyMembers, AnUpperAmountBelowTheLowerOneIsRefused) {
    for (const auto& row : Cases("50>20>refused $10.01>$10.00>refused -5>-6>refused 10>10>ok "
                                 "0>-10>ok >10>ok 50>0>ok 50>x>ok 1,000>$1,000.01>ok 1e300>2>ok")) {
        const auto box = std::make_shared<TextField>(Wide(row[1]));
        cancel_ = false;
        utils_->OnCurrencyCtrValidateRange(box, Wide(row[0]), Wide(row[1]), u"From", u"To",
                                           cancel_);
        EXPECT_EQ(cancel_, row[2] == "refused") << row[0];
        EXPECT_EQ(ToUtf8(box->Text()), cancel_ ? "" : row[1]);
    }
    ASSERT_EQ(desktop_.StockMessages().size(), 3);
    const auto& message = desktop_.StockMessages().front();
    EXPECT_EQ(message.text, u"\"To\" amount cannot be less then \"From\" amount.");
    EXPECT_EQ(message.title, u"Front Desk");
    EXPECT_EQ(message.icon, StockIcon::Critical);
}

class BrokenControl : public TextControl {
  public:
    void Text(TextIn) override { Fail(); }
    std::u16string Text() const override { Fail(); }
    void SelStart(std::int32_t) override { Fail(); }
    std::int32_t SelStart() const override { Fail(); }
    void SelLength(std::int32_t) override { Fail(); }
    std::int32_t SelLength() const override { Fail(); }
    bool Locked() const override { Fail(); }
    [[noreturn]] static void Fail() { throw std::runtime_error("broken"); }
};

TEST_F(CurrencyMembers, FaultsAreLoggedWithTheirMember) {
    const auto box = std::make_shared<BrokenControl>();
    std::int16_t key = u'5';
    utils_->OnCurrencyCtrKeyPress(box, key);
    utils_->OnCurrencyCtrChange(box);
    utils_->OnCurrencyCtrGotFocus(nullptr);
    utils_->OnCurrencyCtrValidate(box, cancel_);
    utils_->OnNegCurrencyCtrKeyPress(box, key);
    utils_->OnNegCurrencyCtrChange(box);
    utils_->OnNegCurrencyCtrValidate(box, cancel_);
    utils_->OnCurrencyCtrValidateRange(box, u"2", u"1", u"From", u"To", cancel_);
    EXPECT_EQ(key, 0);
    for (const auto& row : Cases("KeyPress>5 Change>5 GotFocus>0 Validate>5 ValidateRange>5")) {
        const std::string prefix = "Error in HalvekUtils/Utils/OnCurrencyCtr" + row[0] + "  ";
        EXPECT_THAT(Log(), testing::HasSubstr(prefix + (row[1] == "5" ? "Inv" : "Obj")));
    }
    for (const char* const event : {"KeyPress", "Change", "Validate"}) {
        EXPECT_THAT(Log(), testing::HasSubstr("/OnNegCurrencyCtr" + std::string(event) + "  Inv"));
    }
}

TEST(AmountText, TakesWhatCanBeReadInOneWay) {
    const char* const rows =
        "$1,234.50>1234.50>1234.50 $.5>.5>.5 12,345,678.>12345678.>12345678. (5.00)>none>-5.00 "
        "$(1,000)>none>-1000 -$5>none>-5 $-5>none>-5 +5>5>5 $>none>none ->none>none .>none>none "
        "1.234,50>none>none 12.345.6>none>none 1,23>none>none 1,2345>none>none 0,123>none>none "
        "1,234,56>none>none ,123>none>none 1,234,>none>none 5->none>none --5>none>none "
        "-(5)>none>none (-5)>none>none $$5>none>none 1e3>none>none five>none>none";
    for (const auto& row : Cases(rows)) {
        EXPECT_EQ(ToUtf8(BareAmount(Wide(row[0]), kUnsigned).value_or(u"none")), row[1]) << row[0];
        EXPECT_EQ(ToUtf8(BareAmount(Wide(row[0]), kSigned).value_or(u"none")), row[2]) << row[0];
    }
    EXPECT_EQ(BareAmount(u"\u00A0 12\t\r\n", kUnsigned), u"12");
    EXPECT_EQ(BareAmount(u"1 234", kUnsigned), std::nullopt);
}

}  // namespace
}  // namespace halvek
