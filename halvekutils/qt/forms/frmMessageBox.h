// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/MessageBox.h>
#include <halvekutils/qt/forms/DialogShow.h>

#include <QDialog>
#include <QTimer>

#include <array>
#include <memory>

class QFrame;
class QPushButton;
class QTextEdit;
class QToolButton;

namespace halvek {

/// The window of a message box: draws its rules and forwards its events.
class frmMessageBox : public QDialog {
    Q_OBJECT

  public:
    explicit frmMessageBox(std::shared_ptr<MessageBox> box);
    ~frmMessageBox() override;

    const std::shared_ptr<MessageBox>& Box() const { return box_; }

    /// Shows the box until it has ended; one that stands on the screen modelessly goes on modally.
    void ShowModal();
    void ShowModeless();

  signals:
    /// The box has ended and is hidden.
    void Ended();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

  public slots:
    void reject() override;

  private:
    void BuildText();
    void BuildButtons(const QPalette& colors);
    void BuildScrollButtons(const QPalette& colors);
    void ApplyColors(const QPalette& desktop);
    QPalette ButtonPalette(const QPalette& desktop) const;
    void SetCloseBox();
    void StartCountdown();
    QPoint PlaceOf(const QWidget* owner) const;
    void Abandon();
    void Sync();
    bool AtLastLine() const;
    int ScrolledPixels() const;
    void TextScrolled(int pixels);
    bool ButtonKey(int index, const QKeyEvent& event);
    bool ScrollKey(int key);
    std::int32_t LineHeight() const;
    void Copy() const;

    std::shared_ptr<MessageBox> box_;
    QFrame* frMSG_;
    QFrame* frButtons_;
    QTextEdit* lblText_ = nullptr;
    std::array<QPushButton*, 3> arrCmd_{};
    std::array<QToolButton*, 2> cmdUpDn_{};
    QTimer tmrUnload_{this};
    DialogShow show_{*this, [this] { Abandon(); }};
};

}  // namespace halvek
