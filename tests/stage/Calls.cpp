// SPDX-License-Identifier: MIT
#include "Calls.h"

#include "Desk.h"
#include "tests/HelpFile.h"

#include <halvekutils/core/DebugConsole.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <utility>

using namespace halvek;

namespace {

QString log_;
QPointer<QWidget> inFront_;

Utils& Library() {
    return *Utils::CurrentUtils();
}

/// The lines of a file beside this one.
QStringList LinesOf(const QString& name) {
    QFile file(HALVEK_TEST_DATA "/stage/" + name);
    if (!file.open(QIODevice::ReadOnly)) qFatal("there is no %s", qPrintable(file.fileName()));
    return QString::fromUtf8(file.readAll()).split('\n');
}

/// Null when it is not on the screen.
QWidget* Shown(const char* name) {
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible()) return window;
    return nullptr;
}

// Message boxes

// What each set of buttons may give, in the order of their values
constexpr const char* kLegal[] = {"1",   "1|2", "3|4|5", "2|6|7",  "6|7", "2|4",
                                  "8|9", "1",   "6|10",  "6|7|10", "1|10"};

QString ShowBox(const QStringList& fields) {
    const QStringList looks = fields[1].split(',');
    const auto look = [&](int at, int usual) {
        return at < looks.size() ? looks[at].toInt() : usual;
    };
    const auto background = static_cast<ColorChoice>(look(2, mbWhite));
    const auto font = static_cast<FontSizeChoice>(look(3, mb9));
    ColorChoice backgroundUsed = background;
    FontSizeChoice fontUsed = font;
    QString prompt = fields[3];
    prompt.replace('^', "\r\n");
    if (fields.size() > 4) prompt = prompt.repeated(fields[4].toInt());
    QString result = QString::number(Library().ShowMsgBox(
        prompt, static_cast<ButtonsChoice>(looks[0].toInt()), static_cast<IconChoice>(look(1, 0)),
        fields[2], backgroundUsed, fontUsed, look(4, 0) != 0, look(5, 0)));
    if (backgroundUsed != background || fontUsed != font)
        result += QString(", background %1, font %2").arg(backgroundUsed).arg(fontUsed);
    return result;
}

Call BoxCall(const QStringList& fields) {
    const QStringList looks = fields[1].split(',');
    QString legal = looks[0].toInt() > mbOkHelp ? "1.*" : kLegal[looks[0].toInt()];
    if (looks.size() > 5) legal += "|99";
    return {fields[0], legal, [fields](QWidget&) { return ShowBox(fields); }};
}

// Pop-ups

Call CalendarCall(const QStringList& fields) {
    const auto open = [fields](QWidget& owner) {
        const bool hasDigits = fields[3].contains("digits");
        return ToQString(
            fields[3].contains("beside")
                ? Library().ShowCalendarAndCalculateCoordinates(Beside(&owner), fields[1],
                                                                fields[2], nullptr, hasDigits)
                : Library().ShowCalendar(-1, -1, -1, fields[1], fields[2], nullptr, hasDigits));
    };
    return {fields[0], R"(|(0[1-9]|1[0-2])/([0-2]\d|3[01])/\d{4})", open};
}

Call CalculatorCall(const QStringList& fields) {
    // Any text in the box can be edited: "-5", "1E+16" and "ERROR".
    return {fields[0], "[-+.0-9ERO]*",
            [start = fields[1]](QWidget&) { return ToQString(Library().Calculate(start)); }};
}

/// Colours all around the circle; without every `gap`th.
StringArray Hues(int count, int gap) {
    StringArray colors(1, count + 2);
    for (int i = 1; i <= count; ++i) {
        const QRgb hue = QColor::fromHsv(i * 17 % 360, 80 + i * 11 % 160, 255 - i * 3 % 120).rgb();
        const int color = qRed(hue) + 256 * (qGreen(hue) + 256 * qBlue(hue));
        colors[i] = QString::number(i % gap == 0 ? -1 : color).toStdU16String();
    }
    return colors;
}

