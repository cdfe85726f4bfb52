// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/selection/SelectGrid.h>

#include <QLineEdit>

#include <cstdint>

namespace halvek {

/// txtSelect: mirrors the rules' box of typed codes and reports the user's edits to them.
class TypedCodesEdit : public QLineEdit {
    Q_OBJECT

  public:
    TypedCodesEdit(SelectGrid& rules, QWidget* parent);

    /// Shows what the rules, not the user, have changed in the box.
    void Refresh();

    /// Checks the text before the box is left; false when it is refused.
    bool MayBeLeft();
    /// Takes the keyboard after a refusal, with the wrong code selected.
    void Return();

  signals:
    /// Enter: OK.
    void Accepted();
    /// Down: on to the grid.
    void WentDown();

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

  private:
    void TextEdited();
    void RefuseInserted();
    void TidyInserted(const QString& before);
    void SelectAsRulesDo();
    void EnterBox(SelectGrid::BoxFocus how);
    bool EndComma();
    static QString Hint();

    SelectGrid& rules_;
    std::uint32_t shownVersion_ = 0;
    bool mirroring_ = false;
    bool enteredByClick_ = false;
    bool wasFocused_ = false;
    bool commaIsDown_ = false;
    bool commaEnded_ = false;  ///< before it was released
};

}  // namespace halvek
