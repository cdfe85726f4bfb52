// SPDX-License-Identifier: MIT
#include <halvekutils/base/Characters.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/dialogs/Calculator.h>
#include <halvekutils/platform/Services.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace halvek {

namespace {

constexpr std::u16string_view kCaptions[] = {u"0", u"1", u"2", u"3",   u"4",  u"5", u"6",
                                             u"7", u"8", u"9", u"+ -", u".",  u"/", u"*",
                                             u"-", u"+", u"=", u"CLR", u"RET"};
static_assert(std::size(kCaptions) == Calculator::kButtonCount);

/// In the order of their buttons, which begin with kDivide.
constexpr std::u16string_view kOperators = u"/*-+=";

constexpr std::u16string_view kError = u"ERROR";

constexpr int kBackspaceKey = 8;
constexpr int kEnterKey = 13;
constexpr int kEscapeKey = 27;
constexpr int kDeleteKey = 46;
constexpr int kF9Key = 120;
constexpr int kKeypadZero = 96;
constexpr int kUnknownButton = 99;

struct HookedKey {
    int keyCode;
    int button;
};

// Backspace deliberately leaves the display alone; it is only logged.
constexpr HookedKey kHookedKeys[] = {
    {106, Calculator::kMultiply},     {107, Calculator::kPlus},
    {109, Calculator::kMinus},        {110, Calculator::kPoint},
    {111, Calculator::kDivide},       {kEscapeKey, Calculator::kClear},
    {kDeleteKey, Calculator::kClear}, {kBackspaceKey, kUnknownButton},
};

constexpr bool IsMainDigit(int keyCode) {
    return keyCode >= 48 && keyCode <= 57;
}

constexpr bool IsKeypadDigit(int keyCode) {
    return keyCode >= kKeypadZero && keyCode <= kKeypadZero + 9;
}

bool HoldsPoint(std::u16string_view text) {
    return text.find(u'.') != text.npos;
}

/// A number in exponent form takes no more characters: one more could change it by orders of
/// magnitude.
bool HasExponent(std::u16string_view text) {
    return text.find_first_of(u"eE") != text.npos;
}

bool HasRoom(std::u16string_view display) {
    return display.size() < Calculator::kMaxLength && !HasExponent(display);
}

bool IsOperator(char16_t character) {
    return kOperators.find(character) != kOperators.npos;
}

int ButtonOf(char16_t op) {
    return Calculator::kDivide + static_cast<int>(kOperators.find(op));
}

/// A result whose text no longer reads as a number is too large to calculate with.
std::u16string ResultText(double number) {
    const std::u16string text = NumberText(number);
    return IsNumeric(text) ? text : std::u16string(kError);
}

std::u16string RoundedText(std::u16string_view text) {
    const auto number = ToNumber(text);
    return number ? ResultText(RoundToCents(*number)) : std::u16string(text);
}

TextIn WithoutLineEnds(TextIn text) {
    while (text.ends_with(u'\n') || text.ends_with(u'\r')) text.remove_suffix(1);
    return text;
}

/// The keystrokes that enter a number in any notation; empty for a non-number.
std::u16string Keystrokes(TextIn text) {
    const auto number = ToNumber(text);
    if (!number) return {};
    if (HasExponent(text)) return NumberText(*number);
    std::u16string keys(*number < 0 ? u"-" : u"");
    std::ranges::copy_if(text, std::back_inserter(keys),
                         [](char16_t each) { return IsDigit(each) || each == u'.'; });
    return keys;
}

}  // namespace

Calculator::Calculator(TextIn InitValue, Services& session, Desktop& desktop)
    : session_(session), desktop_(desktop) {
    if (IsNumeric(InitValue)) display_ = RoundedText(InitValue);
}

Calculator::~Calculator() = default;

std::u16string Calculator::LastOperator() const {
    return lastOperator_ == 0 ? std::u16string() : std::u16string(1, lastOperator_);
}

TextIn Calculator::Caption(int index) {
    return index < 0 || index >= kButtonCount ? std::u16string_view() : kCaptions[index];
}

void Calculator::Press(int index) {
    if (!IsOpen()) return;
    if (Caption(index).empty()) {
        session_.LogError(u"calculator : WHICH BUTTON WAS CLICKED? " + IntegerText(index));
        return;
    }
    const char16_t key = Caption(index).front();
    if (index >= kDivide && index <= kEquals) {
        Operate(key);
        focus_ = index == kEquals ? kReturn : kEquals;
    } else {
        Flash(index);
        if (IsDigit(key)) AddDigit(key);
        if (index == kChangeSign) ChangeSign();
        if (index == kPoint) AddPoint();
        if (index == kClear) Clear();
        if (index == kReturn) return End(display_);
    }
    NotifyChanged();
}

void Calculator::StartNumber() {
    if (std::exchange(numberDone_, false)) display_.clear();
}

void Calculator::AddDigit(char16_t digit) {
    StartNumber();
    if (!HasRoom(display_)) return desktop_.Beep();
    display_ += digit;
}

