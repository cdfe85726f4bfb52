// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/base/XlibOff.h>
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

    /// Makes this the installed desktop, of the thread that calls; null for none. Returns the
    /// previous one.
    static Desktop* Install(Desktop* desktop) noexcept;

    /// Whether this is the user-interface thread, the one that installed the desktop. True without
    /// a desktop.
    static bool IsOnItsThread() noexcept;

    /// Throws InvalidArgument on any other thread.
    static void RequireItsThread();

    /// Whether modeless windows, such as the debug console, may be shown; true unless overridden.
    virtual bool AllowsModelessWindows() const;

    /// Sounds the system beep.
    virtual void Beep() = 0;

    /// Shows a message of the library's own with an OK button; returns when it is closed.
    virtual void ShowStockMessage(TextIn text, StockIcon icon, TextIn title) = 0;

    /// Opens the help viewer on a compiled help file, at the topic of a context number, and returns
    /// at once. A viewer that is already open is used again. When a file cannot be read or a topic
    /// is missing, the viewer says so to the user and the fault is thrown.
    virtual void ShowHelpContext(const std::filesystem::path& file, std::int32_t contextId) = 0;

    /// The same for a topic as hosts write it, see ParseHelpTopic; empty for the file's first page.
    virtual void ShowHelpTopic(const std::filesystem::path& file, TextIn topic) = 0;

    /// The size of the screen on which a new dialog opens.
    virtual Size ScreenSize() const = 0;

    /// The part of that screen that windows may use; unless overridden, of ScreenSize() at the
    /// origin.
    virtual Rect ScreenRect() const;

    /// The same for the screen that holds a point or, when none does, for the screen on which a new
    /// dialog opens.
    virtual Rect ScreenRectAt(Point point) const;

    /// What the window frame of a dialog adds to its inner size.
    virtual Size FrameSize() const = 0;

    /// The modifier keys that are down at this moment; none unless overridden.
    virtual HeldKeys KeysHeld() const;

    /// Removes the close button of a window, which then refuses the user's close requests. Does
    /// nothing when no window of this process has the number.
    /// @param window  the window's 32-bit id
    virtual void RemoveCloseButton(std::int32_t window);

    /// A source for one build of the printers collection; null when the desktop has no printers.
    virtual std::unique_ptr<PrinterSource> Printers();
};

}  // namespace halvek

#include <halvekutils/base/XlibOn.h>
