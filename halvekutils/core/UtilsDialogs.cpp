// SPDX-License-Identifier: MIT
#include <halvekutils/controls/Placement.h>
#include <halvekutils/core/Platform.h>
#include <halvekutils/core/Session.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/core/WayIn.h>
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
constexpr char16_t kPlaceFault[] = u"Error in Utils.CalculateCellCoordinates ";

float PositionOf(const std::optional<std::int32_t>& twips) {
    return twips ? static_cast<float>(*twips) : kNotGiven;
}

/// The anchor of a pop-up beside a target. It is empty, which centres the pop-up, without a target
/// and for a destroyed one, which is logged.
PopupAnchor AnchorOf(Utils& utils, PopupEdge edge, const std::shared_ptr<PopupTarget>& target) {
    PopupAnchor anchor;
    Guarded(OnFault::Beep, kPlaceFault, utils, [&] {
        if (target != nullptr) anchor = AnchorBeside(edge, *target);
    });
    return anchor;
}

/// Where no target gives a pop-up its owner, it belongs to the form that is refreshed after it.
PopupAnchor OwnedBy(const std::shared_ptr<OwnerForm>& form, PopupAnchor anchor) {
    if (anchor.window == 0 && form != nullptr && form->Exists()) anchor.window = form->Window();
    return anchor;
}

/// Repaints a host's form after a dialog, unless there is none or it was destroyed. A fault is
/// logged with the prefix.
void Refresh(Utils& utils, const char16_t* faultPrefix, const std::shared_ptr<OwnerForm>& form) {
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
    BackgroundColor.Set(NormalizedBackground(BackgroundColor.Get()));
    fontSize.Set(NormalizedFontSize(fontSize.Get()));
    const auto show = [&](std::u16string prompt, std::u16string title) {
        Platform& platform = Platform::Installed();
        MessageBoxRequest request{std::move(prompt),     Buttons,        Icon,     std::move(title),
                                  BackgroundColor.Get(), fontSize.Get(), FontBold, CloseAfterNSec};
        const auto box =
            std::make_shared<MessageBox>(std::move(request), Services::Current(), platform);
        platform.Show(box, Modality::Modal);
        return box->ReturnedValue();
    };
    return Entered(*this, OnFault::Beep, u"Error in Utils.ShowMsgBox ", kNotAnswered, show, Prompt,
                   Title);
}

std::u16string Utils::Calculate(TextIn InitValue) {
    const auto calculate = [&](const std::u16string& value) {
        Platform& platform = Platform::Installed();
        const auto calculator = std::make_shared<Calculator>(value, Services::Current(), platform);
        platform.Show(calculator);
        return calculator->Result();
    };
    return Entered(*this, OnFault::Beep, u"Error in Utils.Calculate ", std::u16string(), calculate,
                   InitValue);
}

// Places

void Utils::CalculateCellCoordinates(const std::shared_ptr<PopupTarget>& Target, float& posLeft,
                                     float& posTopUp, float& posTopDown, PopupEdge Edge) {
    // Not after a fault, whose message the variables may not outlive
    posLeft = posTopUp = posTopDown = kNotGiven;
    const auto place = [&](const std::shared_ptr<PopupTarget>& target) {
        if (target == nullptr) return;
        const PopupAnchor anchor = AnchorBeside(Edge, *target);
        posLeft = PositionOf(anchor.left);
        posTopUp = PositionOf(anchor.topUp);
        posTopDown = PositionOf(anchor.topDown);
    };
    EnteredVoid(*this, OnFault::Beep, kPlaceFault, place, Target);
}

// Calendar

namespace {

constexpr char16_t kCalendarFault[] = u"Error in Utils.ShowCalendar ";

std::u16string OpenCalendar(Utils& utils, CalendarRequest request,
                            const std::shared_ptr<OwnerForm>& formToRefresh) {
    const auto show = [&] {
        Services::Current();  // throws before the first InitUtils
        request.anchor = OwnedBy(formToRefresh, request.anchor);
        const auto calendar = std::make_shared<Calendar>(request, *TheSession().machine);
        Platform::Installed().Show(calendar);
        return calendar->Result();
    };
    std::u16string day = Guarded(OnFault::Beep, kCalendarFault, utils, std::u16string(), show);
    Refresh(utils, kCalendarFault, formToRefresh);
    return day;
}

}  // namespace

