#pragma once

#include <QFrame>

class QLabel;
class QLineEdit;
class QTextEdit;

namespace halvek {

/// A line below a text that finds words in it; hidden until it is asked for.
class HelpFindBar : public QFrame {
    Q_OBJECT

  public:
    explicit HelpFindBar(QTextEdit& text, QWidget* parent = nullptr);
    ~HelpFindBar() override;

    /// Shows the bar and takes the keyboard.
    void Open();
    /// Hides the bar and gives the keyboard to the text.
    void Close();

    /// Goes to the next place, or the one before, and on at the other end of the text; opens the
    /// bar when there is nothing to find yet.
    void Find(bool backwards);

  private:
    void FindTyped();
    void ShowOutcome(bool found);

    QTextEdit& text_;
    QLineEdit* txtFind_;
    QLabel* lblOutcome_;
};

}  // namespace halvek
