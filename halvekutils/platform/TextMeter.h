// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <string>

namespace halvek {

/// A font as the dialogs' rules choose it.
struct FontSpec {
    std::u16string face;      ///< empty for the desktop's own interface face
    std::int32_t points = 9;  ///< the size; 0 for the desktop's own
    bool bold = false;        ///< a bold font

    friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

/// The font of the desktop's own buttons.
inline FontSpec DesktopFont() {
    return {u"", 0};
}

/// Measures text in a font. Lines end at CR LF, LF or CR; all lengths are twips.
class HALVEK_EXPORT TextMeter {
  public:
    virtual ~TextMeter();

    /// The width of the widest line.
    virtual std::int32_t TextWidth(TextIn text, const FontSpec& font) const = 0;

    /// The height of all lines when none is wrapped; one line for the empty text.
    virtual std::int32_t TextHeight(TextIn text, const FontSpec& font) const = 0;

    /// The height when lines wrap at a width.
    virtual std::int32_t WrappedHeight(TextIn text, const FontSpec& font,
                                       std::int32_t width) const = 0;

  protected:
    TextMeter() = default;
    TextMeter(const TextMeter&) = default;
    TextMeter& operator=(const TextMeter&) = default;
};

}  // namespace halvek
