// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/ColorName.h>

#include <algorithm>
#include <cmath>

namespace halvek {

namespace {

struct Name {
    int upTo;  ///< of the hue in degrees, or of the lightness in per cent
    const char16_t* name;
};

constexpr Name kHues[] = {
    {12, u"red"},     {42, u"orange"}, {68, u"yellow"}, {95, u"lime"},
    {155, u"green"},  {175, u"teal"},  {200, u"cyan"},  {252, u"blue"},
    {290, u"purple"}, {335, u"pink"},  {360, u"red"},
};
constexpr Name kGreys[] = {
    {5, u"black"}, {35, u"dark gray"}, {65, u"gray"}, {95, u"light gray"}, {100, u"white"},
};
constexpr Name kTones[] = {{30, u"dark "}, {65, u""}, {88, u"light "}, {100, u"pale "}};

template <std::size_t n>
std::u16string NameOf(const Name (&table)[n], double value) {
    for (const Name& row : table) {
        if (value <= row.upTo) return row.name;
    }
    return table[n - 1].name;
}

double HueOf(double red, double green, double blue, double most, double spread) {
    constexpr double kSixth = 60;
    if (most == red) return (green - blue) / spread * kSixth + (green < blue ? 360 : 0);
    if (most == green) return (blue - red) / spread * kSixth + 120;
    return (red - green) / spread * kSixth + 240;
}

}  // namespace

std::u16string ColorName(Color color) {
    constexpr double kFull = 255;
    constexpr double kGreyish = 12;  // per cent of the highest chroma at this lightness
    const double red = RedOf(color);
    const double green = GreenOf(color);
    const double blue = BlueOf(color);
    const auto [least, most] = std::minmax({red, green, blue});
    const double lightness = (least + most) / 2 / kFull * 100;
    const double spread = most - least;
    const double room = kFull - std::abs(least + most - kFull);
    const bool hasHue = lightness > kGreys[0].upTo && spread > room * kGreyish / 100;
    if (!hasHue) return NameOf(kGreys, lightness);
    const std::u16string hue = NameOf(kHues, HueOf(red, green, blue, most, spread));
    const std::u16string tone = NameOf(kTones, lightness);
    if (tone == u"dark " && (hue == u"orange" || hue == u"yellow")) return u"brown";
    if (hue == u"red" && lightness > 65) return tone + u"pink";
    return tone + hue;
}

std::u16string ColorHex(Color color) {
    constexpr char16_t kDigits[] = u"0123456789ABCDEF";
    std::u16string text = u"#";
    for (const int part : {RedOf(color), GreenOf(color), BlueOf(color)}) {
        text += kDigits[part / 16];
        text += kDigits[part % 16];
    }
    return text;
}

}  // namespace halvek
