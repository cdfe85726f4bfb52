// SPDX-License-Identifier: MIT
#include "Desk.h"

#include "Texts.h"
#include "practice/ServerText.h"

#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPalette>
#include <QStandardPaths>
#include <QTimer>

#include <cstdint>
#include <utility>
#include <vector>

namespace frontdesk {

using halvek::FromServer;
using halvek::ToQString;
using halvek::ToServer;

namespace {

// Windows' codes of keys, as practices store them: F2 and F3 open a look-up, F4 finds a patient.
constexpr std::int32_t kCodeOfF1 = 112;
constexpr std::int32_t kLookupByCode = 113;
constexpr std::int32_t kLookupByDescription = 114;
constexpr std::int32_t kFindPatient = 115;

constexpr halvek::Color kHighlightBack = halvek::Rgb(31, 84, 132);
constexpr halvek::Color kHighlightFore = halvek::kWhite;
constexpr double kColumnAdjust = 1.0;
constexpr std::int32_t kScrollBarWidth = 255;  // twips

constexpr char kTitle[] = "Front Desk";

}  // namespace

QString DataFolder() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(folder);
    return folder;
}

QString ErrorLogFile() {
    return DataFolder() + "/FrontDesk.log";
}

Desk::Desk(CallLog& calls, bool debug) : calls_(calls) {
    utils_->InitUtils(ErrorLogFile(), QString(kTitle), u"clinic", debug, u"" HALVEK_DEMO_VERSION);
    calls_.Add("InitUtils", {ErrorLogFile(), kTitle, "clinic", debug});
    if (!debug) return;
    connect(&calls_, &CallLog::Added, this,
            [this](const QString& line) { utils_->ShowInDebug(line); });
}

bool Desk::Open(const QString& path) {
    QString fault;
    practice_ = Practice::Open(path, fault);
    for (int number = 2; practice_ == nullptr; ++number) {
        utils_->LogError(fault);
        const QFileInfo file(path);
        const QString name = QString("%1-%2.db").arg(file.completeBaseName()).arg(number);
        const QString beside = file.path() + '/' + name;
        const QString question = QFileInfo::exists(beside) ? "Go on with %1 beside it?"
                                                           : "Start afresh with %1 beside it?";
        const QString offer = question.arg(name) + " The file itself stays as it is.";
        if (Ask(fault + "\r\n\r\n" + offer, halvek::mbYesNo, halvek::mbCritical, kTitle) !=
            halvek::mbYes)
            return false;
        practice_ = Practice::Open(beside, fault);
    }
    practice_->OnFault([this](const QString& reason) { NoteFault(reason); });
    ReadSystemPrefs();
    ReadReferenceData();
    const QString settings = FromServer(practice_->Settings(kUser));
    prefs_.PopulateSettings(settings);
    calls_.Add("UserPrefs.PopulateSettings", {settings});
    UsePrefs();
    return true;
}

void Desk::ReadSystemPrefs() {
    auto system = std::make_shared<halvek::SystemPrefs>();
    system->LookupKey(kLookupByCode);
    system->LookupKey1(kLookupByDescription);
    system->PatientLookupKey(kFindPatient);
    utils_->SetCurrentSystemPrefs(system);
    calls_.Add("SetCurrentSystemPrefs");
    utils_->InitOtherSettings(kHighlightBack, kHighlightFore, u"-", kColumnAdjust, kScrollBarWidth);
    calls_.Add("InitOtherSettings",
               {kHighlightBack, kHighlightFore, "-", kColumnAdjust, kScrollBarWidth});
    const QString help = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                         "/../share/halvekutils-demo/FrontDesk.chm");
    utils_->InitHelp(help);
    calls_.Add("InitHelp", {help});
}

void Desk::ReadReferenceData() {
    const QString time = FromServer(practice_->Time());
    utils_->InitServerTime(time);
    calls_.Add("InitServerTime", {time});
    const QString codes = FromServer(practice_->Codes());
    utils_->BuildCodesCollection(codes);
    calls_.Add("BuildCodesCollection", {codes});
    const QString rights = FromServer(practice_->Rights(kUser));
    utils_->BuildSecurityCollection(rights);
    calls_.Add("BuildSecurityCollection", {rights});
}

