// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

namespace bench {

/// The instructions that rows need, as instructions.txt has them.
class InstructionRecord {
  public:
    InstructionRecord();

    /// "-" for a row that it lacks.
    std::string Of(const std::string& work) const;

  private:
    std::map<std::string, std::string> counts_;
};

}  // namespace bench
