// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/base/XlibOff.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/platform/Dialog.h>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace halvek {

class Services;

/// The rules of the calculator, without a window: what its buttons and keys do, what it shows and
/// how it ends. A window draws it, moves the focus as asked and forwards its events.
///
/// It works from left to right: each operator completes the one before. The display shows a result
/// with two decimals, the accumulator keeps it unrounded. An empty display, and any other that
/// shows no number, counts as 0 in an operation. A division by zero gives "ERROR", and so does a
/// result beyond the range of numbers. RET ends it; the result is the number shown.
class HALVEK_EXPORT Calculator : public Dialog {
  public:
    /// The buttons after the digits, which are buttons 0 to 9.
    enum Button : int {
        kChangeSign = 10,  ///< "+ -"
        kPoint,            ///< "."
        kDivide,           ///< "/"
        kMultiply,         ///< "*"
        kMinus,            ///< "-"
        kPlus,             ///< "+"
        kEquals,           ///< "="
        kClear,            ///< "CLR"
        kReturn            ///< "RET"
    };
    /// How many buttons there are.
    static constexpr int kButtonCount = 19;
    /// The number of the display's box, where a button's number says what has the focus.
    static constexpr int kBox = -1;
    /// How many characters can be typed. A result is shown whole, however long it is.
    static constexpr std::size_t kMaxLength = 15;

    /// Starts with the value of a numeric text, rounded to two decimals, or else empty.
    Calculator(TextIn InitValue, Services& session, Desktop& desktop);
    ~Calculator() override;

    // What the window shows

    /// The text in the box.
    const std::u16string& Display() const { return display_; }
    /// The left operand as text.
    const std::u16string& Accumulator() const { return accumulator_; }
    /// "+", "-", "*" or "/"; empty for none.
    std::u16string LastOperator() const;
    /// True when the next digit starts a new number.
    bool NumberDone() const { return numberDone_; }
    /// The button that has the focus, or kBox; the button RET at first.
    int Focus() const { return focus_; }
    /// The caption of button 0 to 18.
    static TextIn Caption(int index);

    /// Called when a button is pressed in any way: it flashes.
    std::function<void(int index)> Flashed;

    // What the user does

    /// Presses button 0 to 18; any other number is only logged. An operator gives the focus to "=",
    /// which gives it to RET, as they do when typed.
    void Press(int index);

    /// The user has moved the focus to a button or to kBox.
    void FocusOn(int control) { focus_ = control; }

    /// A character is typed where the focus is. True when the box must insert it; false when the
    /// calculator has dealt with it.
    bool KeyPress(char16_t character);

    /// Escape (27) ends the calculator without a result, F9 (120) changes the sign. Unless the box
    /// has the focus, Delete (46) clears, and Backspace (8) takes back the last character of a
    /// number that is being entered. False for any other key, and for those two in the box.
    bool KeyDown(int keyCode);

    /// A key that the host's keyboard hook caught, by its virtual key code: the keypad (96 to 111),
    /// Enter (13), which is "=" at first and RET when pressed again, Escape (27) and Delete (46),
    /// which clear. The digits of the main block (48 to 57) are ignored, Backspace (8) is only
    /// logged. Any key but a digit between two Enters makes the second one "=" again.
    void HookedKeyDown(int KeyCode);

    /// The user has edited the text in the box; the next digit goes on with it.
    void EditDisplay(TextIn text);

    /// Enters a number or an amount from the clipboard as if its digits were pressed, or replaces
    /// the selection in the box. Beeps when the text is not a number or does not fit.
    /// @param text  what the clipboard holds
    /// @param start,selected  the selected characters, counted from 0
    void Paste(TextIn text, std::size_t start = 0, std::size_t selected = 0);
    /// The number shown, for the clipboard; empty with a beep when none is shown.
    std::u16string Copy();

    /// Completes the pending operation and starts another: "+", "-", "*", "/", or "=" for none.
    void Operate(char16_t op);
    /// The result of one operation on the values of two texts.
    std::u16string Compute(TextIn a, char16_t op, TextIn b);

  private:
    void AddDigit(char16_t digit);
    void AddPoint();
    void StartNumber();
    void ChangeSign();
    void TakeBack();
    void Clear();
    std::u16string PendingResult();
    void Flash(int index) const;
    void Tell(TextIn message);

    Services& session_;
    Desktop& desktop_;
    std::u16string display_;
    std::u16string accumulator_ = u"0";
    char16_t lastOperator_ = 0;
    int focus_ = kReturn;
    bool numberDone_ = true;
    bool enterArmed_ = false;
};

}  // namespace halvek

#include <halvekutils/base/XlibOn.h>
