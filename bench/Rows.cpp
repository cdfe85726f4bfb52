// SPDX-License-Identifier: MIT
#include "Rows.h"

#include <iterator>

namespace bench {

Rows RowsWithoutWindows() {
    Rows all;
    for (Rows rows :
         {TextRows(), RefdataRows(), PrefsRows(), LogRows(), SelectionRows(), ValueRows()}) {
        all.insert(all.end(), std::make_move_iterator(rows.begin()),
                   std::make_move_iterator(rows.end()));
    }
    return all;
}

halvek::Utils& Session() {
    static std::shared_ptr<halvek::Utils> session;
    if (session == nullptr) {
        session = halvek::Utils::Create();
        session->InitUtils(u"", u"Benchmarks", u"", false, u"");
    }
    return *session;
}

void Use(const void* result) {
    asm volatile("" : : "r"(result) : "memory");
}

}  // namespace bench
