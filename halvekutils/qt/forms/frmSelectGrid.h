// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/qt/forms/DialogForm.h>
#include <halvekutils/selection/SelectGrid.h>

#include <memory>

class QPushButton;

namespace halvek {

class FindBar;
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
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void ApplyLayout(const Desktop& desktop);
    void BuildParts();
    void ConnectParts();
    bool MayLeaveBox();
    void Accept();
    void OpenFind(const QString& word);
    bool PressKey(const QKeyEvent& event);

    SelectGrid& rules_;
    TypedCodesEdit* typedCodes_ = nullptr;
    SelectGridView* grid_ = nullptr;
    FindBar* findBar_ = nullptr;
    QPushButton* okButton_ = nullptr;
    QPushButton* cancelButton_ = nullptr;
};

}  // namespace halvek
