// SPDX-License-Identifier: MIT
#include <halvekutils/base/Existing.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/UpperCase.h>
#include <halvekutils/controls/ControlHelpers.h>

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace halvek {

namespace {

// Nothing on a screen is larger, and a text engine may choke on a larger font.
constexpr float kLargestFont = 2160;
constexpr float kFontStep = 0.1F;
// A font with fixed sizes has them a few points apart. A font that has not grown after 10 points
// has a single size.
constexpr int kMaxFontSteps = 100;

struct GridFontCode {
    TextIn code;
    std::int16_t size;
    bool bold;
    bool italic;
};

constexpr GridFontCode kGridFonts[] = {
    {u"0", 8, false, false},  {u"1", 8, true, false},  {u"2", 8, false, true},
    {u"3", 10, false, false}, {u"4", 10, true, false}, {u"5", 10, false, true},
    {u"6", 12, false, false}, {u"7", 12, true, false}, {u"8", 12, false, true},
};

/// Shows a look on a control that can be highlighted.
void Show(HeadingControl& control, HeadingLook look) {
    const HeadingKind kind = control.Kind();
    if (kind == HeadingKind::Other) return;
    if (kind != HeadingKind::Label) look.border = false;
    control.Show(look);
}

std::u16string Capitals(std::u16string text) {
    std::ranges::transform(text, text.begin(), UpperCase);
    return text;
}

constexpr std::int32_t kNotFound = -1;

std::int32_t IndexOf(const ComboBox& box, TextIn text, bool partialMatch, bool matchCase) {
    const std::u16string sought = matchCase ? text.Str() : Capitals(text.Str());
    const std::int32_t count = box.ListCount();
    for (std::int32_t index = 0; index < count; ++index) {
        std::u16string entry = box.List(index);
        if (!matchCase) entry = Capitals(std::move(entry));
        const bool isPart = !entry.empty() && entry.find(sought) != std::u16string::npos;
        if (partialMatch ? isPart : entry == sought) return index;
    }
    return kNotFound;
}

}  // namespace

void HighlightHeading(const std::shared_ptr<HeadingControl>& control, std::int16_t iBorderStyle,
                      Color back, Color fore) {
    Show(Existing(control, u"heading"), {back, fore, iBorderStyle != 0});
}

void UnhighlightHeading(const std::shared_ptr<HeadingControl>& control, Color fore) {
    Show(Existing(control, u"heading"), {std::nullopt, fore, false});
}

bool SetFontProperties(const std::shared_ptr<ControlFont>& font, TextIn fontName, float fontSize) {
    ControlFont& set = Existing(font, u"font");
    if (!(fontSize > 0 && fontSize <= kLargestFont)) {
        throw RuntimeError(Fault::InvalidArgument,
                           u"font size " + NumberText(static_cast<double>(fontSize)));
    }
    set.Name(fontName);
    set.Size(fontSize);
    for (int step = 1; !(set.Size() >= fontSize); ++step) {
        if (step > kMaxFontSteps) {
            set.Size(fontSize);
            return false;
        }
        set.Size(fontSize + static_cast<float>(step) * kFontStep);
    }
    return true;
}

void GridSetFontObject(const std::shared_ptr<GridFont>& font, TextIn fontCode) {
    const auto* const found = std::ranges::find(kGridFonts, fontCode, &GridFontCode::code);
    if (found == std::end(kGridFonts)) return;
    GridFont& set = Existing(font, u"grid font");
    set.SetSize(found->size);
    set.SetBold(found->bold);
    set.SetItalic(found->italic);
}

std::int32_t FindInCombo(const std::shared_ptr<ComboBox>& box, TextIn text, bool partialMatch,
                         bool matchCase) {
    ComboBox& searched = Existing(box, u"combo box");
    const std::int32_t found = IndexOf(searched, text, partialMatch, matchCase);
    if (found != kNotFound) searched.ListIndex(found);
    return found;
}

void FillCombo(const std::shared_ptr<ComboBox>& box, TextIn items, bool widen) {
    ComboBox& filled = Existing(box, u"combo box");
    std::vector<TextIn> entries;
    for (const TextIn item : Pieces(items, u':')) entries.push_back(item);
    if (entries.back().empty()) entries.pop_back();
    filled.SetItems(entries);
    if (widen) filled.WidenToItems();
}

}  // namespace halvek
