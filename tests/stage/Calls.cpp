// SPDX-License-Identifier: MIT
#include "Calls.h"

#include "Desk.h"
#include "tests/HelpFile.h"

#include <halvekutils/core/DebugConsole.h>
#include <halvekutils/core/Utils.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QApplication>
#include <QColor>
#include <QDialog>
#include <QFile>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QUrl>
#include <QWindow>

#include <algorithm>
#include <memory>
#include <utility>

using namespace halvek;

namespace {

QString log_;
QPointer<QWidget> inFront_;

Utils& Library() {
    return *Utils::CurrentUtils();
}

/// Null when it is not on the screen.
QWidget* Shown(const char* name) {
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible()) return window;
    return nullptr;
}

// Message boxes

struct Box {
    QString name;
    QString prompt;
    ButtonsChoice buttons = mbOkOnly;
    IconChoice icon = mbNoIcon;
    const char* title = "Visits";
    ColorChoice background = mbWhite;
    FontSizeChoice font = mb9;
    bool isBold = false;
    int seconds = 0;
};

// What each set of buttons may give, in the order of their values
constexpr const char* kLegal[] = {"1",   "1|2", "3|4|5", "2|6|7",  "6|7", "2|4",
                                  "8|9", "1",   "6|10",  "6|7|10", "1|10"};

QString Lines(int count) {
    QString text = "These visits have no diagnosis yet:\r\n";
    for (int i = 1; i <= count; ++i)
        text += QString("\r\nVisit %1, room %2").arg(1000 + i).arg(i % 9);
    return text;
}

QString ShowBox(const Box& box) {
    ColorChoice background = box.background;
    FontSizeChoice font = box.font;
    const QString prompt = box.prompt;
    QString result =
        QString::number(Library().ShowMsgBox(prompt, box.buttons, box.icon, QString(box.title),
                                             background, font, box.isBold, box.seconds));
    if (background != box.background || font != box.font)
        result += QString(", background %1, font %2").arg(background).arg(font);
    return result;
}

std::vector<Box> Boxes() {
    const auto none = [](auto kind) { return static_cast<decltype(kind)>(99); };
    std::vector<Box> boxes = {
        {"box ok", "The appointment was saved.", mbOkOnly, mbInformation, "Appointments"},
        {"box ok cancel", "Print three statements?", mbOkCancel, mbPrint, "Statements"},
        {"box abort retry ignore",
         "The claim file could not be sent.\r\n\r\nThe line to the clearinghouse was busy.",
         mbAbortRetryIgnore, mbCritical, "Claims"},
        {"box yes no cancel", "This visit has changed. Post it before you close the window?",
         mbYesNoCancel, mbQuestion},
        {"box yes no", "Delete the visit of 03/07/2004?\r\n\r\nThis cannot be undone.", mbYesNo,
         mbTrash},
        {"box retry cancel", "Another desk is changing this account.", mbRetryCancel,
         mbExclamation},
        {"box save dont save", "The referral has unsaved changes.", mbSaveDontSave, mbQuestion},
        {"box no buttons", "The patient is due for a recall in May.", mbNoButtons, mbReminder},
        {"box yes help", "The insurance ended on 02/29/2004. Bill it all the same?", mbYesHelp,
         mbExclamationCritical},
        {"box yes no help", "Two patients have this name and birth date. Merge their charts?",
         mbYesNoHelp, mbQuestion},
        {"box ok help", "This procedure needs a modifier.", mbOkHelp, mbExclamation},
        {"box long", Lines(60), mbOkCancel, mbExclamation},
        {"box wide",
         QString("The plan does not cover this service, as its terms say. ").repeated(14), mbOkHelp,
         mbInformation},
        {"box huge", Lines(5000), mbYesNo, mbQuestion, "Visits", mbSkinColor},
        {"box bold", "Room 4 is ready.", mbOkOnly, mbReminder, "Rooms", mbSkinColor, mb14, true},
        {"box countdown", "The schedule is about to close.", mbOkCancel, mbReminder, "Schedule",
         mbGray, mb10, false, 30},
        {"box countdown ends", "The schedule closes.", mbOkCancel, mbReminder, "Schedule", mbWhite,
         mb9, false, 1},
        {"box markup", "<b>Lab & Pharmacy</b> &amp; [*] is text,\r\nnot <i>markup</i>.", mbOkOnly,
         mbNoIcon, "Lab & Pharmacy [*] <b>"},
        {"box empty", "", mbOkCancel, mbNoIcon, ""},
        {"box unknown", "No such values", none(mbOkOnly), none(mbNoIcon), "Visits", none(mbWhite),
         none(mb9)},
    };
    for (int i = 0; i < 9; ++i) {
        boxes.push_back({QString("icon %1").arg(i), "One of nine icons.", mbOkOnly,
                         static_cast<IconChoice>(i)});
        boxes.push_back({QString("font %1").arg(i + 1),
                         "This is one of nine fonts. The insurance of this patient ended on "
                         "02/29/2004, before the "
                         "date of the visit. Claims for the visit will be denied unless another "
                         "policy is entered "
                         "first.\r\n\r\nBill the visit to the patient?",
                         mbOkCancel, mbInformation, "Visits", mbWhite,
                         static_cast<FontSizeChoice>(i + 1)});
    }
    return boxes;
}

