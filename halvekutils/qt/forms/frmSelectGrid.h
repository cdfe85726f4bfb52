// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/platform/Desktop.h>
#include <halvekutils/qt/forms/DialogShow.h>
#include <halvekutils/selection/SelectGrid.h>

#include <QDialog>

#include <memory>

class QPushButton;

namespace halvek {

class SelectGridView;
class TypedCodesEdit;

/// The window of a selection list: draws its rules and forwards its events.
class frmSelectGrid : public QDialog {
    Q_OBJECT

  public:
    /// `desktop` measures texts and knows the screens.
    frmSelectGrid(std::shared_ptr<SelectGrid> rules, const Desktop& desktop);
    ~frmSelectGrid() override;

    /// Shows the dialog until it has ended.
    void ShowModal();

  public slots:
    void reject() override;

  protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void ApplyLayout(const Desktop& desktop);
    bool MayLeaveBox();
    void CloseByUser();
    void Sync();

    std::shared_ptr<SelectGrid> rules_;
    TypedCodesEdit* txtSelect_;
    SelectGridView* grdSelection_;
    QPushButton* cmdOK_;
    QPushButton* cmdExit_;
    Point place_;
    DialogShow show_;
};

}  // namespace halvek
