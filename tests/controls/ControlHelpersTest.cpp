// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"
#include "tests/FaultOf.h"

#include <cmath>
#include <tuple>

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

TEST_F(ControlHelpersTest, AFailedSearchIsToldIfTheHostWantsThat) {
    Start();
    desktop_.OnMessageBox([](MessageBox& box) { EXPECT_GT(box.Prompt().find(u"91"), 9u); });
    for (const bool isTold : {false, true}) {
        EXPECT_EQ(utils_->FindInCombo(nullptr, u"A", false, true, isTold), -1);
        EXPECT_EQ(desktop_.AnswersLeft(), isTold ? 0u : 1u);
    }
    EXPECT_NE(Log().find(" | Function: FindInCombo | Error: #91"), std::string::npos);
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
