// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/platform/Geometry.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace halvek {

/// One of the host's windows, on which a dialog is centred and which is refreshed when the dialog
/// ends.
///
/// Positions and sizes are twips on the screen, with the frame. Passed as a shared pointer, null
/// for none.
class HALVEK_EXPORT OwnerForm {
  public:
    virtual ~OwnerForm();

    /// The left edge.
    virtual std::int32_t Left() const = 0;
    /// The top edge.
    virtual std::int32_t Top() const = 0;
    /// The width.
    virtual std::int32_t Width() const = 0;
    /// The height.
    virtual std::int32_t Height() const = 0;

    /// False once the window is destroyed; the other members then throw ObjectNotSet.
    virtual bool Exists() const = 0;

    /// Repaints the window.
    virtual void Refresh() = 0;

    /// The window's id, to which a dialog belongs; 0 unless overridden.
    virtual std::uint32_t Window() const;

  protected:
    OwnerForm() = default;
    OwnerForm(const OwnerForm&) = default;
    OwnerForm& operator=(const OwnerForm&) = default;
};

/// The button or grid cell beside which a pop-up opens.
///
/// Places are twips on the screen. A cell knows its grid, so one argument serves both. Passed as a
/// shared pointer.
class HALVEK_EXPORT PopupTarget {
  public:
    virtual ~PopupTarget();

    /// Where the target is on the screen.
    virtual Rect Place() const = 0;

    /// The part of the target's screen that windows may use.
    virtual Rect Screen() const = 0;

    /// False once the target is destroyed; the other members then throw ObjectNotSet.
    virtual bool Exists() const = 0;

    /// True where people read from right to left: pop-ups then lie on the target's right edge.
    /// False unless overridden.
    virtual bool IsRightToLeft() const;

    /// The id of the target's window, to which a pop-up belongs; 0 unless overridden.
    virtual std::uint32_t Window() const;

  protected:
    PopupTarget() = default;
    PopupTarget(const PopupTarget&) = default;
    PopupTarget& operator=(const PopupTarget&) = default;
};

/// What a heading is: highlighting knows these three kinds of control.
enum class HeadingKind {
    Other,         ///< left as it is
    Label,         ///< a label, which may get a border
    OptionButton,  ///< a radio button
    CheckBox,      ///< a check box
};

/// How a heading is drawn.
struct HeadingLook {
    std::optional<Color> back;  ///< nothing: the container's background shows through
    Color fore = kBlack;        ///< of the text
    bool border = false;        ///< a thin line around a label; other kinds have none of their own

    friend bool operator==(const HeadingLook&, const HeadingLook&) = default;
};

/// The caption of a field, a label, option button or check box, that can be highlighted.
///
/// Passed as a shared pointer. The members throw ObjectNotSet once the control is destroyed.
class HALVEK_EXPORT HeadingControl {
  public:
    virtual ~HeadingControl();

    /// Which kind of control it is.
    virtual HeadingKind Kind() const = 0;
    /// Draws the control in a look, until the next one.
    virtual void Show(const HeadingLook& look) = 0;

  protected:
    HeadingControl() = default;
    HeadingControl(const HeadingControl&) = default;
    HeadingControl& operator=(const HeadingControl&) = default;
};

/// The font of a control. Passed as a shared pointer. The members throw ObjectNotSet once the
/// control is destroyed.
class HALVEK_EXPORT ControlFont {
  public:
    virtual ~ControlFont();

    /// Sets the face.
    virtual void Name(TextIn face) = 0;

    /// The size in points. The setter asks for a size; the getter returns the font's real one,
    /// which may differ.
    virtual void Size(float points) = 0;
    virtual float Size() const = 0;

  protected:
    ControlFont() = default;
    ControlFont(const ControlFont&) = default;
    ControlFont& operator=(const ControlFont&) = default;
};

/// The font of a grid. Passed as a shared pointer. The members throw ObjectNotSet once the grid is
/// destroyed.
class HALVEK_EXPORT GridFont {
  public:
    virtual ~GridFont();

    /// Sets the size in points.
    virtual void SetSize(std::int16_t points) = 0;
    /// Makes the font bold or not.
    virtual void SetBold(bool bold) = 0;
    /// Makes the font italic or not.
    virtual void SetItalic(bool italic) = 0;

  protected:
    GridFont() = default;
    GridFont(const GridFont&) = default;
    GridFont& operator=(const GridFont&) = default;
};

/// A combo box. Positions count from 0. Passed as a shared pointer. The members throw ObjectNotSet
/// once the box is destroyed.
class HALVEK_EXPORT ComboBox {
  public:
    virtual ~ComboBox();

    /// How many entries there are.
    virtual std::int32_t ListCount() const = 0;
    /// The text of an entry, 0 to ListCount() - 1.
    virtual std::u16string List(std::int32_t index) const = 0;

    /// Chooses an entry.
    virtual void ListIndex(std::int32_t index) = 0;

    /// Replaces all entries; none is chosen. The views are valid for the call only.
    virtual void SetItems(const std::vector<TextIn>& items) = 0;

    /// Makes the box and its drop-down wide enough for the longest entry, as far as the screen has
    /// room, and never narrower than they are.
    virtual void WidenToItems() = 0;

  protected:
    ComboBox() = default;
    ComboBox(const ComboBox&) = default;
    ComboBox& operator=(const ComboBox&) = default;
};

/// One of the host's text boxes, whose keystrokes and text the library looks after.
///
/// Positions and lengths count characters. Passed as a shared pointer; TextField is one without a
/// window. The members throw ObjectNotSet once the control is destroyed.
class HALVEK_EXPORT TextControl {
  public:
    virtual ~TextControl();

    /// The whole text. Setting it puts the caret in front of it and ends the selection.
    virtual void Text(TextIn value) = 0;
    virtual std::u16string Text() const = 0;

    /// How many characters are before the caret, or before the selection. Setting it ends the
    /// selection.
    virtual void SelStart(std::int32_t value) = 0;
    virtual std::int32_t SelStart() const = 0;

    /// How many characters are selected from SelStart on.
    virtual void SelLength(std::int32_t value) = 0;
    virtual std::int32_t SelLength() const = 0;

    /// True when the user may not edit the text. A control that cannot be locked need not override
    /// this.
    virtual bool Locked() const;

  protected:
    TextControl() = default;
    TextControl(const TextControl&) = default;
    TextControl& operator=(const TextControl&) = default;
};

}  // namespace halvek