std::u16string Utils::ShowCalendar(float posLeft, float posTopUp, float posTopDown,
                                   TextIn DateToShow, TextIn DefaultDate,
                                   const std::shared_ptr<OwnerForm>& FormToRefresh,
                                   bool bNeedsConversions) {
    const auto open = [&](std::u16string dateToShow, std::u16string defaultDate,
                          const std::shared_ptr<OwnerForm>& form) {
        const PopupAnchor anchor = AnchorAt(PopupEdge::Left, posLeft, posTopUp, posTopDown);
        return OpenCalendar(
            *this, {std::move(dateToShow), std::move(defaultDate), bNeedsConversions, anchor},
            form);
    };
    return Entered(*this, OnFault::Beep, kCalendarFault, std::u16string(), open, DateToShow,
                   DefaultDate, FormToRefresh);
}

std::u16string Utils::ShowCalendarAndCalculateCoordinates(
    const std::shared_ptr<PopupTarget>& CmdButtonOrCell, TextIn DateToShow, TextIn DefaultDate,
    const std::shared_ptr<OwnerForm>& FormToRefresh, bool bNeedsConversions) {
    const auto open = [&](const std::shared_ptr<PopupTarget>& target, std::u16string dateToShow,
                          std::u16string defaultDate, const std::shared_ptr<OwnerForm>& form) {
        const PopupAnchor anchor = AnchorOf(*this, PopupEdge::Left, target);
        return OpenCalendar(
            *this, {std::move(dateToShow), std::move(defaultDate), bNeedsConversions, anchor},
            form);
    };
    return Entered(*this, OnFault::Beep, kCalendarFault, std::u16string(), open, CmdButtonOrCell,
                   DateToShow, DefaultDate, FormToRefresh);
}

// Colour palette

namespace {

std::u16string OpenPalette(Utils& utils, const PopupAnchor& anchor,
                           const std::shared_ptr<OwnerForm>& formToRefresh) {
    std::shared_ptr<ColorPalette> palette;
    Guarded(OnFault::Beep, kPaletteFault, utils, [&] {
        palette = std::make_shared<ColorPalette>(
            TheSession().colorArray, OwnedBy(formToRefresh, anchor), Services::Current());
        Platform::Installed().Show(palette);
    });
    Refresh(utils, kPaletteFault, formToRefresh);
    return palette == nullptr ? std::u16string() : palette->Result();
}

}  // namespace

std::u16string Utils::ShowColorAndCalculateCoordinates(
    const std::shared_ptr<PopupTarget>& CmdButtonOrCell,
    const std::shared_ptr<OwnerForm>& FormToRefresh) {
    const auto open = [&](const std::shared_ptr<PopupTarget>& target,
                          const std::shared_ptr<OwnerForm>& form) {
        return OpenPalette(*this, AnchorOf(*this, PopupEdge::Left, target), form);
    };
    return Entered(*this, OnFault::Beep, kPaletteFault, std::u16string(), open, CmdButtonOrCell,
                   FormToRefresh);
}

