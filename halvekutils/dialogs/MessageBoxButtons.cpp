// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/MessageBoxButtons.h>

#include <algorithm>

namespace halvek {

namespace {

constexpr MbMsgBoxResult kHidden = kNotAnswered;

// In the order of the values of ButtonsChoice.
constexpr MessageBoxButtonSet kButtonSets[] = {
    {mbOkOnly, {mbOK, kHidden, kHidden}, true, true, u"1"},
    {mbOkCancel, {mbOK, mbCancel, kHidden}, true, true, u"2"},
    {mbAbortRetryIgnore, {mbAbort, mbRetry, mbIgnore}, false, false, u""},
    {mbYesNoCancel, {mbYes, mbNo, mbCancel}, true, true, u"2"},
    {mbYesNo, {mbYes, mbNo, kHidden}, false, false, u""},
    {mbRetryCancel, {mbRetry, mbCancel, kHidden}, true, true, u"2"},
    {mbSaveDontSave, {mbSave, mbDontSave, kHidden}, false, false, u""},
    {mbNoButtons, {kHidden, kHidden, kHidden}, true, true, u""},
    {mbYesHelp, {mbYes, mbHelp, kHidden}, true, false, u"6"},
    {mbYesNoHelp, {mbYes, mbNo, mbHelp}, false, false, u""},
    {mbOkHelp, {mbOK, mbHelp, kHidden}, true, false, u"1"},
};

struct CaptionRow {
    MbMsgBoxResult result;
    std::u16string_view caption;
};

constexpr CaptionRow kCaptions[] = {
    {mbOK, u"&OK"},       {mbCancel, u"&Cancel"}, {mbAbort, u"&Abort"},
    {mbRetry, u"&Retry"}, {mbIgnore, u"&Ignore"}, {mbYes, u"&Yes"},
    {mbNo, u"&No"},       {mbSave, u"&Save"},     {mbDontSave, u"&Don't Save"},
    {mbHelp, u"&Help"},
};

}  // namespace

const MessageBoxButtonSet& ButtonSetOf(ButtonsChoice choice) {
    const auto row = std::ranges::find(kButtonSets, choice, &MessageBoxButtonSet::choice);
    return row == std::end(kButtonSets) ? kButtonSets[mbOkOnly] : *row;
}

int ButtonCount(ButtonsChoice choice) {
    const auto& results = ButtonSetOf(choice).results;
    return static_cast<int>(results.size()) -
           static_cast<int>(std::ranges::count(results, kHidden));
}

std::u16string_view CaptionOf(MbMsgBoxResult result) {
    const auto row = std::ranges::find(kCaptions, result, &CaptionRow::result);
    return row == std::end(kCaptions) ? std::u16string_view() : row->caption;
}

}  // namespace halvek
