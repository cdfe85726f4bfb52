// SPDX-License-Identifier: MIT
#include "tests/FakeServices.h"

#include <halvekutils/base/Utf8.h>
#include <halvekutils/dialogs/Calculator.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

namespace halvek {
namespace {

/// A calculator with its own desktop, played by the words of the table.
struct Desk {
    explicit Desk(TextIn initValue = {}) : calculator(initValue, session, desktop) {}

    void Type(char16_t character) {
        std::u16string text = calculator.Display();
        if (!calculator.KeyPress(character)) return;
        if (character != 8) return calculator.EditDisplay(text + character);
        calculator.EditDisplay(text.substr(0, text.empty() ? 0 : text.size() - 1));
    }

    void Play(const std::string& word) {
        if (word[0] == 'h') return calculator.HookedKeyDown(std::stoi(word.substr(1)));
        if (word[0] == 'v') return calculator.Paste(FromUtf8(word.substr(2)));
        if (word == "box") return calculator.FocusOn(Calculator::kBox);
        if (word[0] == 'b') return calculator.Press(std::stoi(word.substr(1)));
        if (word == "+-") return calculator.Press(Calculator::kChangeSign);
        if (word == "CLR") return calculator.Press(Calculator::kClear);
        if (word == "RET") return calculator.Press(Calculator::kReturn);
        if (word == "CLOSE") return calculator.Close();
        static const std::map<std::string_view, int> kKeyCodes = {
            {"BS", 8}, {"ESC", 27}, {"DEL", 46}, {"F9", 120}};
        if (const auto key = kKeyCodes.find(word); key != kKeyCodes.end()) {
            if (!calculator.KeyDown(key->second) && key->second == 8) Type(8);
        } else if (word[0] == '"') {
            for (std::size_t i = 1; i + 1 < word.size(); ++i) Type(static_cast<char16_t>(word[i]));
        } else {
            constexpr std::string_view kButtons = "0123456789 ./*-+=";
            for (const char each : word) calculator.Press(static_cast<int>(kButtons.find(each)));
        }
    }

    /// The value that a name in the table shows.
    std::string Seen(const std::string& name) const {
        if (name == "mem") return ToUtf8(calculator.Accumulator());
        if (name == "op") return ToUtf8(calculator.LastOperator());
        if (name == "done") return calculator.NumberDone() ? "T" : "F";
        if (name == "focus") return std::to_string(calculator.Focus());
        if (name == "beeps") return std::to_string(desktop.Beeps());
        if (name == "log") return std::to_string(session.logged.size());
        return calculator.IsOpen() ? "open" : ToUtf8(calculator.Result());
    }

    FakeServices session;
    ScriptedPlatform desktop;
    Calculator calculator;
};

void ExpectShown(const std::string& sequence) {
    SCOPED_TRACE(sequence);
    std::istringstream words(sequence);
    std::string word;
    words >> word;
    const bool hasInitValue = word.starts_with("init:");
    Desk desk(hasInitValue ? FromUtf8(word.substr(5)) : u"");
    if (hasInitValue) words >> word;
    for (; words && word != "->"; words >> word) desk.Play(word);
    words >> word;
    EXPECT_EQ(ToUtf8(desk.calculator.Display()), word == "_" ? "" : word);
    std::map<std::string, std::string> more = {{"beeps", "0"}, {"log", "0"}, {"ended", "open"}};
    while (words >> word) more[word.substr(0, word.find(':'))] = word.substr(word.find(':') + 1);
    for (const auto& [name, value] : more) EXPECT_EQ(desk.Seen(name), value) << name;
}

TEST(Calculator, ShowsWhatItsKeysGive) {
    std::ifstream table(HALVEK_TEST_DATA "/dialogs/calculator_keys.txt");
    int sequences = 0;
    for (std::string line; std::getline(table, line);) {
        if (line.empty() || line[0] == '#') continue;
        for (std::size_t start = 0, end = 0; end != line.npos; start = end + 3, ++sequences) {
            end = line.find(" | ", start);
            ExpectShown(line.substr(start, end - start));
        }
    }
    EXPECT_GE(sequences, 300);
}

TEST(Calculator, WhatIsNoOperatorAndNoButtonIsTold) {
    Desk desk(u"5");
    desk.calculator.Operate(u'%');
    EXPECT_EQ(desk.calculator.Display(), u"5");
    desk.calculator.Operate(u'+');
    EXPECT_EQ(desk.calculator.Display(), u"");
    EXPECT_EQ(desk.calculator.Compute(u"6", u'^', u"2"), u"");
    ASSERT_EQ(desk.desktop.StockMessages().size(), 2u);
    EXPECT_EQ(desk.desktop.StockMessages()[0].text, u"last operator?");
    EXPECT_EQ(desk.desktop.StockMessages()[1].text, u"operator ?");
    desk.calculator.HookedKeyDown(8);
    EXPECT_EQ(desk.session.logged[0], u"calculator : WHICH BUTTON WAS CLICKED? 99");
}

}  // namespace
}  // namespace halvek