void AddBoxes(std::vector<Call>& calls) {
    for (const Box& box : Boxes()) {
        QString legal = box.buttons > mbOkHelp ? "1.*" : kLegal[box.buttons];
        if (box.seconds > 0) legal += "|99";
        calls.push_back({box.name, legal, [box](QWidget&) { return ShowBox(box); }});
    }
}

// Pop-ups

void AddCalendars(std::vector<Call>& calls) {
    const struct {
        const char *name, *day, *preset;
        bool isBeside, hasDigits;
    } rows[] = {{"calendar", "3/7/2004", "", true, false},
                {"calendar first", "1/1/1753", "", false, false},
                {"calendar last", "12/31/9999", "", false, false},
                {"calendar preset", "", "2/29/2004", false, false},
                {"calendar digits", "03071954", "", false, true},
                {"calendar today", "", "", true, false}};
    for (const auto& row : rows) {
        const auto open = [row](QWidget& owner) {
            const QString day = row.day, preset = row.preset;
            return ToQString(row.isBeside ? Library().ShowCalendarAndCalculateCoordinates(
                                                Beside(&owner), day, preset, nullptr, row.hasDigits)
                                          : Library().ShowCalendar(-1, -1, -1, day, preset, nullptr,
                                                                   row.hasDigits));
        };
        calls.push_back({row.name, R"(|(0[1-9]|1[0-2])/([0-2]\d|3[01])/\d{4})", open});
    }
}

