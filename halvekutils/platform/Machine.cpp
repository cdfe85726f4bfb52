#include <halvekutils/platform/Machine.h>

namespace halvek {

Machine::~Machine() = default;

}  // namespace halvek
