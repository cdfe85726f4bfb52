// SPDX-License-Identifier: MIT
#include <halvekutils/core/OpenSelection.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/text/Placement.h>

#include <utility>

namespace halvek {

std::u16string Utils::ShowSelection(TextIn ListName, TextIn AllValues, TextIn SelectedValues,
                                    float posLeft, float posTopUp, float posTopDown,
                                    const std::shared_ptr<OwnerForm>& FormToRefresh,
                                    ByRef<std::u16string> TypedCharacter) {
    return ShowSelectionGrid(ListName, AllValues, SelectedValues, posLeft, posTopUp, posTopDown,
                             FormToRefresh, std::move(TypedCharacter), false);
}

std::u16string Utils::ShowSelectionGrid(TextIn ListName, TextIn AllValues, TextIn SelectedValues,
                                        float posLeft, float posTopUp, float posTopDown,
                                        const std::shared_ptr<OwnerForm>& FormToRefresh,
                                        ByRef<std::u16string> TypedCharacter,
                                        bool DoNotIncludeDeleted) {
    return Guarded(OnFault::Quiet, kSelectionFault, LogOf(*this), std::u16string(), [&] {
        SelectionRequest request{ListName.Str(), AllValues.Str(), SelectedValues.Str()};
        request.doNotIncludeDeleted = DoNotIncludeDeleted;
        request.anchor = AnchorAt(PopupEdge::Right, posLeft, posTopUp, posTopDown);
        return OpenSelection(*this, std::move(request), std::move(TypedCharacter), FormToRefresh);
    });
}

}  // namespace halvek