void Calculator::AddPoint() {
    StartNumber();
    if (!HasRoom(display_) || HoldsPoint(display_)) return desktop_.Beep();
    display_ += u'.';
}

void Calculator::ChangeSign() {
    display_ = ResultText(-1 * RoundToCents(Val(display_)));
}

/// Does nothing to a result, or to a number whose exponent it would cut.
void Calculator::TakeBack() {
    if (!IsOpen() || numberDone_ || display_.empty() || HasExponent(display_)) return;
    display_.pop_back();
    if (display_.starts_with(u'-') && !IsNumeric(display_)) display_.clear();
    NotifyChanged();
}

void Calculator::Clear() {
    display_.clear();
    accumulator_ = u"0";
    lastOperator_ = 0;
    numberDone_ = true;
}

void Calculator::Operate(char16_t op) {
    if (!IsOpen()) return;
    if (IsOperator(op)) Flash(ButtonOf(op));
    const std::u16string result = PendingResult();
    const bool ends = op == u'=';
    std::u16string accumulator = ends ? std::u16string() : result;
    display_ = RoundedText(result);
    accumulator_ = std::move(accumulator);
    lastOperator_ = ends ? u'\0' : op;
    numberDone_ = true;
    NotifyChanged();
}

std::u16string Calculator::PendingResult() {
    if (lastOperator_ == 0) return display_;
    if (!IsOperator(lastOperator_)) {
        Tell(u"last operator?");
        return {};
    }
    return numberDone_ ? display_ : Compute(accumulator_, lastOperator_, display_);
}

std::u16string Calculator::Compute(TextIn a, char16_t op, TextIn b) {
    const double left = Val(a);
    const double right = Val(b);
    switch (op) {
        case u'+':
            return ResultText(left + right);
        case u'-':
            return ResultText(left - right);
        case u'*':
            return ResultText(left * right);
        case u'/':
            if (right != 0) return ResultText(left / right);
            accumulator_ = u"0";
            lastOperator_ = 0;
            numberDone_ = true;
            return std::u16string(kError);
        default:
            Tell(u"operator ?");
            return {};
    }
}

bool Calculator::KeyPress(char16_t character) {
    if (!IsOpen()) return false;
    if (IsOperator(character)) {
        Press(ButtonOf(character));
        return false;
    }
    if (focus_ != kBox) {
        if (IsDigit(character)) Press(character - u'0');
        if (character == u'.') Press(kPoint);
        return false;
    }
    if (character != u'.') return IsDigit(character) || character == kBackspaceKey;
    if (!HoldsPoint(display_)) return true;
    desktop_.Beep();
    return false;
}

bool Calculator::KeyDown(int keyCode) {
    switch (keyCode) {
        case kEscapeKey:
            Close();
            return true;
        case kF9Key:
            Press(kChangeSign);
            return true;
        case kDeleteKey:
            if (focus_ != kBox) Press(kClear);
            return focus_ != kBox;
        case kBackspaceKey:
            if (focus_ != kBox) TakeBack();
            return focus_ != kBox;
        default:
            return false;
    }
}

void Calculator::HookedKeyDown(int KeyCode) {
    if (IsMainDigit(KeyCode)) return;
    // A digit between two Enters does not disarm the second.
    if (IsKeypadDigit(KeyCode)) return Press(KeyCode - kKeypadZero);
    const bool armed = std::exchange(enterArmed_, KeyCode == kEnterKey);
    if (KeyCode == kEnterKey) return Press(armed ? kReturn : kEquals);
    const auto row = std::ranges::find(kHookedKeys, KeyCode, &HookedKey::keyCode);
    if (row != std::end(kHookedKeys)) Press(row->button);
}

void Calculator::EditDisplay(TextIn text) {
    if (!IsOpen()) return;
    display_ = text;
    numberDone_ = false;
    NotifyChanged();
}

void Calculator::Paste(TextIn text, std::size_t start, std::size_t selected) {
    if (!IsOpen()) return;
    const std::u16string keys = Keystrokes(WithoutLineEnds(text));
    std::u16string whole = numberDone_ && selected == 0 ? std::u16string() : display_;
    whole.replace(selected == 0 ? whole.size() : std::min(start, whole.size()), selected, keys);
    const bool isBroken =
        whole.size() > kMaxLength || !IsNumeric(whole) || (HasExponent(whole) && whole != keys);
    if (keys.empty() || isBroken) return desktop_.Beep();
    display_ = std::move(whole);
    numberDone_ = false;
    NotifyChanged();
}

std::u16string Calculator::Copy() {
    if (IsNumeric(display_)) return display_;
    desktop_.Beep();
    return {};
}

void Calculator::Flash(int index) const {
    if (Flashed) Flashed(index);
}

void Calculator::Tell(TextIn message) {
    NotifyChanged();
    desktop_.ShowStockMessage(message, StockIcon::None, session_.AppName());
}

}  // namespace halvek
