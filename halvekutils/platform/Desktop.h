// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/platform/Geometry.h>
#include <halvekutils/platform/TextMeter.h>

#include <cstdint>
#include <filesystem>
#include <memory>

namespace halvek {

class PrinterSource;

/// The icon of a stock message.
enum class StockIcon {
    None,      ///< no icon
    Critical,  ///< the desktop's icon of an error
};

/// Which of the modifier keys are down.
struct HeldKeys {
    bool shift = false;  ///< Shift
    bool alt = false;    ///< Alt
    bool ctrl = false;   ///< Ctrl
};

/// What the library asks of the desktop besides its own dialogs.
class HALVEK_EXPORT Desktop : public TextMeter {
  public:
    /// The installed desktop, or null.
    static Desktop* Installed() noexcept;

    /// Makes this the installed desktop; null for none. Returns the one that was installed before.
    static Desktop* Install(Desktop* desktop) noexcept;

    /// Whether windows that are not modal may be shown, which the debug console is; true unless
    /// overridden.
    virtual bool AllowsModelessWindows() const;

    /// Sounds the system beep.
    virtual void Beep() = 0;

    /// Shows a message of the library's own with an OK button; returns when it is closed.
    virtual void ShowStockMessage(TextIn text, StockIcon icon, TextIn title) = 0;

    /// Opens the help viewer on a compiled help file, at the topic of a context number, and returns
    /// at once. A viewer that is open already is used again. What cannot be shown, a file that
    /// cannot be read or a topic that is missing, the viewer tells the user; then it is thrown.
    virtual void ShowHelpContext(const std::filesystem::path& file, std::int32_t contextId) = 0;

    /// The same at a topic as hosts write it, see ParseHelpTopic; empty for the file's first page.
    virtual void ShowHelpTopic(const std::filesystem::path& file, TextIn topic) = 0;

    /// The size of the screen that a new dialog opens on.
    virtual Size ScreenSize() const = 0;

    /// The part of that screen that windows may use; unless overridden as large as ScreenSize() and
    /// at the origin.
    virtual Rect ScreenRect() const;

    /// The same of the screen that holds a point; of the one that a new dialog opens on when no
    /// screen does.
    virtual Rect ScreenRectAt(Point point) const;

    /// What the window frame of a dialog adds to its inner size.
    virtual Size FrameSize() const = 0;

    /// The modifier keys that are down at this moment; none unless overridden.
    virtual HeldKeys KeysHeld() const;

    /// Takes the close button off a window, which refuses the user's close requests from then on.
    /// Nothing for a number that no window of this process has.
    /// @param window  the window's 32-bit id
    virtual void RemoveCloseButton(std::int32_t window);

    /// A source for one build of the printers collection; null where the desktop knows no printers.
    virtual std::unique_ptr<PrinterSource> Printers();
};

}  // namespace halvek
