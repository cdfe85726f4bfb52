// SPDX-License-Identifier: MIT
#include "fuzz/SelectGridModel.h"
#include "tests/FakeServices.h"

#include <halvekutils/base/Characters.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/selection/SelectGrid.h>

using namespace halvek;

namespace {

/// A dialog and its model, to which the user does the same things.
class Play {
  public:
    explicit Play(FuzzedDataProvider& input) : input_(input) {
        Services::Install(&session_);
        // In the box, a code with a comma in it would look like two.
        const SelectionRequest request{u"L", Narrowed(FuzzText(input, 150), u"::::\t\tABc d'1"),
                                       Narrowed(FuzzText(input, 20), u"ABc,,1 'x"),
                                       Narrowed(FuzzText(input, 2), u"ABc,")};
        const SelectionList list(request.allValues, false);
        for (std::int32_t i = 1; i <= list.LastShown(); ++i) {
            model_.codes.push_back(Trimmed(std::u16string(list.Code(i))));
        }
        model_.ticks.resize(model_.codes.size());
        selected_ = request.selectedValues;
        typing_ = !request.typedCharacter.empty();
        const auto tell = [this](const SelectionMessage&) {
            ++told_;
            Require(grid_->ValidateBox(), "a check within a check is passed");
        };
        grid_ = std::make_unique<SelectGrid>(request, session_, tell);
        grid_->Changed = [this] { Mirror(); };
        model_.Prepare(request.selectedValues, request.typedCharacter);
        grid_->Prepare();
        Mirror();
        Compare();
    }

    void Run() {
        while (grid_->IsOpen() && input_.remaining_bytes() > 0) {
            Do();
            Compare();
        }
        if (!grid_->IsOpen()) return;
        const bool cancels = input_.ConsumeBool();
        cancels ? grid_->Close() : grid_->ClickHeader();
        Require(!grid_->IsOpen(), "it ends");
        const std::u16string result = model_.changed ? model_.choice : u"CANCEL";
        Require(grid_->Result() == (cancels ? selected_ : result), "the result of an end");
    }

  private:
    void Mirror() {
        if (version_ != grid_->BoxVersion()) shown_ = grid_->Box().text;
        version_ = grid_->BoxVersion();
    }

    void Do() {
        switch (input_.ConsumeIntegralInRange(0, 9)) {
            case 0:
            case 1:
                return ClickEntry();
            case 2:
                return Edit(shown_ + RandomCode() + u',');
            case 3:
                return Edit(shown_ + FuzzText(input_, 3));
            case 4:
                return Edit(shown_.substr(0, shown_.size() / 2));
            case 5:
                return Require(grid_->ValidateBox() == model_.Check(), "the box is judged");
            case 6: {
                const bool entered = input_.ConsumeBool();
                grid_->FocusBox(entered ? SelectGrid::BoxFocus::Entered
                                        : SelectGrid::BoxFocus::Restored);
                if (!std::exchange(typing_, false) && entered) model_.Check();
                return;
            }
            case 7:
                model_.enabled = input_.ConsumeBool();
                return grid_->EnableBox(model_.enabled);
            case 8:
                return Search();
            default:
                return PressKey();
        }
    }

    void ClickEntry() {
        if (model_.codes.empty()) return;
        const std::size_t index = input_.ConsumeIntegralInRange<std::size_t>(0, 40);
        if (index >= model_.codes.size()) return;
        const auto row = static_cast<std::int32_t>(index / 10 * 3 + 1);
        grid_->ClickCell(row + input_.ConsumeIntegralInRange(0, 2),
                         static_cast<std::int32_t>(index % 10 + 1));
        if (index == 0 || !model_.codes[index].empty()) model_.Toggle(index);
    }

    std::u16string RandomCode() {
        const auto index = input_.ConsumeIntegralInRange<std::size_t>(0, 40);
        return index < model_.codes.size() ? model_.codes[index] : u"";
    }

    void Edit(const std::u16string& text) {
        shown_ = text;
        grid_->EditBox(text, input_.ConsumeIntegralInRange(-1, 50));
        model_.Edit(text);
    }

    void Search() {
        const std::int32_t before = grid_->CurrentEntry();
        grid_->Find(FuzzText(input_, 3));
        const std::int32_t found = grid_->CurrentEntry();
        const bool isFound = grid_->FoundCount() > 0;
        Require(isFound || found == before, "a miss moves nowhere");
        Require(isFound == (grid_->FoundPlace() > 0), "what is found is current");
        Require(grid_->ToggleFound() == isFound, "only what is found is ticked");
        if (isFound) model_.Toggle(static_cast<std::size_t>(found) - 1);
        grid_->FindNext(input_.ConsumeBool());
    }

    void PressKey() {
        const auto key = static_cast<SelectGrid::Key>(input_.ConsumeIntegralInRange(0, 9));
        const std::int32_t current = grid_->CurrentEntry();
        grid_->KeyDown(key, input_.ConsumeIntegralInRange(0, 3));
        if (key == SelectGrid::Key::Space && current > 0) {
            model_.Toggle(static_cast<std::size_t>(current) - 1);
        }
        if (key != SelectGrid::Key::Enter) return;
        Require(grid_->IsOpen() != model_.Check(), "OK ends what passes the check, and no other");
        if (grid_->IsOpen()) return;
        const std::u16string result = model_.changed ? model_.choice : u"CANCEL";
        Require(grid_->Result() == result, "only codes of the list come back");
    }

    void Compare() {
        Require(grid_->Box().text == model_.box, "the box holds what the rules say");
        Require(shown_ == model_.box, "the window learns of every change of the box");
        Require(told_ == model_.told, "as many messages as faults");
        const std::u16string choice = model_.choice.empty() ? u"" : u"  (" + model_.choice + u")";
        Require(grid_->HeaderText() == u"L" + choice, "the header shows the choice");
        const TypedCodesBox& box = grid_->Box();
        const auto length = static_cast<std::int32_t>(box.text.size());
        Require(box.caret >= 0 && box.selected >= 0 && box.caret + box.selected <= length,
                "the selection lies in the box");
        for (std::size_t i = 0; i < model_.codes.size(); ++i) {
            const CellPlace place = CheckCellOf(static_cast<std::int32_t>(i) + 1);
            Require(grid_->Cell(place.row, place.column).checked == model_.IsShownTicked(i),
                    "the ticks are those of the rules");
        }
        const auto current = static_cast<std::size_t>(grid_->CurrentEntry());
        Require(current <= model_.codes.size() && (current == 0) == model_.codes.empty() &&
                    (current < 2 || !model_.codes[current - 1].empty()),
                "the current cell has a code");
    }

    FuzzedDataProvider& input_;
    FakeServices session_;
    SelectGridModel model_;
    std::unique_ptr<SelectGrid> grid_;
    std::u16string selected_;
    std::u16string shown_;
    std::uint32_t version_ = 0;
    int told_ = 0;
    bool typing_ = false;
};

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    Play(input).Run();
}
