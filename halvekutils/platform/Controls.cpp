#include <halvekutils/platform/Controls.h>

namespace halvek {

OwnerForm::~OwnerForm() = default;
PopupTarget::~PopupTarget() = default;
TextControl::~TextControl() = default;

bool TextControl::Locked() const {
    return false;
}

}  // namespace halvek
