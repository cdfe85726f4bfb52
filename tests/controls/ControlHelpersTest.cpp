// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"
#include "tests/FaultOf.h"

#include <cmath>
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

using ControlHelpersTest = CleanState;

TEST_F(ControlHelpersTest, AFontReachesItsSizeOrEndsWhereItBegan) {
    const auto exact = [](float asked) { return asked; };
    const auto pixels = [](float asked) { return std::round(asked / 0.75F) * 0.75F; };
    const auto fixed = [](float) { return 9.0F; };
    const auto broken = [](float) { return std::nanf(""); };
    const std::tuple<float (*)(float), float, bool, int, float> cases[] = {
        {exact, 7, true, 1, 7},          {pixels, 7, true, 3, 7.2F},
        {pixels, 8, true, 1, 8},         {fixed, 12, false, 102, 12},
        {fixed, 2160, false, 102, 2160}, {broken, 12, false, 102, 12},
        {exact, 0, false, 0, 0},         {exact, 1e30F, false, 0, 0},
        {exact, INFINITY, false, 0, 0},  {exact, NAN, false, 0, 0}};
    for (const auto& [reported, size, result, times, last] : cases) {
        const auto font = std::make_shared<FakeFont>(reported);
        EXPECT_EQ(utils_->SetFontProperties(font, u"Tahoma", size), result) << size;
        ASSERT_EQ(std::ssize(font->asked), times) << size;
        EXPECT_TRUE(times == 0 || std::abs(font->asked.back() - last) < 1e-3F) << size;
    }
}

TEST_F(ControlHelpersTest, AMissingControlIsLogged) {
    Start();
    desktop_.OnMessageBox([](MessageBox& box) { EXPECT_GT(box.Prompt().find(u"91"), 9u); });
    utils_->HighlightHeading(nullptr);
    EXPECT_FALSE(utils_->FillCombo(u"A", nullptr));
    for (const std::size_t answersLeft : {1u, 0u}) {
        EXPECT_EQ(utils_->FindInCombo(nullptr, u"A", false, true, answersLeft == 0), -1);
        EXPECT_EQ(desktop_.AnswersLeft(), answersLeft);
    }
    for (const std::string line : {"Error in Utils.HighlightHeading Object not set: heading",
                                   "Error in Utils.FillCombo Object not set: combo box",
                                   " | Function: FindInCombo | Error: #91"}) {
        EXPECT_NE(Log().find('\t' + line + "\r\n"), std::string::npos) << line;
    }
}

TEST_F(ControlHelpersTest, LookupKeysAreThoseOfThePreferences) {
    EXPECT_EQ(FaultOf([&] { utils_->ConvertLookupKeyToSearchBy(113); }), 91);
    EXPECT_EQ(FaultOf([&] { utils_->IsLookupKey(113); }), 91);
    const auto prefs = utils_->GetCurrentSystemPrefs();
    prefs->LookupKey(113);
    prefs->LookupKey1(0x1FFFF);
    for (const auto key : std::initializer_list<std::int16_t>{113, -1, 0}) {
        const TextIn by = key == 113 ? u"1" : key == -1 ? u"2" : u"";
        EXPECT_EQ(utils_->ConvertLookupKeyToSearchBy(key), by);
        EXPECT_EQ(utils_->IsLookupKey(key), !by.empty());
    }
    prefs->LookupKey1(113);
    EXPECT_EQ(utils_->ConvertLookupKeyToSearchBy(113), u"1");
}

}  // namespace
}  // namespace halvek
