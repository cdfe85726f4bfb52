// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>

#include <functional>
#include <string>

namespace halvek {

/// The life cycle of a dialog's rules: open from the start, ended once, with a result.
///
/// The user ends it by making a choice or by Close; when its window goes away first, Abandon ends
/// it.
class HALVEK_EXPORT Dialog {
  public:
    virtual ~Dialog();
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    /// False once the dialog has ended.
    bool IsOpen() const { return open_; }

    /// Called after every change that the window shows, before the rules raise a message, and once
    /// when the dialog ends.
    std::function<void()> Changed;

    /// The user closes the dialog without a choice, by the close box, Escape or a button that does
    /// the same. A dialog without a close box stays open; a dialog that has ended stays as it is.
    void Close();

    /// The window goes away while the dialog is still open: the application quits or the owner is
    /// destroyed.
    void Abandon();

    /// The dialog's result, as its class defines it; empty while it is open.
    const std::u16string& Result() const { return result_; }

  protected:
    Dialog();

    /// Ends the dialog and notifies the window.
    void End(std::u16string result);
    /// Notifies the window of a change.
    void NotifyChanged() const;
    /// Returns the result and leaves it empty.
    std::u16string TakeResult();

  private:
    /// What Close does while the dialog is open: ends it without a result.
    virtual void OnClose();
    /// What Abandon does while the dialog is open: the same as Close.
    virtual void OnAbandon();

    std::u16string result_;
    bool open_ = true;
};

}  // namespace halvek
