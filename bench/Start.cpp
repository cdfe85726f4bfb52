// SPDX-License-Identifier: MIT
// A host that starts and shows a window with a text, with the library or, without
// HALVEK_START_LIBRARY, without it. It prints what that has cost: milliseconds of processor time,
// megabytes of memory, shared objects.
#include <QApplication>
#include <QLabel>

#ifdef HALVEK_START_LIBRARY
#include <halvekutils/core/Utils.h>
#include <halvekutils/qt/QtPlatform.h>
#endif

#include <link.h>
#include <sys/resource.h>

#include <cstdio>

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
#ifdef HALVEK_START_LIBRARY
    const halvek::QtPlatform desktop;
    const auto utils = halvek::Utils::Create();
    utils->InitUtils(u"", u"Benchmarks", u"", false, u"");
#endif
    QLabel window("Front Desk");
    window.show();
    QApplication::processEvents();
    int objects = 0;
    dl_iterate_phdr(
        [](dl_phdr_info*, std::size_t, void* count) { return ++*static_cast<int*>(count), 0; },
        &objects);
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    const auto milliseconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    std::printf("%.2f %.2f %d\n", milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime),
                static_cast<double>(usage.ru_maxrss) / 1024, objects);
}
