// SPDX-License-Identifier: MIT
#include <halvekutils/core/ComponentState.h>
#include <halvekutils/core/Platform.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/platform/Guard.h>

namespace halvek {

namespace {

std::u16string OpenPalette(Utils& utils, const PopupAnchor& anchor,
                           std::shared_ptr<OwnerForm> formToRefresh) {
    const auto self = utils.shared_from_this();
    std::shared_ptr<ColorPalette> palette;
    Guarded(OnFault::Beep, kPaletteFault, LogOf(utils), [&] {
        palette = std::make_shared<ColorPalette>(State().colorArray, anchor, Services::Current());
        Platform::Installed().Show(palette);
    });
    Refresh(utils, kPaletteFault, formToRefresh);
    return Guarded(OnFault::Beep, kPaletteFault, LogOf(utils), std::u16string(),
                   [&] { return palette == nullptr ? std::u16string() : palette->Result(); });
}

}  // namespace

std::u16string Utils::ShowColorAndCalculateCoordinates(
    const std::shared_ptr<PopupTarget>& CmdButtonOrCell,
    const std::shared_ptr<OwnerForm>& FormToRefresh) {
    return OpenPalette(*this, AnchorOf(*this, PopupEdge::Left, CmdButtonOrCell), FormToRefresh);
}

std::u16string Utils::ShowColor(float posLeft, float posTopUp, float posTopDown,
                                const std::shared_ptr<OwnerForm>& FormToRefresh) {
    return OpenPalette(*this, AnchorAt(PopupEdge::Left, posLeft, posTopUp, posTopDown),
                       FormToRefresh);
}

}  // namespace halvek
