// SPDX-License-Identifier: MIT
#include "Desktop.h"

#include "Rows.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>

#include <time.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace bench {

namespace {

using namespace halvek;

constexpr int kTimes = 100;
constexpr double kOpens = 50;      // milliseconds
constexpr double kAnswers = 16;    // one frame
constexpr double kWithList = 1.5;  // times the same window almost empty

/// Notices when a dialog has been painted.
class Paint : public QObject {
  public:
    std::function<void(QDialog&)> painted;

    Paint() { qApp->installEventFilter(this); }
    ~Paint() override { qApp->removeEventFilter(this); }
    Paint(const Paint&) = delete;
    Paint& operator=(const Paint&) = delete;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint || !watched->isWidgetType() || !painted) return false;
        auto* const dialog = qobject_cast<QDialog*>(static_cast<QWidget*>(watched)->window());
        // Once the paint is over and has gone to the display
        const auto tell = [this, dialog] {
            if (painted) std::exchange(painted, nullptr)(*dialog);
        };
        if (dialog != nullptr) QMetaObject::invokeMethod(dialog, tell, Qt::QueuedConnection);
        return false;
    }
};

/// Milliseconds, each sorted.
struct Waits {
    std::vector<double> real;
    std::vector<double> processor;

    void Sort() {
        std::ranges::sort(real);
        std::ranges::sort(processor);
    }
};

class Stopwatch {
  public:
    void StopInto(Waits& waits) const {
        waits.real.push_back(Now(CLOCK_MONOTONIC) - real_);
        waits.processor.push_back(Now(CLOCK_PROCESS_CPUTIME_ID) - processor_);
    }

  private:
    static double Now(clockid_t clock) {
        timespec time{};
        ::clock_gettime(clock, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }

    double real_ = Now(CLOCK_MONOTONIC);
    double processor_ = Now(CLOCK_PROCESS_CPUTIME_ID);
};

Waits Openings(const Work& open) {
    Waits waits;
    for (int i = 0; i < kTimes; ++i) {
        Paint paint;
        const Stopwatch watch;
        paint.painted = [&](QDialog& dialog) {
            watch.StopInto(waits);
            dialog.close();
        };
        open();
        QCoreApplication::processEvents();
    }
    waits.Sort();
    return waits;
}

struct Key {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    QString text;
};

void Send(QWidget& widget, const Key& key) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key.key, key.modifiers, key.text);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

