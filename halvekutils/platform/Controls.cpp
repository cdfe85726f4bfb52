#include <halvekutils/platform/Controls.h>

namespace halvek {

OwnerForm::~OwnerForm() = default;
PopupTarget::~PopupTarget() = default;

}  // namespace halvek
