#include <halvekutils/platform/Controls.h>

namespace halvek {

OwnerForm::~OwnerForm() = default;

}  // namespace halvek
