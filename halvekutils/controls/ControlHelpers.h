// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Color.h>
#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/platform/Controls.h>

#include <cstdint>
#include <memory>

namespace halvek {

// The rules of the members of Utils with the same names, which document them for hosts. Without a
// control they throw ObjectNotSet.

void HighlightHeading(const std::shared_ptr<HeadingControl>& control, std::int16_t iBorderStyle,
                      Color back, Color fore);
void UnhighlightHeading(const std::shared_ptr<HeadingControl>& control, Color fore);
HALVEK_INTERNAL bool SetFontProperties(const std::shared_ptr<ControlFont>& font, TextIn fontName,
                                       float fontSize);
void GridSetFontObject(const std::shared_ptr<GridFont>& font, TextIn fontCode);

/// Fetches each entry at most once.
std::int32_t FindInCombo(const std::shared_ptr<ComboBox>& box, TextIn text, bool partialMatch,
                         bool matchCase);
void FillCombo(const std::shared_ptr<ComboBox>& box, TextIn items, bool widen);

}  // namespace halvek
