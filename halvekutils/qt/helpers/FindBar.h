// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/qt/helpers/FindTarget.h>

#include <QWidget>

#include <memory>

class QLineEdit;

namespace halvek {

class StatusLabel;

/// A line that finds words in a text or entries in a list as they are typed; hidden until Open.
class FindBar : public QWidget {
    Q_OBJECT

  public:
    /// @param target  what is searched
    /// @param prompt  names the box where the word is typed
    FindBar(std::unique_ptr<FindTarget> target, const QString& prompt, QWidget* parent = nullptr);
    ~FindBar() override;

    /// Shows the bar and takes the keyboard; the next letter replaces the word.
    void Open();
    /// The same with this word, to which the next letter is added.
    void Open(const QString& word);
    /// Hides the bar and gives the keyboard, if the bar has it, to what was searched.
    void Close();
    /// Whether a part of the bar has the keyboard.
    bool HasKeyboard() const;

    /// Goes to the next place, or the one before, and on at the other end; opens the bar when there
    /// is nothing to find yet.
    void FindNext(bool backwards);

    /// Says how the search stands; call it when what was found has changed.
    void Refresh();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool PressKey(const QKeyEvent& event);
    void FindTyped();
    void Take();
    FindTarget::Outcome Now() const;
    void Say(const FindTarget::Outcome& outcome);

    std::unique_ptr<FindTarget> target_;
    QLineEdit* txtFind_;
    StatusLabel* lblFind_;
};

}  // namespace halvek
