// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/platform/TextField.h>

// The step of the walk in dollars; a separate program takes every dollar.
#ifndef HALVEK_DOLLAR_STEP
#define HALVEK_DOLLAR_STEP 101
#endif

namespace halvek {
namespace {

/// A field written as "12|.50" with its caret, or as "1[2.5]0" with its selection.
TextField FieldOf(std::u16string shown) {
    const auto start = static_cast<std::int32_t>(shown.find_first_of(u"|["));
    const auto end = static_cast<std::int32_t>(shown.find(u']'));
    std::erase_if(shown, [](char16_t c) { return c == u'|' || c == u'[' || c == u']'; });
    return TextField(shown, start, end < 0 ? 0 : end - start - 1);
}

bool operator==(const TextField& one, const TextField& other) {
    return one.Text() == other.Text() && one.SelStart() == other.SelStart() &&
           one.SelLength() == other.SelLength();
}

class Currency : public CleanState {
  protected:
    void SetUp() override { Start(); }

    /// Enters the field ("F"), leaves it ("L"), or presses a key, which is inserted if it passes.
    void Do(char what, bool isSigned) {
        if (what == 'F') return utils_->OnCurrencyCtrGotFocus(box_);
        if (what == 'L' && !isSigned) return utils_->OnCurrencyCtrValidate(box_, cancel_);
        if (what == 'L') return utils_->OnNegCurrencyCtrValidate(box_, cancel_);
        auto key = static_cast<std::int16_t>(what);
        isSigned ? utils_->OnNegCurrencyCtrKeyPress(box_, key)
                 : utils_->OnCurrencyCtrKeyPress(box_, key);
        if (key == 0) return;
        const std::int32_t start = box_->SelStart();
        const auto selected = static_cast<std::size_t>(box_->SelLength());
        box_->Text(
            box_->Text().replace(static_cast<std::size_t>(start), selected, FromUtf8({&what, 1})));
        box_->SelStart(start + 1);
        isSigned ? utils_->OnNegCurrencyCtrChange(box_) : utils_->OnCurrencyCtrChange(box_);
    }

    /// Types the rest of an amount; true if it survives leaving, entering and leaving again.
    bool ComesBack(const std::string& amount, std::size_t typed) {
        for (const char key : amount.substr(typed)) Do(key, false);
        for (const char what : {'L', 'F', 'L'}) {
            Do(what, false);
            std::u16string bare = box_->Text();
            std::erase_if(bare, [](char16_t mark) { return mark == u'$' || mark == u','; });
            if (bare != FromUtf8(amount)) return false;
        }
        return true;
    }

    std::shared_ptr<TextField> box_ = std::make_shared<TextField>();
    bool cancel_ = false;
};

TEST_F(Currency, HandlersGiveTheTextAndTheCaret) {
    // What the field shows, what the user does, and what it shows then
    const char* const tables[] = {
        "| 12.345 12.34|  | . 0.|  | a,+$-7 7|  | 123456789.129 1234567.12|  "
        "12|34567 8 1234567|  1|234567.12 8 1234567.12|  |1234567.1 8 8|1234567.1  "
        "1,234,567|.10 8 1,234,567.10|  $12.34| 5 $12.34|  $12.3|4 5 $12.35|  "
        "1|.23.4 . 1.|23.4  $1|.5 . $1.|5  |125 . 0.12|  12|.34 9 129|.34  12.|34 9 12.93|  "
        "[12.50] 7 7|  [12.50] . 0.|  [12.50] - |  [$12.50] 7 7|  [12.50] x [12.50]  "
        "1[2345]67 8 18|67  |$1,234.50 F [1234.50]  |-$5.00 F [-5.00]  |5 L |$5.00  "
        "|5. L |$5.00  |.5 L |$0.50  |007 L |$7.00  |123456789 L |$1,234,567.89  "
        "|12345678 L |$1,234,567.00  |1234567890 L |$1,234,567.00  |2.675 L |$2.68  |- L |-  "
        "|. L |.  |999999.995 L |$1,000,000.00  |1e5 L |1e5  |1.2.3 L |1.2.3  | L |  "
        "|1,234,567 L |1,234,567",
        "25| - -|25  25| -- |25  -2|5 + |25  25| + |25  | +- -|  | -5 -5|  | -.125 -0.12|  "
        "|-25 1 -1|25  |-25 . -.|25  |-1.5 . -1.|5  [-]25 1 1|25  -[25] 3 -3|  [-25] 3 3|  "
        "[25] - -|  -1234567| 8.918 -1234567.91|  -12.|34 9 -12.93|  $|-25 1 $-1|25  "
        "|$-1,025.00 F [-1025.00]  |-25 L |$-25.00  |-0.00 L |0.00  |-0 L |$0.00  |- L |  "
        "|-123456789 L |$-1,234,567.89  |-2.674 L |$-2.67"};
    for (const bool isSigned : {false, true}) {
        std::istringstream rows(tables[isSigned]);
        for (std::string before, acts, after; rows >> before >> acts >> after;) {
            *box_ = FieldOf(FromUtf8(before));
            for (const char what : acts) Do(what, isSigned);
            EXPECT_TRUE(*box_ == FieldOf(FromUtf8(after)))
                << before << " " << acts << " gave " << ToUtf8(box_->Text());
        }
    }
}

TEST_F(Currency, EveryAmountComesBackToItself) {
    int wrong = 0;
    for (int dollars = 0; dollars < 100'000; dollars += HALVEK_DOLLAR_STEP) {
        const std::string start = std::to_string(dollars) + '.';
        *box_ = TextField();
        for (const char key : start) Do(key, false);
        const TextField started = *box_;
        for (int cents = 100; cents < 200; ++cents) {
            *box_ = started;
            const std::string amount = start + std::to_string(cents).substr(1);
            wrong += !ComesBack(amount, start.size());
        }
    }
    EXPECT_EQ(wrong, 0);
}

struct BrokenControl : TextField {
    using TextField::Locked;
    bool Locked() const override { throw std::runtime_error("broken"); }
};

TEST_F(Currency, FaultsAreLoggedWithTheirMember) {
    std::int16_t key = u'5';
    utils_->OnCurrencyCtrKeyPress(std::make_shared<BrokenControl>(), key);
    EXPECT_EQ(key, 0);
    utils_->OnCurrencyCtrChange(nullptr);
    utils_->OnCurrencyCtrGotFocus(nullptr);
    utils_->OnCurrencyCtrValidate(nullptr, cancel_);
    utils_->OnNegCurrencyCtrKeyPress(nullptr, key);
    utils_->OnNegCurrencyCtrChange(nullptr);
    utils_->OnNegCurrencyCtrValidate(nullptr, cancel_);
    utils_->OnCurrencyCtrValidateRange(box_, u"1e300", u"1", u"From", u"To", cancel_);
    std::istringstream rows(
        "CurrencyCtrKeyPress CurrencyCtrChange CurrencyCtrGotFocus CurrencyCtrValidate "
        "NegCurrencyCtrKeyPress NegCurrencyCtrChange NegCurrencyCtrValidate "
        "CurrencyCtrValidateRange");
    for (std::string member; rows >> member;) {
        const std::string line = "\tError in HalvekUtils/Utils/On" + member + "  ";
        EXPECT_NE(Log().find(line), std::string::npos) << member;
    }
}

}  // namespace
}  // namespace halvek
