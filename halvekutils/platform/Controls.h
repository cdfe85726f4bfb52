#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/platform/Geometry.h>

#include <cstdint>

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

}  // namespace halvek
