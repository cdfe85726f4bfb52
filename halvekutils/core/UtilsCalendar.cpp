// SPDX-License-Identifier: MIT
#include <halvekutils/core/ComponentState.h>
#include <halvekutils/core/Platform.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/dialogs/Calendar.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/platform/Services.h>

#include <memory>
#include <string>

namespace halvek {

namespace {

constexpr char16_t kFault[] = u"Error in Utils.ShowCalendar ";

/// `makeRequest` copies the caller's texts.
template <class MakeRequest>
std::u16string OpenCalendar(Utils& utils, const MakeRequest& makeRequest,
                            const std::shared_ptr<OwnerForm>& formToRefresh) {
    const auto self = utils.shared_from_this();
    const auto show = [&] {
        Services::Current();  // throws before the first InitUtils
        const auto calendar = std::make_shared<Calendar>(makeRequest(), *State().machine);
        Platform::Installed().Show(calendar);
        return calendar->Result();
    };
    std::u16string day = Guarded(OnFault::Beep, kFault, LogOf(utils), std::u16string(), show);
    Refresh(utils, kFault, formToRefresh);
    return day;
}

}  // namespace

std::u16string Utils::ShowCalendar(float posLeft, float posTopUp, float posTopDown,
                                   TextIn DateToShow, TextIn DefaultDate,
                                   const std::shared_ptr<OwnerForm>& FormToRefresh,
                                   bool bNeedsConversions) {
    const auto request = [&] {
        return CalendarRequest{DateToShow.Str(), DefaultDate.Str(), bNeedsConversions,
                               AnchorAt(PopupEdge::Left, posLeft, posTopUp, posTopDown)};
    };
    return OpenCalendar(*this, request, FormToRefresh);
}

std::u16string Utils::ShowCalendarAndCalculateCoordinates(
    const std::shared_ptr<PopupTarget>& CmdButtonOrCell, TextIn DateToShow, TextIn DefaultDate,
    const std::shared_ptr<OwnerForm>& FormToRefresh, bool bNeedsConversions) {
    const auto request = [&] {
        return CalendarRequest{DateToShow.Str(), DefaultDate.Str(), bNeedsConversions,
                               AnchorOf(*this, PopupEdge::Left, CmdButtonOrCell)};
    };
    return OpenCalendar(*this, request, FormToRefresh);
}

}  // namespace halvek
