// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/dialogs/Calculator.h>
#include <halvekutils/dialogs/Calendar.h>
#include <halvekutils/dialogs/ColorPalette.h>
#include <halvekutils/dialogs/MessageBox.h>
#include <halvekutils/selection/SelectGrid.h>

#include <memory>

namespace halvek {

class DebugConsole;

/// How a message box is shown.
enum class Modality {
    Modal,     ///< the call waits for the answer
    Modeless,  ///< the call returns at once
};

/// Shows the windows of dialogs, with one call for each dialog, which is given its rules.
///
/// A modal show returns once the rules have ended; if the modal loop ends first, the rules count as
/// closed by the close box. A modeless show returns at once and keeps the rules until they end. A
/// modal show of rules that are already on the screen continues them modally.
class HALVEK_EXPORT Forms {
  public:
    virtual ~Forms();

    /// Shows a message box.
    virtual void Show(const std::shared_ptr<MessageBox>& box, Modality modality) = 0;
    /// Shows a calculator, modally.
    virtual void Show(const std::shared_ptr<Calculator>& calculator) = 0;
    /// Shows a calendar, modally.
    virtual void Show(const std::shared_ptr<Calendar>& calendar) = 0;
    /// Shows a colour palette, modally.
    virtual void Show(const std::shared_ptr<ColorPalette>& palette) = 0;
    /// Shows the debug console, modelessly and without taking the focus. Called for every line;
    /// does nothing while the console is shown.
    virtual void Show(const std::shared_ptr<DebugConsole>& console) = 0;
    /// Shows a selection dialog, modally.
    virtual void Show(const std::shared_ptr<SelectGrid>& grid) = 0;

  protected:
    Forms() = default;
    Forms(const Forms&) = default;
    Forms& operator=(const Forms&) = default;
};

}  // namespace halvek
