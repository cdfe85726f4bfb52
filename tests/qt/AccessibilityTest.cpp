// SPDX-License-Identifier: MIT
#include "tests/HelpFile.h"
#include "tests/qt/FormTest.h"

#include <QAccessible>
#include <QMetaEnum>

namespace halvek {
namespace {

/// Adds every usable control that a screen reader meets: its name in the program (none for a cell),
/// its role and its accessible name.
void Hear(QAccessibleInterface* part, QStringList& heard) {
    if (part == nullptr || part->state().invisible) return;
    const auto role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(part->role());
    const QString object = part->object() == nullptr ? "" : part->object()->objectName();
    const QString name = part->text(QAccessible::Name);
    const bool isCell = part->object() == nullptr;
    static const QSet<int> kUsed = {QAccessible::Dialog, QAccessible::Button,
                                    QAccessible::ButtonMenu, QAccessible::Graphic,
                                    QAccessible::EditableText};
    const bool isUsed = part->state().focusable || kUsed.contains(part->role());
    if (isCell ? name.size() > 2 : isUsed)
        heard += QStringLiteral("%1 %2 %3").arg(object, role, name).trimmed();
    for (int i = 0; i < part->childCount(); ++i) Hear(part->child(i), heard);
}

/// Every control of a window, and after them the tab order.
std::string Heard(QWidget& window) {
    constexpr int kPresses = 25;
    QStringList heard, tabs;
    Hear(QAccessible::queryAccessibleInterface(&window), heard);
    for (int i = 0; i < kPresses; ++i) {
        tabs += window.focusWidget()->objectName();
        PressKey(window, Qt::Key_Tab);
    }
    tabs.removeDuplicates();
    return (heard.join("; ") + " > " + tabs.join(' ')).toStdString();
}

struct AccessibilityTest : FormTest {
    AccessibilityTest() {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        StringArray colors(1, 5);
        for (const int i : {1, 2, 3}) colors[i] = QString::number(i * 1000).toStdU16String();
        utils_->InitPrefs(colors, 0, 0, 0, 0);
    }
    ~AccessibilityTest() override { QLocale::setDefault(QLocale::system()); }

