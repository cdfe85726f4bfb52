// SPDX-License-Identifier: MIT
#include <halvekutils/core/OpenSelection.h>
#include <halvekutils/core/Platform.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/platform/Guard.h>

#include <utility>

namespace halvek {

namespace {

/// Shows the dialog's messages as the library's own message boxes.
SelectGrid::MessageSink MessagesOf(Utils& utils) {
    return [&utils](const SelectionMessage& message) {
        const bool informs = message.icon == SelectionMessage::Icon::Information;
        utils.ShowMsgBox(message.text, mbOkOnly, informs ? mbInformation : mbNoIcon, message.title);
    };
}

void ShowModal(const std::shared_ptr<SelectGrid>& grid) {
    try {
        Platform::Installed().Show(grid);
    } catch (...) {
        grid->Abandon();
        throw;
    }
}

}  // namespace

std::u16string OpenSelection(Utils& utils, SelectionRequest request,
                             ByRef<std::u16string> TypedCharacter,
                             std::shared_ptr<OwnerForm> FormToRefresh) {
    const auto self = utils.shared_from_this();
    if (request.allValues.empty()) {
        utils.ShowMsgBox(u"Incomplete data received for Lookup Selection Grid.", mbOkOnly,
                         mbCritical, utils.AppName());
        return request.selectedValues;
    }
    std::shared_ptr<SelectGrid> grid;
    const auto show = [&] {
        request.typedCharacter = TypedCharacter.Get();
        grid = std::make_shared<SelectGrid>(std::move(request), Services::Current(),
                                            MessagesOf(utils));
        TypedCharacter.Set({});
        grid->Prepare();
        ShowModal(grid);
    };
    Guarded(OnFault::Quiet, kSelectionFault, LogOf(utils), show);
    Refresh(utils, kSelectionFault, FormToRefresh);
    if (grid == nullptr) return {};
    // A fault before it was shown leaves what had been ticked by then.
    return grid->IsOpen() ? std::u16string(grid->Choice()) : grid->Result();
}

}  // namespace halvek
