// SPDX-License-Identifier: MIT
// Runs each row without windows once under callgrind, which counts its instructions; see
// instructions.sh.
#include "Rows.h"

#include <QtGlobal>

#include <gnu/libc-version.h>
#include <valgrind/callgrind.h>

#include <cstdio>

using namespace bench;

int main() {
    // What the numbers depend on; under valgrind the processor is valgrind's.
    std::printf("compiler %s, libc %s, Qt %s, processor %s\n", __VERSION__, gnu_get_libc_version(),
                qVersion(), __builtin_cpu_supports("avx2") != 0 ? "with AVX2" : "without AVX2");
    Session();
    for (const Row& row : RowsWithoutWindows()) {
        if (!row.counted) continue;
        const Work ours = row.prepare(kCountedScale).ours;
        ours();  // the first time binds functions and grows the heap
        CALLGRIND_START_INSTRUMENTATION;
        CALLGRIND_ZERO_STATS;
        ours();
        CALLGRIND_DUMP_STATS_AT(row.work.c_str());
        CALLGRIND_STOP_INSTRUMENTATION;
    }
}
