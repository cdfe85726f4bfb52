// SPDX-License-Identifier: MIT
#include <halvekutils/core/ComponentState.h>
#include <halvekutils/core/Platform.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/text/ServerDates.h>

#include <chrono>
#include <optional>

namespace halvek {

namespace {

constexpr char16_t kIncorrectTime[] = u"Error: time is incorrect";

Machine& Clock() {
    return *State().machine;
}

}  // namespace

void Utils::InitServerTime(TextIn TimeFromServer) {
    const std::optional<std::int32_t> offset = ServerClockOffset(TimeFromServer, Clock());
    if (offset) d_->serverClockOffset = *offset;
}

DateTime Utils::ServerTime() {
    return Guarded(OnFault::Quiet, u"Error in Utils.ServerTime ", LogOf(*this), DateTime(),
                   [&] { return Clock().Now() + std::chrono::seconds(d_->serverClockOffset); });
}

std::u16string Utils::ConvertNumberToDate(TextIn strDate, bool bConvert) {
    return Guarded(OnFault::Quiet, u"Error in Utils.ConvertNumberToDate ", LogOf(*this),
                   std::u16string(),
                   [&] { return halvek::ConvertNumberToDate(strDate, bConvert, Clock()); });
}

std::u16string Utils::ConvertHDate(TextIn HDate) {
    std::u16string text;
    Guarded(OnFault::Quiet, u"Error in Utils.ConvertHDate ", LogOf(*this), [&] {
        if (HDate.empty()) return;
        const std::optional<DateTime> when = ReadServerDate(HDate, Clock());
        text = when ? DateTimeText(*when) : kIncorrectTime;
        if (when || !DBG()) return;
        const auto self = shared_from_this();
        Platform::Installed().ShowStockMessage(u"Hey this time is not correct.....",
                                               StockIcon::None, AppName());
    });
    return text;
}

}  // namespace halvek