void Desk::ReadPrinters() {
    const QString printers = FromServer(practice_->Printers());
    utils_->ClearPrintersCollection();
    utils_->BuildPrintersCollection(printers);
    calls_.Add("BuildPrintersCollection", {printers});
    emit PrintersKnown();
}

std::optional<Visit> Desk::VisitOfToday() {
    return current_ ? practice_->VisitOfToday(current_->number) : std::nullopt;
}

halvek::ReminderDefinition Desk::RemindersOfAccount() {
    halvek::ReminderDefinition reminder;
    if (!current_) return reminder;
    const QString number = QString::number(current_->number);
    const QString text = FromServer(practice_->Reminders(current_->number));
    reminder.PopulateReminder(number, text);
    calls_.Add("ReminderDefinition.PopulateReminder", {number, text});
    return reminder;
}

void Desk::Select(int patient) {
    current_ = practice_->Find(patient);
    emit PatientChanged();
}

// In the library's registry of windows: all accounts are shown in the one window, so an account's
// number is its handle.
QList<int> Desk::OpenAccounts() const {
    constexpr std::int32_t kHandleRow = 1;  // of the registry's table; row 0 holds the types
    QList<int> numbers;
    const halvek::StringTable windows = utils_->OpenWindows()->GetAll();
    for (std::int32_t index = 1; index < windows.Columns(); ++index) {
        numbers << ToQString(windows.At(kHandleRow, index)).toInt();
    }
    return numbers;
}

void Desk::NoteOpen(int patient) {
    if (OpenAccounts().contains(patient)) return;
    const bool added = utils_->OpenWindows()->AddItem(u"ACCOUNT", patient);
    calls_.Add("OpenWindows()->AddItem", {"ACCOUNT", patient}, added);
}

void Desk::SelectDue() {
    for (const Visit& visit : practice_->Visits(practice_->Now().date())) {
        if (visit.state == VisitState::Due) return Select(visit.patient);
    }
}

void Desk::OpenAccount(int patient, ScreenId screen) {
    Select(patient);
    emit GoTo(screen);
}

void Desk::CloseAccount() {
    const qsizetype place = current_ ? OpenAccounts().indexOf(current_->number) : -1;
    if (place < 0) return;
    const auto index = static_cast<std::int32_t>(place + 1);
    const bool removed = utils_->OpenWindows()->RemoveItem(index);
    calls_.Add("OpenWindows()->RemoveItem", {index}, removed);
    const QList<int> left = OpenAccounts();
    if (!left.isEmpty()) return OpenAccount(left.last(), ScreenId::Account);
    emit GoTo(ScreenId::Schedule);
}

void Desk::CloseAllAccounts() {
    utils_->OpenWindows()->ClearAll();
    calls_.Add("OpenWindows()->ClearAll");
    current_.reset();
    emit PatientChanged();
    emit GoTo(ScreenId::Schedule);
}

void Desk::NotePracticeChanged() {
    if (current_) current_ = practice_->Find(current_->number);
    emit PracticeChanged();
    emit PatientChanged();
}

void Desk::UsePrefs() {
    halvek::StringArray colors(1, std::vector<std::u16string>());
    for (const halvek::Color color : practice_->Colors()) {
        colors.Append(QString::number(color).toStdU16String());
    }
    utils_->InitPrefs(colors, prefs_.FormSkinColor(), prefs_.FormTextColor(), prefs_.FormTopColor(),
                      prefs_.RequiredFieldBackColor());
    calls_.Add("InitPrefs", {prefs_.FormSkinColor(), prefs_.FormTextColor(), prefs_.FormTopColor(),
                             prefs_.RequiredFieldBackColor()});
    utils_->SetCurrentUserPrefs(prefs_);
    calls_.Add("SetCurrentUserPrefs");
}

QString Desk::ReceiptPrinter() const {
    return ToQString(prefs_.PostingFormData());
}

