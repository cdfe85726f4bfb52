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

std::uint32_t OwnerForm::Window() const {
    return 0;
}

bool PopupTarget::IsRightToLeft() const {
    return false;
}

std::uint32_t PopupTarget::Window() const {
    return 0;
}

bool TextControl::Locked() const {
    return false;
}

}  // namespace halvek
