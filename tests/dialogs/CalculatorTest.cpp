#include "tests/CleanState.h"
#include "tests/FakeServices.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/dialogs/Calculator.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace halvek {
namespace {

constexpr char16_t kBackspace = 8;

std::vector<std::string> Words(const std::string& text) {
    std::istringstream words(text);
    return {std::istream_iterator<std::string>(words), {}};
}

/// A calculator on a desk of its own, played by the words of the table.
struct Desk {
    explicit Desk(TextIn initValue = {}) : calculator(initValue, session, desktop) {}

    void Type(char16_t character) {
        std::u16string text = calculator.Display();
        if (!calculator.KeyPress(character)) return;
        if (character != kBackspace)
            text += character;
        else if (!text.empty())
            text.pop_back();
        calculator.EditDisplay(text);
    }

    void PressCaption(std::string_view caption) {
        for (int i = 0; i < Calculator::kButtonCount; ++i) {
            if (ToUtf8(Calculator::Caption(i)) == caption) return calculator.Press(i);
        }
        ADD_FAILURE() << "there is no button " << caption;
    }

    void Play(const std::string& word) {
        const std::string rest = word.substr(1);
        if (word[0] == 'h') return calculator.HookedKeyDown(std::stoi(rest));
        if (word[0] == 'v') return calculator.Paste(FromUtf8(rest.substr(1)));
        if (word == "box") return calculator.FocusOn(Calculator::kBox);
        if (word[0] == 'b') return calculator.Press(std::stoi(rest));
        if (word == "BS") return Type(kBackspace);
        if (word == "DEL") return static_cast<void>(calculator.KeyDown(46));
        if (word == "ESC") return static_cast<void>(calculator.KeyDown(27));
        if (word == "CLOSE") return calculator.CloseByUser();
        if (word == "+-") return PressCaption("+ -");
        if (word == "CLR" || word == "RET") return PressCaption(word);
        if (word[0] == '"') {
            for (const char c : rest.substr(0, rest.size() - 1)) Type(static_cast<char16_t>(c));
        } else {
            for (const char c : word) PressCaption({&c, 1});
        }
    }

    /// What is seen under a name of the table.
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
    const std::size_t arrow = sequence.find("->");
    ASSERT_NE(arrow, sequence.npos);
    std::vector<std::string> keys = Words(sequence.substr(0, arrow));
    const std::vector<std::string> shown = Words(sequence.substr(arrow + 2));
    std::u16string initValue;
    if (!keys.empty() && keys[0].starts_with("init:")) {
        initValue = FromUtf8(keys[0].substr(5));
        keys.erase(keys.begin());
    }
    Desk desk(initValue);
    for (const std::string& key : keys) desk.Play(key);
    const std::string display = ToUtf8(desk.calculator.Display());
    EXPECT_EQ(display.empty() ? "_" : display, shown[0]);
    std::map<std::string, std::string> more = {{"beeps", "0"}, {"log", "0"}, {"ended", "open"}};
    for (std::size_t i = 1; i < shown.size(); ++i) {
        const std::size_t colon = shown[i].find(':');
        more[shown[i].substr(0, colon)] = shown[i].substr(colon + 1);
    }
    for (const auto& [name, value] : more) EXPECT_EQ(desk.Seen(name), value) << name;
}

TEST(Calculator, ShowsWhatItsKeysGive) {
    std::ifstream table(HALVEK_CALCULATOR_KEYS);
    int sequences = 0;
    for (std::string line; std::getline(table, line);) {
        if (line.empty() || line[0] == '#') continue;
        for (std::size_t start = 0, end = 0; end != line.npos; start = end + 3) {
            end = line.find(" | ", start);
            ExpectShown(line.substr(start, end - start));
            ++sequences;
        }
    }
    EXPECT_GE(sequences, 300);
}

TEST(Calculator, AButtonThatIsNoneIsLogged) {
    Desk desk;
    desk.calculator.HookedKeyDown(8);
    EXPECT_EQ(desk.session.logged,
              std::vector<std::u16string>{u"calculator : WHICH BUTTON WAS CLICKED? 99"});
}

TEST(Calculator, AnUnknownOperatorIsToldAndGivesNothing) {
    Desk desk(u"5");
    desk.calculator.Operate(u'%');
    EXPECT_EQ(desk.calculator.Display(), u"5");
    desk.calculator.Operate(u'+');
    EXPECT_EQ(desk.calculator.Display(), u"");
    EXPECT_EQ(desk.calculator.Compute(u"6", u'^', u"2"), u"");
    ASSERT_EQ(desk.desktop.StockMessages().size(), 2u);
    EXPECT_EQ(desk.desktop.StockMessages()[0].text, u"last operator?");
    EXPECT_EQ(desk.desktop.StockMessages()[1].text, u"operator ?");
}

TEST(Calculator, TextOfAnyLengthAndAnyNumberIsSurvived) {
    const std::u16string digits(400, u'9');
    for (const auto* start : {u"", u"-", u".", u"1e308", u"nan"}) {
        const std::u16string text = start + digits;
        Desk desk(text);
        desk.calculator.Paste(text);
        desk.calculator.EditDisplay(text);
        for (const char16_t op : std::u16string_view(u"*/+-*=")) {
            desk.calculator.Operate(op);
            desk.calculator.EditDisplay(text);
            desk.calculator.Press(Calculator::kChangeSign);
            const std::u16string shown = desk.calculator.Display();
            EXPECT_TRUE(shown == u"ERROR" || IsNumeric(shown)) << ToUtf8(shown);
        }
    }
}

TEST(Calculator, TheClipboardGetsANumberAndReplacesWhatIsSelected) {
    Desk desk(u"1,234.50");
    desk.calculator.Paste(u"9\r\n", 1, 2);
    EXPECT_EQ(desk.calculator.Copy(), u"194.5");
    desk.calculator.Paste(u"1.5", 0, 2);
    desk.calculator.Paste(u"7", 99, 1);
    EXPECT_EQ(desk.calculator.Copy(), u"194.57");
    EXPECT_EQ(desk.desktop.Beeps(), 1);
    desk.calculator.EditDisplay(u"ERROR");
    EXPECT_EQ(desk.calculator.Copy(), u"");
    EXPECT_EQ(desk.desktop.Beeps(), 2);
}

struct ScriptedCalculator : CleanState {};

TEST_F(ScriptedCalculator, CalculateReturnsWhatTheUserAcceptsAndLogsAFault) {
    const auto utils = Utils::Create();
    EXPECT_EQ(utils->Calculate(u"5"), u"");  // before InitUtils
    utils->InitUtils(u"", u"Front Desk", u"", false, u"");
    desktop_.OnCalculator([](Calculator& calculator) {
        calculator.Operate(u'*');
        calculator.Press(3);
        calculator.HookedKeyDown(13);
        calculator.HookedKeyDown(13);
    });
    EXPECT_EQ(utils->Calculate(u"$1.25"), u"3.75");
    desktop_.OnCalculator([](Calculator& calculator) { calculator.Press(3); });
    EXPECT_EQ(utils->Calculate(), u"");
    EXPECT_EQ(desktop_.Beeps(), 1);
    EXPECT_NE(ReadFile(machine_.ownFolder / "Error.Log")
                  .find("\tError in Utils.Calculate Object not set"),
              std::string::npos);
}

}  // namespace
}  // namespace halvek