    static std::string HeardInWindow(const char* name) {
        QWidget& window = Window(name);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        EXPECT_TRUE(Soon([&] { return window.isActiveWindow(); }));
        PressKey(window, Qt::CTRL | Qt::Key_F);
        return Heard(window);
    }
};

TEST_F(AccessibilityTest, EveryControlOfADialogIsCalledWhatItIsAndReachedByTab) {
    const std::u16string lines(9999, u'x');
    const std::pair<std::function<void()>, const char*> dialogs[] = {
        {[&] { utils_->ShowMsgBox(u"Save?", mbSaveDontSave, mbQuestion, u"R&D"); },
         "frmMessageBox Dialog R&D; lblText EditableText Message; arrCmd_0 Button Save; "
         "arrCmd_1 Button Don't Save; Image1 Graphic Question > arrCmd_0 arrCmd_1"},
        {[&] { utils_->ShowMsgBox(lines, mbYesNoHelp, mbQuestion, u"Visit"); },
         "frmMessageBox Dialog Visit; lblText EditableText Message; cmdUpDn_0 Button Later lines; "
         "cmdUpDn_1 Button Earlier lines; arrCmd_0 Button Yes; arrCmd_1 Button No; "
         "arrCmd_2 Button Help; Image1 Graphic Question > arrCmd_0 arrCmd_1 arrCmd_2"},
        {[&] { utils_->ShowCalendar(-1, -1, -1, u"3/7/2004"); },
         "frmCalendar Dialog Calendar; MonthView1 Table Calendar; "
         "qt_calendar_prevmonth Button Previous month (Page Up); "
         "qt_calendar_nextmonth Button Next month (Page Down); "
         "qt_calendar_monthbutton ButtonMenu March; qt_calendar_yearbutton Button 2004; "
         "qt_calendar_calendarview List Days; ListItem Sunday, March 7, 2004; "
         "cmdToday Button Today; Command1 Button Close Calendar > "
         "qt_calendar_calendarview Command1"},
        {[&] { utils_->Calculate(u"7"); },
         "frmCalculator Dialog Calculator; txtOutput EditableText Display; arrCmd_7 Button 7; "
         "arrCmd_8 Button 8; arrCmd_9 Button 9; arrCmd_12 Button divide; arrCmd_17 Button clear; "
         "arrCmd_4 Button 4; arrCmd_5 Button 5; arrCmd_6 Button 6; arrCmd_13 Button multiply; "
         "arrCmd_16 Button equals; arrCmd_1 Button 1; arrCmd_2 Button 2; arrCmd_3 Button 3; "
         "arrCmd_14 Button minus; arrCmd_0 Button 0; arrCmd_11 Button point; "
         "arrCmd_10 Button change sign; arrCmd_15 Button plus; arrCmd_18 Button return the result "
         "> "
         "arrCmd_18 txtOutput arrCmd_7 arrCmd_8 arrCmd_9 arrCmd_12 arrCmd_17 arrCmd_4 arrCmd_5 "
         "arrCmd_6 arrCmd_13 arrCmd_16 arrCmd_1 arrCmd_2 arrCmd_3 arrCmd_14 arrCmd_0 arrCmd_11 "
         "arrCmd_10 arrCmd_15"},
        {[&] { utils_->ShowColor(); },
         "frmColor Dialog Color Palette; txtPalette_1 Button red, 1 (#E80300); "
         "txtPalette_2 Button red, 2 (#D00700); txtPalette_3 Button red, 3 (#B80B00) > "
         "txtPalette_1 txtPalette_2 txtPalette_3"},
        {[&] { utils_->ShowSelection(u"Codes", u"H:A\tAlpha\t0:B\tBeta\t1:", u"B"); },
         "frmSelectGrid Dialog Codes    [Total: 2]; txtSelect EditableText Selected codes; "
         "grdSelection List Codes; CheckBox B, Beta; cmdOK Button OK; "
         "cmdExit Button Cancel > txtSelect grdSelection cmdOK cmdExit"},
    };
    for (const auto& [open, expected] : dialogs) {
        const User user([&, &expected = expected](QDialog& dialog) {
            EXPECT_EQ(Heard(dialog), expected);
            CloseRequest(dialog);
            if (dialog.isVisible())
                PressKey(dialog, Qt::Key_Return);  // not every box can be closed
        });
        open();
    }
}

TEST_F(AccessibilityTest, SoIsEveryControlOfTheWindowsBesideThem) {
    const HelpFile help(1);
    utils_->InitUtils(u"", u"", u"", true, u"");
    utils_->ShowInDebug(u"line");
    EXPECT_EQ(HeardInWindow("frmDebug"),
              "txtDebug EditableText Debug lines; txtFind EditableText Find; "
              "cmdFindPrevious Button Previous; cmdFindNext Button Next; cmdFindClose Button "
              "Close; chkNoLog CheckBox STOP logging; chkToFile CheckBox All goes to file; "
              "Check1 CheckBox Keep on top; cmdClear Button Clear; Command1 Button Save to File; "
              "Command2 Button Kill log file > txtFind cmdFindPrevious cmdFindNext cmdFindClose "
              "chkNoLog chkToFile Check1 cmdClear Command1 Command2 txtDebug");
    utils_->ShowHelp(0, 100, help.Path().u16string());
    EXPECT_EQ(
        HeardInWindow("HelpViewer"),
        "cmdBack Button Back; cmdForward Button Forward; cmdHome Button Home; cmdContents "
        "CheckBox Contents; cmdFind Button Find; cmdPrint Button Print; cmdSmaller Button Smaller; "
        "cmdOrdinarySize "
        "Button 100%; cmdLarger Button Larger; txtPage StaticText Help page; tabPanes "
        "Client; trvContents Tree Contents; TreeItem First; TreeItem Bills & fees; tabsPanes "
        "PageTabList Contents; PageTab Contents; PageTab Search; txtFind EditableText Find in this "
        "page; cmdFindPrevious Button Previous; cmdFindNext Button Next; cmdFindClose Button Close "
        "> txtFind "
        "cmdFindPrevious cmdFindNext cmdFindClose cmdHome cmdContents "
        "cmdFind cmdPrint cmdSmaller cmdOrdinarySize cmdLarger tabsPanes trvContents txtPage");
}

}  // namespace
}  // namespace halvek