std::u16string Utils::ShowColor(float posLeft, float posTopUp, float posTopDown,
                                const std::shared_ptr<OwnerForm>& FormToRefresh) {
    const auto open = [&](const std::shared_ptr<OwnerForm>& form) {
        return OpenPalette(*this, AnchorAt(PopupEdge::Left, posLeft, posTopUp, posTopDown), form);
    };
    return Entered(*this, OnFault::Beep, kPaletteFault, std::u16string(), open, FormToRefresh);
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
/// the typed character before anything can open a window, a fault in `place` included.
template <class Place>
std::u16string OpenSelection(Utils& utils, SelectionRequest request, const Place& place,
                             ByRef<std::u16string> typedCharacter,
                             const std::shared_ptr<OwnerForm>& formToRefresh) {
    if (request.allValues.empty()) {
        utils.ShowMsgBox(u"Incomplete data received for Lookup Selection Grid.", mbOkOnly,
                         mbCritical, utils.AppName());
        return request.selectedValues;
    }
    std::shared_ptr<SelectGrid> grid;
    const auto show = [&] {
        Services& session = Services::Current();
        request.typedCharacter = typedCharacter.Get();
        typedCharacter.Set({});
        request.anchor = OwnedBy(formToRefresh, place());
        grid = std::make_shared<SelectGrid>(std::move(request), session, MessagesOf(utils));
        grid->Prepare();
        ShowModal(grid);
    };
    Guarded(OnFault::Quiet, kSelectionFault, utils, show);
    Refresh(utils, kSelectionFault, formToRefresh);
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
    const auto open = [&](std::u16string listName, std::u16string allValues,
                          std::u16string selectedValues, const std::shared_ptr<PopupTarget>& target,
                          const std::shared_ptr<OwnerForm>& form) {
        SelectionRequest request{std::move(listName), std::move(allValues),
                                 std::move(selectedValues)};
        request.doNotIncludeDeleted = DoNotIncludeDeleted;
        const auto place = [&] { return AnchorOf(*this, PopupEdge::Right, target); };
        return OpenSelection(*this, std::move(request), place, TypedCharacter, form);
    };
    return Entered(*this, OnFault::Quiet, kSelectionFault, std::u16string(), open, ListName,
                   AllValues, SelectedValues, CmdButtonOrCell, FormToRefresh);
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
    const auto open = [&](std::u16string listName, std::u16string allValues,
                          std::u16string selectedValues, const std::shared_ptr<OwnerForm>& form) {
        SelectionRequest request{std::move(listName), std::move(allValues),
                                 std::move(selectedValues)};
        request.doNotIncludeDeleted = DoNotIncludeDeleted;
        const auto place = [&] {
            return AnchorAt(PopupEdge::Right, posLeft, posTopUp, posTopDown);
        };
        return OpenSelection(*this, std::move(request), place, TypedCharacter, form);
    };
    return Entered(*this, OnFault::Quiet, kSelectionFault, std::u16string(), open, ListName,
                   AllValues, SelectedValues, FormToRefresh);
}

// Help

namespace {

/// Opens help in the given file, otherwise in the stored one; false, with a message to the user,
/// when there is no such file. A later fault is logged and does not change the result.
template <class Open>
bool OpenHelp(Utils& utils, const char16_t* faultPrefix, const std::u16string& location,
              const Open& open) {
    const std::u16string file = location.empty() ? TheSession().helpFilePath : location;
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

constexpr char16_t kHelpFault[] = u"Error in Utils.ShowHelp ";
constexpr char16_t kTopicFault[] = u"Error in Utils.ShowHelpByTopic ";

}  // namespace

void Utils::InitHelp(TextIn FilePath) {
    TheSession().helpFilePath = FilePath.Str();
}
std::u16string Utils::HelpFilePath() const {
    return TheSession().helpFilePath;
}

bool Utils::ShowHelp(std::int32_t /*hwnd*/, std::int32_t ContextID, TextIn HelpFileLocation) {
    const auto open = [&](const std::u16string& location) {
        return OpenHelp(*this, kHelpFault, location,
                        [&](Platform& platform, const std::filesystem::path& file) {
                            platform.ShowHelpContext(file, ContextID);
                        });
    };
    return Entered(*this, OnFault::Quiet, kHelpFault, false, open, HelpFileLocation);
}

bool Utils::ShowHelpByTopic(std::int32_t /*hwnd*/, TextIn TopicPath, TextIn HelpFileLocation) {
    const auto open = [&](const std::u16string& topic, const std::u16string& location) {
        return OpenHelp(*this, kTopicFault, location,
                        [&](Platform& platform, const std::filesystem::path& file) {
                            platform.ShowHelpTopic(file, topic);
                        });
    };
    return Entered(*this, OnFault::Quiet, kTopicFault, false, open, TopicPath, HelpFileLocation);
}

}  // namespace halvek
