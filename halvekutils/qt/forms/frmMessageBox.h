// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/dialogs/MessageBox.h>
#include <halvekutils/qt/forms/DialogForm.h>

#include <QTimer>

#include <array>
#include <memory>

class QFrame;
class QPushButton;
class QToolButton;

namespace halvek {

class CountdownLine;
class MessageText;
class SpokenNotice;

/// The window of a message box.
class frmMessageBox : public DialogForm {
    Q_OBJECT

  public:
    explicit frmMessageBox(std::shared_ptr<MessageBox> box);

    const std::shared_ptr<MessageBox>& Box() const { return box_; }

  protected:
    void Refresh() override;
    QPoint PlaceOf(const QWidget* owner) const override;
    QWidget* OwnerAsked() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void BuildText();
    void BuildButtons(const QPalette& colors);
    void BuildScrollButtons(const QPalette& colors);
    void BuildIcon();
    void Describe();
    void CountdownStarts(bool starts);
    bool AtLastLine() const;
    int ScrolledPixels() const;
    void TextScrolled(int pixels);
    bool ButtonKey(int index, const QKeyEvent& event);
    bool ScrollKey(int key);
    std::int32_t LineHeight() const;

    std::shared_ptr<MessageBox> box_;
    QFrame* textFrame_;
    QFrame* buttonFrame_;
    SpokenNotice* notice_;
    MessageText* text_ = nullptr;
    std::array<QPushButton*, 3> buttons_{};
    std::array<QToolButton*, 2> scrollButtons_{};  ///< null in a box whose text is in view
    CountdownLine* countdownLine_ = nullptr;       ///< null without a countdown
    QTimer countdown_{this};
};

}  // namespace halvek
