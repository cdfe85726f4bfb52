// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/qt/forms/DialogForm.h>
#include <halvekutils/selection/SelectGrid.h>

#include <memory>

class QPushButton;

namespace halvek {

class SelectGridView;
class TypedCodesEdit;

/// The window of a selection list.
class frmSelectGrid : public DialogForm {
    Q_OBJECT

  public:
    /// `desktop` measures texts and knows the screens.
    frmSelectGrid(const std::shared_ptr<SelectGrid>& rules, const Desktop& desktop);

  protected:
    void Refresh() override;
    bool focusNextPrevChild(bool next) override;
    void showEvent(QShowEvent* event) override;

  private:
    void ApplyLayout(const Desktop& desktop);
    bool MayLeaveBox();

    SelectGrid& rules_;
    TypedCodesEdit* typedCodes_;
    SelectGridView* grid_;
    QPushButton* okButton_;
    QPushButton* cancelButton_;
};

}  // namespace halvek