Call PaletteCall(const QStringList& fields) {
    const int count = fields[1].toInt();
    const auto open = [=](QWidget& owner) {
        const StringArray colors = Hues(count, fields[2].toInt());
        Library().InitPrefs(colors, 0xD8E4BC, 0x402000, 0xC0C0C0, 0xC0FFFF);
        const QString chosen = ToQString(
            fields[3] == "beside" ? Library().ShowColorAndCalculateCoordinates(Beside(&owner))
                                  : Library().ShowColor());
        const int index = chosen.section('\t', 1).toInt();
        if (chosen.isEmpty()) return QString("no color");
        const bool isItsColor = index > 0 && chosen.section('\t', 0, 0) == ToQString(colors[index]);
        return isItsColor ? QString("color %1").arg(index) : "not a color: " + chosen;
    };
    return {fields[0], count < 100 ? R"(no color|color \d+)" : "", open};
}

// Selection lists

QString ManyPatients() {
    QString list = "Code\tDescription\tDeleted:";
    for (int i = 1; i <= 100'000; ++i)
        list += QString("P%1\tPatient %1\t%2:").arg(i).arg(i % 50 == 0);
    return list;
}

/// What a list may give: codes of its own, a button's word, or the codes as they were.
QString LegalCodes(const QString& list, const QString& chosen, bool isActiveOnly) {
    QString codes;
    for (const QString& entry : list.split(':', Qt::SkipEmptyParts).mid(1))
        if (!isActiveOnly || entry.endsWith('0')) codes += '|' + entry.section('\t', 0, 0);
    codes.remove(0, 1);
    return QString("CANCEL|%1|(%2)(,(%2))*|").arg(QString(chosen).replace('\'', '.'), codes);
}

Call ListCall(const QStringList& fields) {
    const QString title = fields[1], chosen = fields[2];
    const bool isActiveOnly = fields[4].contains("active");
    const auto list = [title] {
        if (title == "Patients") return ManyPatients();
        return title == "Recall Reasons" ? QString("Code\tDescription:") : ListNamed(title);
    };
    const auto open = [=](QWidget& owner) {
        std::u16string typed = fields[3].toStdU16String();
        const QString values = list();
        QString result = ToQString(
            fields[4].contains("beside")
                ? Library().ShowSelectionGridAndCalculateCoordinates(
                      title, values, chosen, Beside(&owner), nullptr, typed, isActiveOnly)
                : Library().ShowSelection(title, values, chosen, -1, -1, -1, nullptr, typed));
        return typed.empty() ? result : "the typed character is left: " + result;
    };
    const bool isLarge = title == "Patients";
    return {fields[0], isLarge ? "" : LegalCodes(list(), chosen, isActiveOnly), open};
}

// Windows that stay open beside others

Call ConsoleCall(const QStringList& fields) {
    const auto open = [fields](QWidget&) {
        StartSession(log_, true);
        Library().ClearDebug();
        for (int i = 1; i <= fields[1].toInt(); ++i)
            Library().ShowInDebug(QString("Line %1").arg(i));
        if (fields[2] == "box") ShowBox({"", "0,2", "Visits", "Look at the debug console."});
        if (QWidget* const window = Shown("frmDebug")) WaitUntilClosed(*window);
        const auto text = ToQString(DebugConsole::Current()->Text());
        StartSession(log_, false);
        return text.isEmpty() ? "no line" : text.section("\r\n", -2, -2);
    };
    return {fields[0], ".*", open};
}

QString LogALine(QWidget&) {
    Library().LogError(u"The label printer is out of paper");
    return {};
}

QString ShowWhetherLinesArrive(QWidget&) {
    StartSession(log_, true);
    Library().ShowInDebug(u"a line");
    return Shown("frmDebug") == nullptr ? "hidden" : "shown";
}

Call HelpCall(const QStringList& fields) {
    static const HelpFile help(40);
    help.Beside("ITSF, and no more");  // bad.chm
    const auto file = (help.Path().parent_path() / fields[2].toStdString()).u16string();
    const auto open = [file, topic = fields[1].toInt()](QWidget&) {
        if (!Library().ShowHelp(0, topic, file)) return QString("no help");
        QWidget* const viewer = Shown("HelpViewer");
        if (viewer == nullptr) return QString("no window");
        WaitUntilClosed(*viewer);
        return viewer->findChild<QTextBrowser*>()->source().path().toLower();
    };
    return {fields[0], fields.value(3), open};
}

// A host's own windows

/// A dialog of the host's without a close button; one of its own closes it.
QString ShowWithoutCloseButton(QWidget& owner) {
    QDialog dialog(&owner);
    dialog.setObjectName("Host");
    QPushButton close("Close", &dialog);
    QObject::connect(&close, &QPushButton::clicked, &dialog, &QDialog::accept);
    Library().KillCloseButton(static_cast<std::int32_t>(dialog.winId()));
    return dialog.exec() == QDialog::Accepted ? "closed" : "escaped";
}

QString ShowFields(QWidget&) {
    Desk desk(Utils::CurrentUtils());
    desk.show();
    WaitUntilClosed(desk);
    return "closed";
}

// What makes a call of a line in calls.txt, by the first word of its name
constexpr struct {
    const char* kind;
    Call (*make)(const QStringList& fields);
} kKinds[] = {{"box", BoxCall},
              {"icon", BoxCall},
              {"font", BoxCall},
              {"calendar", CalendarCall},
              {"calculator", CalculatorCall},
              {"palette", PaletteCall},
              {"list", ListCall},
              {"console", ConsoleCall},
              {"help", HelpCall}};

std::vector<Call> MakeCalls() {
    std::vector<Call> calls = {{"no close button", "", ShowWithoutCloseButton},
                               {"fields", "", ShowFields},
                               {"log a line", "", LogALine},
                               {"lines arrive", "", ShowWhetherLinesArrive}};
    for (const QString& line : LinesOf("calls.txt")) {
        QStringList fields;
        for (const QString& field : line.split('|')) fields += field.trimmed().replace('~', ' ');
        for (const auto& [kind, make] : kKinds)
            if (fields[0].section(' ', 0, 0) == kind) calls.push_back(make(fields));
    }
    return calls;
}

}  // namespace