void Desk::UseReceiptPrinter(const QString& description) {
    const QString carried = Carried(TextFormat::Settings, description);
    if (carried == ReceiptPrinter()) return;
    prefs_.PostingFormData(carried);
    SavePrefs();
}

void Desk::SavePrefs() {
    const std::u16string settings = prefs_.GetSettingsString();
    calls_.Add("UserPrefs.GetSettingsString", {}, ToQString(settings));
    practice_->SaveSettings(kUser, ToServer(settings));
    UsePrefs();
    emit PrefsChanged();
}

halvek::MbMsgBoxResult Desk::Ask(const QString& text, halvek::ButtonsChoice buttons,
                                 halvek::IconChoice icon, const QString& title, int seconds) {
    const auto answer = utils_->ShowMsgBox(text, buttons, icon, title, halvek::mbGray, halvek::mb10,
                                           false, seconds);
    calls_.Add("ShowMsgBox", {text, int(buttons), int(icon), title}, int(answer));
    return answer;
}

QString Desk::ChooseDay(QWidget* beside, const QString& shown) {
    const QString today = DayText(practice_->Now().date());
    QString day = ToQString(utils_->ShowCalendarAndCalculateCoordinates(
        halvek::Beside(beside), shown, today, halvek::AsOwnerForm(beside)));
    calls_.Add("ShowCalendarAndCalculateCoordinates", {shown, today}, day);
    return day;
}

std::optional<QString> Desk::ChooseCodes(const QString& table, const QString& chosen,
                                         QWidget* beside, bool byDescription,
                                         const QString& typed) {
    const QString title = ToQString(utils_->GetCodesCollection()->Item(table)->CodeDescription());
    const QString list = FromServer(practice_->List(table, byDescription));
    std::u16string typedCharacters = typed.toStdU16String();
    const QString codes = ToQString(utils_->ShowSelectionGridAndCalculateCoordinates(
        title, list, chosen, halvek::Beside(beside), halvek::AsOwnerForm(beside), typedCharacters,
        true));
    calls_.Add("ShowSelectionGridAndCalculateCoordinates", {title, list, chosen}, codes);
    if (codes == "CANCEL" || codes == chosen) return std::nullopt;
    return codes;
}

std::optional<halvek::Color> Desk::ChooseColor(QWidget* beside) {
    const std::u16string chosen = utils_->ShowColorAndCalculateCoordinates(
        halvek::Beside(beside), halvek::AsOwnerForm(beside));
    calls_.Add("ShowColorAndCalculateCoordinates", {}, ToQString(chosen));
    if (chosen.empty()) return std::nullopt;
    return ToQString(utils_->SplitStr(chosen, u"\t", 1)).toInt();
}

void Desk::Highlight(QWidget* caption, bool on) {
    const auto heading = halvek::AsHeading(caption);
    if (on) {
        utils_->HighlightHeading(heading, false, 0);
    } else {
        const bool isDark = QApplication::palette().color(QPalette::Window).lightness() < 128;
        utils_->UnhighlightHeading(heading, !isDark);
    }
    calls_.Add(on ? "HighlightHeading" : "UnhighlightHeading", {caption->objectName()});
}

QString Desk::SearchBy(int key) {
    if (key < Qt::Key_F1 || key > Qt::Key_F12) return {};
    const auto code = static_cast<std::int16_t>(key - Qt::Key_F1 + kCodeOfF1);
    return ToQString(utils_->ConvertLookupKeyToSearchBy(code));
}

// One act may fail in several statements: they are logged, and the user sees the first.
void Desk::NoteFault(const QString& fault) {
    utils_->LogError(QString("The practice's file: " + fault));
    if (std::exchange(faultIsShown_, true)) return;
    QTimer::singleShot(0, this, [this, fault] {
        Ask("The practice's file cannot be used; nothing was stored.\r\n\r\n" + fault,
            halvek::mbOkOnly, halvek::mbCritical, kTitle);
        faultIsShown_ = false;
    });
}

}  // namespace frontdesk