void AddCalculators(std::vector<Call>& calls) {
    const std::pair<const char*, const char*> rows[] = {{"calculator", "$1,234.50"},
                                                        {"calculator 25", "25"},
                                                        {"calculator empty", ""},
                                                        {"calculator text", "to be billed"},
                                                        {"calculator large", "9E+307"}};
    for (const auto& [name, amount] : rows) {
        // Any text in the box can be edited: "-5", "1E+16" and "ERROR".
        calls.push_back({name, "[-+.0-9ERO]*", [start = QString(amount)](QWidget&) {
                             return ToQString(Library().Calculate(start));
                         }});
    }
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

void AddPalettes(std::vector<Call>& calls) {
    const struct {
        const char* name;
        int count, gap;
        bool isBeside;
    } rows[] = {{"palette", 28, 99, true},
                {"palette one", 1, 2, false},
                {"palette gaps", 58, 7, false},
                {"palette 10000", 10'000, 10'001, false}};
    for (const auto& row : rows) {
        const auto open = [row](QWidget& owner) {
            const StringArray colors = Hues(row.count, row.gap);
            Library().InitPrefs(colors, 0xD8E4BC, 0x402000, 0xC0C0C0, 0xC0FFFF);
            const QString chosen =
                ToQString(row.isBeside ? Library().ShowColorAndCalculateCoordinates(Beside(&owner))
                                       : Library().ShowColor());
            const int index = chosen.section('\t', 1).toInt();
            if (chosen.isEmpty()) return QString("no color");
            const bool isItsColor =
                index > 0 && chosen.section('\t', 0, 0) == ToQString(colors[index]);
            return isItsColor ? QString("color %1").arg(index) : "not a color: " + chosen;
        };
        calls.push_back({row.name, row.count < 100 ? R"(no color|color \d+)" : "", open});
    }
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

void AddLists(std::vector<Call>& calls) {
    const struct {
        const char *name, *title, *chosen, *typed;
        bool isBeside, isActiveOnly;
    } rows[] = {{"list insurance", "Insurance Types", "MB,MG", "", true, false},
                {"list typed", "Insurance Types", "MB,MG", "W", true, false},
                {"list providers", "Providers", "CAS,OST", "", false, false},
                {"list active", "Providers", "CAS,OST", "", true, true},
                {"list places", "Places of Service", "11", "", false, false},
                {"list locations", "Locations", "NC", "", true, false},
                {"list long codes", "Authorizations", "AUTH-2004-000117-NORTH", "", false, false},
                {"list one", "Billing Entities", "", "", false, false},
                {"list two", "Signature on File", "Y", "", false, false},
                {"list unknown", "Insurance Types", " MB , QQ, it's", "", false, false},
                {"list patients", "Patients", "P10,P20,P30", "", false, false},
                {"list empty", "Recall Reasons", "", "", false, false},
                {"list missing", "Modifiers", "25,59", "", false, false}};
    for (const auto& row : rows) {
        const auto list = [row] {
            const QString title = row.title;
            if (title == "Patients") return ManyPatients();
            return title == "Recall Reasons" ? QString("Code\tDescription:") : ListNamed(title);
        };
        const auto open = [row, list](QWidget& owner) {
            const QString title = row.title, values = list(), chosen = row.chosen;
            std::u16string typed = QString(row.typed).toStdU16String();
            QString result = ToQString(
                row.isBeside
                    ? Library().ShowSelectionGridAndCalculateCoordinates(
                          title, values, chosen, Beside(&owner), nullptr, typed, row.isActiveOnly)
                    : Library().ShowSelection(title, values, chosen, -1, -1, -1, nullptr, typed));
            return typed.empty() ? result : "the typed character is left: " + result;
        };
        const bool isLarge = QString(row.title) == "Patients";
        calls.push_back(
            {row.name, isLarge ? "" : LegalCodes(list(), row.chosen, row.isActiveOnly), open});
    }
}

// Windows that stay open beside others

void AddConsoles(std::vector<Call>& calls) {
    const auto console = [](int lines, bool isBesideBox) {
        StartSession(log_, true);
        Library().ClearDebug();
        for (int i = 1; i <= lines; ++i) Library().ShowInDebug(QString("Line %1").arg(i));
        if (isBesideBox) ShowBox({"", "Look at the debug console.", mbOkOnly, mbInformation});
        if (QWidget* const window = Shown("frmDebug")) WaitUntilClosed(*window);
        const auto text = ToQString(DebugConsole::Current()->Text());
        StartSession(log_, false);
        static const QRegularExpression kWhole(
            "^(<+CLEARED>+)?((Line \\d+|<+LOG (STARTED|STOPPED)>+)\r\n)*$");
        if (!kWhole.match(text).hasMatch()) return "spoilt: " + text;
        return text.isEmpty() ? "no line" : text.section("\r\n", -2, -2);
    };
    const QString legal = R"(no line|Line \d+|<+CLEARED>+|<+LOG (STARTED|STOPPED)>+)";
    calls.push_back({"console", legal, [=](QWidget&) { return console(1, false); }});
    calls.push_back({"console full", legal, [=](QWidget&) { return console(1000, false); }});
    calls.push_back({"log a line", "", [](QWidget&) {
                         Library().LogError(u"The label printer is out of paper");
                         return QString();
                     }});
    calls.push_back({"lines arrive", "", [](QWidget&) {
                         StartSession(log_, true);
                         Library().ShowInDebug(u"a line");
                         return QString(Shown("frmDebug") == nullptr ? "hidden" : "shown");
                     }});
    calls.push_back({"console beside a box", legal, [=](QWidget&) { return console(3, true); }});
}

void AddHelp(std::vector<Call>& calls) {
    static const auto help = std::make_unique<HelpFile>(40);
    static const auto damaged = help->Beside("ITSF, and no more");
    const struct {
        const char* name;
        int topic;
        QString file;
    } rows[] = {{"help", 100, QString::fromStdU16String(help->Path().u16string())},
                {"help second page", 200, QString::fromStdU16String(help->Path().u16string())},
                {"help no topic", 4711, QString::fromStdU16String(help->Path().u16string())},
                {"help damaged", 100, QString::fromStdU16String(damaged.u16string())},
                {"help missing", 100, "/none.chm"}};
    for (const auto& row : rows) {
        calls.push_back({row.name, row.topic <= 200 && row.file.endsWith("help.chm") ? ".*" : "",
                         [row](QWidget&) {
                             if (!Library().ShowHelp(0, row.topic, row.file))
                                 return QString("no help");
                             QWidget* const viewer = Shown("HelpViewer");
                             if (viewer == nullptr) return QString("no window");
                             WaitUntilClosed(*viewer);
                             return viewer->findChild<QTextBrowser*>()->source().path().toLower();
                         }});
    }
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

std::vector<Call> MakeCalls() {
    std::vector<Call> calls = {{"no close button", "", ShowWithoutCloseButton},
                               {"fields", "", ShowFields}};
    for (const auto add :
         {AddBoxes, AddCalendars, AddCalculators, AddPalettes, AddLists, AddConsoles, AddHelp})
        add(calls);
    return calls;
}

}  // namespace

const std::vector<Call>& Calls() {
    static const std::vector<Call> calls = MakeCalls();
    return calls;
}

const Call* FindCall(const QString& name) {
    const auto found = std::ranges::find(Calls(), name, &Call::name);
    return found == Calls().end() ? nullptr : &*found;
}

QString ListNamed(const QString& name) {
    QFile file(HALVEK_TEST_DATA "/stage/lists.txt");
    if (!file.open(QIODevice::ReadOnly)) qFatal("there is no %s", qPrintable(file.fileName()));
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
        if (line.section('=', 0, 0) == name) return line.section('=', 1);
    return {};
}

void StartSession(const QString& errorLog, bool debugMode) {
    log_ = errorLog;
    const auto utils = Utils::Create();
    utils->InitUtils(log_, QString("Stage"), QString("test"), debugMode, QString("1"));
    StringArray colors(1, 20);
    for (int i = 1; i <= 20; ++i) colors[i] = QString::number(i * 500'000).toStdU16String();
    utils->InitPrefs(colors, 0xD8E4BC, 0x402000, 0xC0C0C0, 0xC0FFFF);
    utils->InitOtherSettings(0x804000, 0xFFFFFF, u"-", 1, 255);
}

void WaitUntilClosed(QWidget& window) {
    inFront_ = &window;
    bool isAsked = false;
    while (inFront_ != nullptr && inFront_->isVisible()) {
        // The debug console takes no focus until it is painted.
        const QWindow* const handle = window.windowHandle();
        if (!isAsked && !handle->flags().testFlag(Qt::WindowDoesNotAcceptFocus)) {
            isAsked = true;
            window.activateWindow();
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    inFront_ = nullptr;
}

QWidget* Front(QWidget* base) {
    if (QWidget* const popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* const dialog = QApplication::activeModalWidget()) return dialog;
    return inFront_ != nullptr && inFront_->isVisible() ? inFront_.data() : base;
}