/// Handles events, without turning in circles meanwhile.
void Wait(int milliseconds, const bool& done) {
    QTimer end;
    end.setSingleShot(true);
    end.start(milliseconds);
    while (!done && end.isActive()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

/// Until nothing is left to paint or to do.
void Settle() {
    constexpr int kLongEnough = 40;
    Wait(kLongEnough, false);
}

/// Until the window manager has given the dialog the keyboard: a box without it shows no new text.
void WaitForKeyboard(QDialog& dialog) {
    constexpr int kCalmLooks = 5;
    constexpr int kMostLooks = 200;
    for (int calm = 0, looks = 0; calm < kCalmLooks; ++looks) {
        Settle();
        calm = dialog.isActiveWindow() ? calm + 1 : 0;
        if (looks > kMostLooks) qFatal("the window manager gives the dialog no keyboard");
    }
}

/// In a window that is open: the keys in turns to the part, each until it is painted.
Waits Answers(QDialog& dialog, const char* part, const std::vector<Key>& before,
              const std::vector<Key>& keys) {
    auto* const widget = dialog.findChild<QWidget*>(QLatin1String(part));
    widget->setFocus();
    for (const Key& key : before) Send(*dialog.focusWidget(), key);
    Settle();
    Waits waits;
    for (int i = 0; i < kTimes; ++i) {
        Paint paint;
        bool done = false;
        paint.painted = [&](QDialog&) { done = true; };
        const Stopwatch watch;
        Send(*dialog.focusWidget(), keys[static_cast<std::size_t>(i) % keys.size()]);
        Wait(1000, done);
        watch.StopInto(waits);
        Settle();
    }
    waits.Sort();
    return waits;
}

Waits AnswersIn(const Work& open, const char* part, const std::vector<Key>& before,
                const std::vector<Key>& keys) {
    Waits waits;
    Paint paint;
    paint.painted = [&](QDialog& dialog) {
        WaitForKeyboard(dialog);
        waits = Answers(dialog, part, before, keys);
        dialog.close();
    };
    open();
    return waits;
}

/// The 99th of a hundred, which nearly nobody waits longer for.
double Most(const Waits& waits) {
    return waits.real.at(waits.real.size() - 2);
}

class Table {
  public:
    explicit Table(std::string_view only) : only_(only) {
        std::printf(
            "| what a person waits for | processor time | median | 99th of 100 | at most "
            "| almost empty, 99th | ratio | at most | met "
            "|\n|---|---|---|---|---|---|---|---|---|\n");
    }

    void Add(const char* work, double atMost, const std::function<Waits()>& measure,
             const std::function<Waits()>& measureEmpty = {}) {
        if (std::string_view(work).find(only_) == std::string_view::npos) return;
        const Waits waits = measure();
        const double most = Most(waits);
        bool met = most <= atMost;
        std::printf("| %s | %.1f ms | %.1f ms | %.1f ms | %g ms | ", work,
                    waits.processor.at(kTimes / 2), waits.real.at(kTimes / 2), most, atMost);
        if (measureEmpty) {
            const double empty = Most(measureEmpty());
            met = met && most <= kWithList * empty;
            std::printf("%.1f ms | %.2f | %g | ", empty, most / empty, kWithList);
        } else {
            std::printf("- | - | - | ");
        }
        std::printf("%s |\n", met ? "yes" : "NO");
        std::fflush(stdout);
        allMet_ = allMet_ && met;
    }

    int ExitCode() const { return allMet_ ? EXIT_SUCCESS : EXIT_FAILURE; }

  private:
    std::string_view only_;
    bool allMet_ = true;
};

std::u16string Decimal(int number) {
    const std::string digits = std::to_string(100'000 + number);
    return std::u16string(digits.begin() + 1, digits.end());
}

std::u16string ListText(int entries) {
    std::u16string text = u"HEADER";
    for (int i = 0; i < entries; ++i) {
        text += u":C" + Decimal(i) + u"\tDiagnosis with a name of usual length\t0";
    }
    return text;
}

/// Every tenth code.
std::u16string ChosenText(int entries) {
    std::u16string text;
    for (int i = 0; i < entries; i += 10) {
        if (i > 0) text += u',';
        text += u'C' + Decimal(i);
    }
    return text;
}

}  // namespace

int PrintDesktop(std::string_view only) {
    constexpr int kEntries = 100'000;
    constexpr int kAlmostNone = 100;
    Session().InitPrefs(StringArray(1, {u"255\tRed", u"65280\tGreen", u"16711680\tBlue"}), 0xF0F0F0,
                        0, 0, 0);
    const auto selection = [](int entries, bool chosen) {
        return [list = ListText(entries), codes = chosen ? ChosenText(entries) : u""] {
            Session().ShowSelectionGrid(u"Diagnoses", list, codes);
        };
    };
    const auto opening = [](Work open) { return [open] { return Openings(open); }; };
    const auto answer = [&](const char* part, std::vector<Key> before, std::vector<Key> keys) {
        return [=] { return AnswersIn(selection(kEntries, true), part, before, keys); };
    };
    const Key back{Qt::Key_Backspace, {}, {}};
    Table table(only);
    table.Add("message box", kOpens, opening([] {
                  Session().ShowMsgBox(u"Save the visit?", mbYesNoCancel, mbQuestion, u"Visit");
              }));
    table.Add("calendar", kOpens, opening([] { Session().ShowCalendar(); }));
    table.Add("calculator", kOpens, opening([] { Session().Calculate(u"12.50"); }));
    table.Add("colour palette", kOpens, opening([] { Session().ShowColor(); }));
    table.Add("selection dialog, 100,000 entries", kOpens, opening(selection(kEntries, false)),
              opening(selection(kAlmostNone, false)));
    table.Add("selection dialog, 100,000 entries, 10,000 chosen", kOpens,
              opening(selection(kEntries, true)), opening(selection(kAlmostNone, true)));
    table.Add("a key in the box of codes, 10,000 chosen", kAnswers,
              answer("txtSelect", {{Qt::Key_End, Qt::ControlModifier, {}}},
                     {{Qt::Key_Comma, {}, ","}, back}));
    table.Add("a letter in the find bar, 100,000 entries", kAnswers,
              answer("grdSelection", {{Qt::Key_F, Qt::ControlModifier, {}}},
                     {{Qt::Key_Q, {}, "q"}, back, {Qt::Key_U, {}, "u"}, back}));
    table.Add("a tick, 10,000 chosen", kAnswers,
              answer("grdSelection", {}, {{Qt::Key_Space, {}, " "}}));
    return table.ExitCode();
}

}  // namespace bench
