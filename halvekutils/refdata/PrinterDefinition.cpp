// SPDX-License-Identifier: MIT
#include <halvekutils/refdata/PrinterDefinition.h>

#include <utility>

namespace halvek {

PrinterDefinition::PrinterDefinition(PrinterFields fields) : fields_(std::move(fields)) {}
PrinterDefinition::~PrinterDefinition() = default;

}  // namespace halvek
