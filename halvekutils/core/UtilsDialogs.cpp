// SPDX-License-Identifier: MIT
#include <halvekutils/controls/Placement.h>
#include <halvekutils/core/Platform.h>
#include <halvekutils/core/Session.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/dialogs/Calculator.h>
#include <halvekutils/dialogs/Calendar.h>
#include <halvekutils/dialogs/ColorPalette.h>
#include <halvekutils/dialogs/MessageBox.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/platform/NativePath.h>
#include <halvekutils/selection/SelectGrid.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace halvek {

// Dialogs get Services::Current(), not TheSession(), so that they fail before the first InitUtils.

namespace {

constexpr float kNotGiven = -1;

float PositionOf(const std::optional<std::int32_t>& twips) {
    return twips ? static_cast<float>(*twips) : kNotGiven;
}

/// The anchor of a pop-up beside a target. It is empty, which centres the pop-up, without a target
/// and for a destroyed one, which is logged.
PopupAnchor AnchorOf(Utils& utils, PopupEdge edge, const std::shared_ptr<PopupTarget>& target) {
    PopupAnchor anchor;
    Guarded(OnFault::Beep, u"Error in Utils.CalculateCellCoordinates ", utils, [&] {
        if (target != nullptr) anchor = AnchorBeside(edge, *target);
    });
    return anchor;
}

/// Repaints a host's form after a dialog, unless there is none or it was destroyed. A fault is
/// logged with the prefix. The dialog's call has held a copy of the pointer: the host may have
/// released its own.
void Refresh(Utils& utils, const char16_t* faultPrefix, std::shared_ptr<OwnerForm>&& form) {
    Guarded(OnFault::Quiet, faultPrefix, utils, [&] {
        if (form != nullptr && form->Exists()) form->Refresh();
    });
}

}  // namespace

// Message box and calculator

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
    return Guarded(OnFault::Beep, u"Error in Utils.ShowMsgBox ", *this, kNotAnswered, show);
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
    return Guarded(OnFault::Beep, u"Error in Utils.Calculate ", *this, std::u16string(), calculate);
}

// Places

void Utils::CalculateCellCoordinates(const std::shared_ptr<PopupTarget>& Target, float& posLeft,
                                     float& posTopUp, float& posTopDown, PopupEdge Edge) {
    const PopupAnchor anchor = AnchorOf(*this, Edge, Target);
    posLeft = PositionOf(anchor.left);
    posTopUp = PositionOf(anchor.topUp);
    posTopDown = PositionOf(anchor.topDown);
}

// Calendar

