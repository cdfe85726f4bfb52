// SPDX-License-Identifier: MIT
#include <halvekutils/core/OpenSelection.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/platform/Guard.h>

#include <utility>

namespace halvek {

namespace {

constexpr float kNotGiven = -1;

float PositionOf(const std::optional<std::int32_t>& twips) {
    return twips ? static_cast<float>(*twips) : kNotGiven;
}

}  // namespace

PopupAnchor AnchorOf(Utils& utils, PopupEdge edge, const std::shared_ptr<PopupTarget>& target) {
    PopupAnchor anchor;
    Guarded(OnFault::Beep, u"Error in Utils.CalculateCellCoordinates ", LogOf(utils), [&] {
        if (target != nullptr) anchor = AnchorBeside(edge, *target);
    });
    return anchor;
}

void Utils::CalculateCellCoordinates(const std::shared_ptr<PopupTarget>& Target, float& posLeft,
                                     float& posTopUp, float& posTopDown, PopupEdge Edge) {
    const PopupAnchor anchor = AnchorOf(*this, Edge, Target);
    posLeft = PositionOf(anchor.left);
    posTopUp = PositionOf(anchor.topUp);
    posTopDown = PositionOf(anchor.topDown);
}

std::u16string Utils::ShowSelectionAndCalculateCoordinates(
    TextIn ListName, TextIn AllValues, TextIn SelectedValues,
    const std::shared_ptr<PopupTarget>& CmdButtonOrCell,
    const std::shared_ptr<OwnerForm>& FormToRefresh, ByRef<std::u16string> TypedCharacter) {
    return ShowSelectionGridAndCalculateCoordinates(ListName, AllValues, SelectedValues,
                                                    CmdButtonOrCell, FormToRefresh,
                                                    std::move(TypedCharacter), false);
}

std::u16string Utils::ShowSelectionGridAndCalculateCoordinates(
    TextIn ListName, TextIn AllValues, TextIn SelectedValues,
    const std::shared_ptr<PopupTarget>& CmdButtonOrCell,
    const std::shared_ptr<OwnerForm>& FormToRefresh, ByRef<std::u16string> TypedCharacter,
    bool DoNotIncludeDeleted) {
    const auto self = shared_from_this();
    return Guarded(OnFault::Quiet, kSelectionFault, LogOf(*this), std::u16string(), [&] {
        SelectionRequest request{ListName.Str(), AllValues.Str(), SelectedValues.Str()};
        request.doNotIncludeDeleted = DoNotIncludeDeleted;
        request.anchor = AnchorOf(*this, PopupEdge::Right, CmdButtonOrCell);
        return OpenSelection(*this, std::move(request), std::move(TypedCharacter), FormToRefresh);
    });
}

void Refresh(Utils& utils, const char16_t* faultPrefix, const std::shared_ptr<OwnerForm>& form) {
    Guarded(OnFault::Quiet, faultPrefix, LogOf(utils), [&] {
        if (form != nullptr && form->Exists()) form->Refresh();
    });
}

}  // namespace halvek
