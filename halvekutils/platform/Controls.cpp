// SPDX-License-Identifier: MIT
#include <halvekutils/platform/Controls.h>

namespace halvek {

OwnerForm::~OwnerForm() = default;
PopupTarget::~PopupTarget() = default;
HeadingControl::~HeadingControl() = default;
ControlFont::~ControlFont() = default;
GridFont::~GridFont() = default;
ComboBox::~ComboBox() = default;
TextControl::~TextControl() = default;

bool TextControl::Locked() const {
    return false;
}

}  // namespace halvek