namespace {

constexpr char16_t kCalendarFault[] = u"Error in Utils.ShowCalendar ";

/// `makeRequest` copies the caller's texts.
template <class MakeRequest>
std::u16string OpenCalendar(Utils& utils, const MakeRequest& makeRequest,
                            std::shared_ptr<OwnerForm> formToRefresh) {
    const auto self = utils.shared_from_this();
    const auto show = [&] {
        Services::Current();  // throws before the first InitUtils
        const auto calendar = std::make_shared<Calendar>(makeRequest(), *TheSession().machine);
        Platform::Installed().Show(calendar);
        return calendar->Result();
    };
    std::u16string day = Guarded(OnFault::Beep, kCalendarFault, utils, std::u16string(), show);
    Refresh(utils, kCalendarFault, std::move(formToRefresh));
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

// Colour palette

namespace {

std::u16string OpenPalette(Utils& utils, const PopupAnchor& anchor,
                           std::shared_ptr<OwnerForm> formToRefresh) {
    const auto self = utils.shared_from_this();
    std::shared_ptr<ColorPalette> palette;
    Guarded(OnFault::Beep, kPaletteFault, utils, [&] {
        palette =
            std::make_shared<ColorPalette>(TheSession().colorArray, anchor, Services::Current());
        Platform::Installed().Show(palette);
    });
    Refresh(utils, kPaletteFault, std::move(formToRefresh));
    return Guarded(OnFault::Beep, kPaletteFault, utils, std::u16string(),
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

// Selection lists

namespace {

constexpr char16_t kSelectionFault[] = u"ShowSelectionGridForm error ";

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

/// Shows a selection dialog and returns its result for the host. Clears the caller's variable of
/// the typed character.
std::u16string OpenSelection(Utils& utils, SelectionRequest request,
                             ByRef<std::u16string> typedCharacter,
                             std::shared_ptr<OwnerForm> formToRefresh) {
    const auto self = utils.shared_from_this();
    if (request.allValues.empty()) {
        utils.ShowMsgBox(u"Incomplete data received for Lookup Selection Grid.", mbOkOnly,
                         mbCritical, utils.AppName());
        return request.selectedValues;
    }
    std::shared_ptr<SelectGrid> grid;
    const auto show = [&] {
        request.typedCharacter = typedCharacter.Get();
        grid = std::make_shared<SelectGrid>(std::move(request), Services::Current(),
                                            MessagesOf(utils));
        typedCharacter.Set({});
        grid->Prepare();
        ShowModal(grid);
    };
    Guarded(OnFault::Quiet, kSelectionFault, utils, show);
    Refresh(utils, kSelectionFault, std::move(formToRefresh));
    if (grid == nullptr) return {};
    return grid->IsOpen() ? std::u16string(grid->Choice()) : grid->Result();
}

}  // namespace

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
    return Guarded(OnFault::Quiet, kSelectionFault, *this, std::u16string(), [&] {
        SelectionRequest request{ListName.Str(), AllValues.Str(), SelectedValues.Str()};
        request.doNotIncludeDeleted = DoNotIncludeDeleted;
        request.anchor = AnchorOf(*this, PopupEdge::Right, CmdButtonOrCell);
        return OpenSelection(*this, std::move(request), std::move(TypedCharacter), FormToRefresh);
    });
}

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
    return Guarded(OnFault::Quiet, kSelectionFault, *this, std::u16string(), [&] {
        SelectionRequest request{ListName.Str(), AllValues.Str(), SelectedValues.Str()};
        request.doNotIncludeDeleted = DoNotIncludeDeleted;
        request.anchor = AnchorAt(PopupEdge::Right, posLeft, posTopUp, posTopDown);
        return OpenSelection(*this, std::move(request), std::move(TypedCharacter), FormToRefresh);
    });
}

// Help

namespace {

/// Opens help in the given file, otherwise in the stored one; false, with a message to the user,
/// when there is no such file. A later fault is logged and does not change the result.
template <class Open>
bool OpenHelp(Utils& utils, const char16_t* faultPrefix, TextIn location, const Open& open) {
    const auto self = utils.shared_from_this();
    const std::u16string file = location.empty() ? TheSession().helpFilePath : location.Str();
    const auto exists = [&] {
        return !file.empty() && TheSession().machine->StateOf(NativePath(file)).exists;
    };
    const bool found = Guarded(OnFault::Quiet, faultPrefix, utils, false, exists);
    Guarded(OnFault::Quiet, faultPrefix, utils, [&] {
        Platform& platform = Platform::Installed();
        if (found) {
            open(platform, NativePath(file));
        } else {
            platform.ShowStockMessage(u"File " + file + u" is not found.", StockIcon::Critical,
                                      utils.AppName());
        }
    });
    return found;
}

}  // namespace

void Utils::InitHelp(TextIn FilePath) {
    TheSession().helpFilePath = FilePath.Str();
}
std::u16string Utils::HelpFilePath() const {
    return TheSession().helpFilePath;
}

bool Utils::ShowHelp(std::int32_t /*hwnd*/, std::int32_t ContextID, TextIn HelpFileLocation) {
    return OpenHelp(*this, u"Error in Utils.ShowHelp ", HelpFileLocation,
                    [&](Platform& platform, const std::filesystem::path& file) {
                        platform.ShowHelpContext(file, ContextID);
                    });
}

bool Utils::ShowHelpByTopic(std::int32_t /*hwnd*/, TextIn TopicPath, TextIn HelpFileLocation) {
    const std::u16string topic = TopicPath.Str();
    return OpenHelp(*this, u"Error in Utils.ShowHelpByTopic ", HelpFileLocation,
                    [&](Platform& platform, const std::filesystem::path& file) {
                        platform.ShowHelpTopic(file, topic);
                    });
}

}  // namespace halvek
