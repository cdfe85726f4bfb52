#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/platform/Geometry.h>

#include <cstdint>
#include <string>

namespace halvek {

/// A window of the host's that a dialog is centred on and that is refreshed when the dialog ends.
///
/// Lengths are twips on the screen, outer size. Passed as a shared pointer, null for none.
class HALVEK_EXPORT OwnerForm {
  public:
    virtual ~OwnerForm();

    virtual std::int32_t Left() const = 0;
    virtual std::int32_t Top() const = 0;
    virtual std::int32_t Width() const = 0;
    virtual std::int32_t Height() const = 0;

    /// False once the window is gone; its other members then throw ObjectNotSet.
    virtual bool Exists() const = 0;

    /// Repaints the window.
    virtual void Refresh() = 0;

  protected:
    OwnerForm() = default;
    OwnerForm(const OwnerForm&) = default;
    OwnerForm& operator=(const OwnerForm&) = default;
};

/// The button or the cell of a grid that a pop-up opens beside.
///
/// Places are twips on the screen. A cell knows its grid, so one argument serves both. Passed as a
/// shared pointer.
class HALVEK_EXPORT PopupTarget {
  public:
    virtual ~PopupTarget();

    /// Where the target is seen.
    virtual Rect Place() const = 0;

    /// The part of the target's screen that windows may use.
    virtual Rect Screen() const = 0;

    /// False once the target is gone; its other members then throw ObjectNotSet.
    virtual bool Exists() const = 0;

  protected:
    PopupTarget() = default;
    PopupTarget(const PopupTarget&) = default;
    PopupTarget& operator=(const PopupTarget&) = default;
};

/// A text box of the host's whose keystrokes and text are looked after by the library.
///
/// Positions and lengths are counted in characters. Passed as a shared pointer; TextField is one
/// without a window. A control that is gone throws ObjectNotSet.
class HALVEK_EXPORT TextControl {
  public:
    virtual ~TextControl();

    /// Setting the text puts the caret in front of it and ends the selection.
    virtual void Text(TextIn value) = 0;
    virtual std::u16string Text() const = 0;

    /// How many characters stand before the caret, or before the selection. Setting it ends the
    /// selection.
    virtual void SelStart(std::int32_t value) = 0;
    virtual std::int32_t SelStart() const = 0;

    /// How many characters are selected from SelStart on.
    virtual void SelLength(std::int32_t value) = 0;
    virtual std::int32_t SelLength() const = 0;

    /// True when the user may not edit the text. A control that cannot be locked leaves this out.
    virtual bool Locked() const;

  protected:
    TextControl() = default;
    TextControl(const TextControl&) = default;
    TextControl& operator=(const TextControl&) = default;
};

}  // namespace halvek
