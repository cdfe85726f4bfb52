// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/Calculator.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/qt/forms/DialogShow.h>

#include <QClipboard>
#include <QDialog>

#include <array>
#include <memory>

class QGridLayout;
class QLabel;
class QLineEdit;

namespace halvek {

class FlashButton;

/// The window of the calculator: draws its rules and forwards its events.
class frmCalculator : public QDialog {
    Q_OBJECT

  public:
    /// `desktop` knows the frames of windows.
    frmCalculator(std::shared_ptr<Calculator> rules, const Desktop& desktop);
    ~frmCalculator() override;

    /// Shows the calculator until it has ended.
    void ShowModal();

    /// Takes a key from the host's keyboard hook, by its virtual key code. A host calls it by name:
    ///
    ///     QMetaObject::invokeMethod(QApplication::activeModalWidget(), "HookedKeyDown",
    ///                               Q_ARG(int, keyCode));
    Q_INVOKABLE void HookedKeyDown(int KeyCode);

  public slots:
    void reject() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void BuildBox();
    QGridLayout* BuildStatus();
    QGridLayout* BuildButtons();
    FlashButton* MakeButton(int index);
    QLabel* AddStatus(QGridLayout& grid, const char* name, const QString& caption, int row,
                      int column, int columns = 1);
    QWidget* ControlOf(int index) const;
    void Sync();
    void Announce();
    bool TakeKey(const QKeyEvent& key);
    bool TypeKey(const QKeyEvent& key);
    bool BoxIsFull() const;
    void Copy() const;
    void Paste(QClipboard::Mode mode);
    void CloseByUser();

    std::shared_ptr<Calculator> rules_;
    const Desktop& desktop_;
    QLineEdit* txtOutput_;
    QLabel* lblMEM_ = nullptr;
    QLabel* lblOp_ = nullptr;
    QLabel* lblNumDone_ = nullptr;
    std::array<FlashButton*, Calculator::kButtonCount> arrCmd_{};
    DialogShow show_{*this, [this] { CloseByUser(); }};
};

}  // namespace halvek
