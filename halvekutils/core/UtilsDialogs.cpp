// SPDX-License-Identifier: MIT
#include <halvekutils/core/ComponentServices.h>
#include <halvekutils/core/Platform.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/platform/Guard.h>

namespace halvek {

MbMsgBoxResult Utils::ShowMsgBox(TextIn Prompt, ButtonsChoice Buttons, IconChoice Icon,
                                 TextIn Title, ByRef<ColorChoice> BackgroundColor,
                                 ByRef<FontSizeChoice> fontSize, bool FontBold,
                                 std::int32_t CloseAfterNSec) {
    const auto self = shared_from_this();
    BackgroundColor.Set(NormalizedBackground(BackgroundColor.Get()));
    fontSize.Set(NormalizedFontSize(fontSize.Get()));
    const auto show = [&] {
        Platform& platform = Platform::Installed();
        const MessageBoxRequest request{
            Prompt.Str(),          Buttons,        Icon,     Title.Str(),
            BackgroundColor.Get(), fontSize.Get(), FontBold, CloseAfterNSec};
        const auto box = std::make_shared<MessageBox>(request, Services::Current(), platform);
        platform.Show(box, Modality::Modal);
        return box->ReturnedValue();
    };
    return Guarded(OnFault::Beep, u"Error in Utils.ShowMsgBox ", LogOf(*this), kNotAnswered, show);
}

std::u16string Utils::Calculate(TextIn InitValue) {
    const auto self = shared_from_this();
    const auto calculate = [&] {
        Platform& platform = Platform::Installed();
        const auto calculator =
            std::make_shared<Calculator>(InitValue, Services::Current(), platform);
        platform.Show(calculator);
        return calculator->Result();
    };
    return Guarded(OnFault::Beep, u"Error in Utils.Calculate ", LogOf(*this), std::u16string(),
                   calculate);
}

}  // namespace halvek