const std::vector<Call>& Calls() {
    static const std::vector<Call> calls = MakeCalls();
    return calls;
}

QString ListNamed(const QString& name) {
    for (const QString& line : LinesOf("lists.txt"))
        if (line.section('=', 0, 0) == name) return line.section('=', 1);
    return {};
}

void StartSession(const QString& errorLog, bool debugMode) {
    log_ = errorLog;
    const auto utils = Utils::Create();
    utils->InitUtils(log_, QString("Stage"), QString("test"), debugMode, QString("1"));
    utils->InitPrefs(Hues(18, 99), 0xD8E4BC, 0x402000, 0xC0C0C0, 0xC0FFFF);
    utils->InitOtherSettings(0x804000, 0xFFFFFF, u"-", 1, 255);
}

void WaitUntilClosed(QWidget& window) {
    const QPointer<QWidget> shown = &window;
    const QPointer<QWidget> before = std::exchange(inFront_, shown);
    bool isAsked = false;
    while (shown != nullptr && shown->isVisible()) {
        // The debug console takes no focus until it is painted.
        const QWindow* const handle = window.windowHandle();
        if (!isAsked && !handle->flags().testFlag(Qt::WindowDoesNotAcceptFocus)) {
            isAsked = true;
            window.activateWindow();
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    inFront_ = before;
}

QWidget* Front(QWidget* base) {
    if (QWidget* const popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* const dialog = QApplication::activeModalWidget()) return dialog;
    return inFront_ != nullptr && inFront_->isVisible() ? inFront_.data() : base;
}
