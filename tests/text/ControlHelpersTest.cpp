#include "tests/CleanState.h"
#include "tests/FaultOf.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <tuple>
#include <vector>

namespace halvek {
namespace {

struct FakeFont : ControlFont {
    explicit FakeFont(float (*rounds)(float)) : reported(rounds) {}
    void Name(TextIn) override {}
    void Size(float points) override { asked.push_back(points); }
    float Size() const override { return reported(asked.back()); }
    float (*reported)(float);
    std::vector<float> asked;
};

class ControlHelpersTest : public CleanState {
  protected:
    std::shared_ptr<Utils> utils_ = Utils::Create();
};

TEST_F(ControlHelpersTest, AFontReachesItsSizeOrEndsWhereItBegan) {
    const auto exact = [](float asked) { return asked; };
    const auto pixels = [](float asked) { return std::round(asked / 0.75F) * 0.75F; };
    const auto fixed = [](float) { return 9.0F; };
    const auto broken = [](float) { return std::nanf(""); };
    struct {
        float (*reported)(float);
        float size;
        bool result;
        std::vector<float>::size_type times;
        float last;
    } const cases[] = {{exact, 7, true, 1, 7},          {pixels, 7, true, 3, 7.2F},
                       {pixels, 8, true, 1, 8},         {fixed, 12, false, 102, 12},
                       {fixed, 2160, false, 102, 2160}, {broken, 12, false, 102, 12},
                       {exact, 0, false, 0, 0},         {exact, -7, false, 0, 0},
                       {exact, 1e30F, false, 0, 0},     {exact, INFINITY, false, 0, 0},
                       {exact, NAN, false, 0, 0}};
    for (const auto& [reported, size, result, times, last] : cases) {
        const auto font = std::make_shared<FakeFont>(reported);
        EXPECT_EQ(utils_->SetFontProperties(font, u"Tahoma", size), result) << size;
        ASSERT_EQ(font->asked.size(), times) << size;
        EXPECT_TRUE(times == 0 || std::abs(font->asked.back() - last) < 1e-3F) << size;
    }
}

TEST_F(ControlHelpersTest, AMissingControlIsLogged) {
    utils_->HighlightHeading(nullptr);
    utils_->GridSetFontObject(nullptr, u"0");
    EXPECT_FALSE(utils_->SetFontProperties(nullptr) || utils_->FillCombo(u"A", nullptr));
    EXPECT_EQ(utils_->FindInCombo(nullptr, u"A"), -1);
    const std::string log = ReadFile(machine_.ownFolder / "Error.Log");
    for (const std::string line : {"Error in Utils.HighlightHeading Object not set: heading",
                                   "Error in Utils.GridSetFontObject Object not set: grid font",
                                   "Error in Utils.SetFontProperties Object not set: font",
                                   "Error in Utils.FillCombo Object not set: combo box",
                                   " | Function: FindInCombo | Error: #91"}) {
        EXPECT_NE(log.find('\t' + line + "\r\n"), std::string::npos) << line;
    }
    utils_->InitUtils(u"", u"", u"", false, u"");
    desktop_.OnMessageBox([](MessageBox& box) {
        EXPECT_TRUE(box.Prompt().ends_with(u"Error 91: Object not set: combo box"));
    });
    EXPECT_EQ(utils_->FindInCombo(nullptr, u"A", false, true, true), -1);
    EXPECT_EQ(desktop_.AnswersLeft(), 0u);
}

TEST_F(ControlHelpersTest, LookupKeysAreThoseOfThePreferences) {
    // Twice: nothing creates preferences.
    EXPECT_EQ(FaultOf([&] { utils_->IsLookupKey(113); }), 91);
    EXPECT_EQ(FaultOf([&] { utils_->ConvertLookupKeyToSearchBy(113); }), 91);
    const auto prefs = std::make_shared<SystemPrefs>();
    utils_->SetCurrentSystemPrefs(prefs);
    prefs->LookupKey(113);
    prefs->LookupKey1(0x1FFFF);
    for (const auto& [key, searchBy] : {std::pair<int, TextIn>{113, u"1"}, {-1, u"2"}, {0, u""}}) {
        const auto pressed = static_cast<std::int16_t>(key);
        EXPECT_EQ(utils_->ConvertLookupKeyToSearchBy(pressed), searchBy);
        EXPECT_EQ(utils_->IsLookupKey(pressed), !searchBy.empty());
    }
    prefs->LookupKey1(113);
    EXPECT_EQ(utils_->ConvertLookupKeyToSearchBy(113), u"1");
}

TEST_F(ControlHelpersTest, KeysAndTimeAreThoseOfTheSurroundings) {
    desktop_.HoldKeys({false, true, false});
    EXPECT_TRUE(utils_->AltPressed() && !utils_->ShiftPressed() && !utils_->CtrlPressed());
    for (const std::int32_t time : {INT32_MIN, 0, 20}) utils_->Sleep(time);
    EXPECT_EQ(machine_.slept.count(), 20);
}

}  // namespace
}  // namespace halvek
