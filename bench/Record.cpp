// SPDX-License-Identifier: MIT
#include "Record.h"

#include <fstream>

namespace bench {

InstructionRecord::InstructionRecord() {
    std::ifstream file(HALVEK_INSTRUCTIONS);
    for (std::string line; std::getline(file, line);) {
        const std::size_t tab = line.find('\t');
        if (tab != std::string::npos) counts_[line.substr(tab + 1)] = line.substr(0, tab);
    }
}

std::string InstructionRecord::Of(const std::string& work) const {
    const auto found = counts_.find(work);
    if (found == counts_.end()) return "-";
    // 12,345,678
    std::string text = found->second;
    for (std::size_t at = text.size(); at > 3;) text.insert(at -= 3, ",");
    return text;
}

}  // namespace bench
