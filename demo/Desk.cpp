// SPDX-License-Identifier: MIT
#include "Desk.h"

#include "DataFolder.h"
#include "Texts.h"
#include "practice/ServerText.h"

#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QApplication>
#include <QPalette>
#include <QTimer>

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

constexpr char kHidePaid[] = "hide paid";
constexpr char kTitle[] = "Front Desk";

bool IsDarkDesktop() {
    return QApplication::palette().color(QPalette::Window).lightness() < 128;
}

}  // namespace

Desk::Desk(std::shared_ptr<halvek::Utils> utils, CallLog& calls, std::unique_ptr<Practice> practice)
    : utils_(std::move(utils)),
      calls_(calls),
      practice_(std::move(practice)),
      accounts_(utils_, calls_) {
    if (utils_->DBG()) connect(&calls_, &CallLog::Added, this, &Desk::Debug);
    practice_->OnFault([this](const QString& fault) { NoteFault(fault); });
    ReadSystemPrefs();
    ReadReferenceData();
    ReadPrefs();
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
               {kHighlightBack, kHighlightFore, QString("-"), kColumnAdjust, kScrollBarWidth});
    utils_->InitHelp(HelpFile());
    calls_.Add("InitHelp", {HelpFile()});
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

void Desk::FinishStart() {
    const QString printers = FromServer(practice_->Printers());
    utils_->ClearPrintersCollection();
    utils_->BuildPrintersCollection(printers);
    calls_.Add("BuildPrintersCollection", {printers});
    emit PrintersKnown();
}

QString Desk::User() const {
    return kUser;
}

bool Desk::May(const QString& item, Right right) {
    const auto rights = utils_->GetSecurityItemsCollection()->Item(item);
    switch (right) {
        case Right::Read:
            return rights->AllowRead();
        case Right::Add:
            return rights->AllowAdd();
        case Right::Modify:
            return rights->AllowModify();
        case Right::Delete:
            return rights->AllowDelete();
    }
    return false;
}

std::optional<Visit> Desk::VisitOfToday() {
    if (!current_) return std::nullopt;
    for (const Visit& visit : practice_->VisitsOf(current_->number)) {
        if (visit.day == practice_->Now().date() && visit.state != VisitState::Paid) return visit;
    }
    return std::nullopt;
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

void Desk::OpenAccount(int patient, ScreenId screen) {
    accounts_.Add(patient);
    Select(patient);
    emit GoTo(screen);
}

void Desk::CloseAccount() {
    if (!current_) return;
    accounts_.Remove(current_->number);
    const QList<int> left = accounts_.Numbers();
    if (!left.isEmpty()) return OpenAccount(left.last(), ScreenId::Account);
    emit GoTo(ScreenId::Schedule);
}

void Desk::CloseAllAccounts() {
    accounts_.Clear();
    current_.reset();
    emit PatientChanged();
    emit GoTo(ScreenId::Schedule);
}

void Desk::NotePracticeChanged() {
    if (current_) current_ = practice_->Find(current_->number);
    emit PracticeChanged();
    emit PatientChanged();
}

void Desk::ReadPrefs() {
    const QString settings = FromServer(practice_->Settings(kUser));
    prefs_->PopulateSettings(settings);
    calls_.Add("UserPrefs.PopulateSettings", {settings});
    UsePrefs();
}

void Desk::UsePrefs() {
    halvek::StringArray colors(1, std::vector<std::u16string>());
    for (const halvek::Color color : practice_->Colors()) {
        colors.Append(QString::number(color).toStdU16String());
    }
    utils_->InitPrefs(colors, prefs_->FormSkinColor(), prefs_->FormTextColor(),
                      prefs_->FormTopColor(), prefs_->RequiredFieldBackColor());
    calls_.Add("InitPrefs", {prefs_->FormSkinColor(), prefs_->FormTextColor(),
                             prefs_->FormTopColor(), prefs_->RequiredFieldBackColor()});
    utils_->SetCurrentUserPrefs(*prefs_);
    calls_.Add("SetCurrentUserPrefs");
}

bool Desk::ShowsPaidVisits() const {
    return prefs_->ScheduleFormData() != QString(kHidePaid).toStdU16String();
}

void Desk::ShowPaidVisits(bool show) {
    prefs_->ScheduleFormData(show ? QString() : QString(kHidePaid));
}

QString Desk::ReceiptPrinter() const {
    return ToQString(prefs_->PostingFormData());
}

void Desk::UseReceiptPrinter(const QString& description) {
    const QString carried = ServerText(TextFormat::Settings).Carried(description);
    if (carried == ReceiptPrinter()) return;
    prefs_->PostingFormData(carried);
    SavePrefs();
}

bool Desk::SavePrefs() {
    const std::u16string settings = prefs_->GetSettingsString();
    calls_.Add("UserPrefs.GetSettingsString", {}, ToQString(settings));
    const bool saved = practice_->SaveSettings(kUser, ToServer(settings));
    UsePrefs();
    emit PrefsChanged();
    return saved;
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
    const QString day = ToQString(utils_->ShowCalendarAndCalculateCoordinates(
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
    std::u16string color;
    std::u16string place;
    utils_->SplitLeftRight(chosen, u"\t", color, place);
    return ToQString(color).toInt();
}

QString Desk::Calculate(const QString& amount) {
    const QString result = ToQString(utils_->Calculate(amount));
    calls_.Add("Calculate", {amount}, result);
    return result;
}

void Desk::ShowHelp(int context) {
    const bool found = utils_->ShowHelp(0, context);
    calls_.Add("ShowHelp", {0, context}, found);
}

void Desk::MakeAmount(QLineEdit* line) {
    halvek::MakeCurrencyField(line);
    calls_.Add("MakeCurrencyField", {line->accessibleName()});
}

void Desk::MakeSignedAmount(QLineEdit* line) {
    halvek::MakeSignedCurrencyField(line);
    calls_.Add("MakeSignedCurrencyField", {line->accessibleName()});
}

void Desk::Highlight(QWidget* caption, bool on) {
    const auto heading = halvek::AsHeading(caption);
    if (on) {
        utils_->HighlightHeading(heading, false, 0);
    } else {
        utils_->UnhighlightHeading(heading, !IsDarkDesktop());
    }
    calls_.Add(on ? "HighlightHeading" : "UnhighlightHeading", {caption->objectName()});
}

QString Desk::SearchBy(int key) {
    if (key < Qt::Key_F1 || key > Qt::Key_F12) return {};
    const auto code = static_cast<std::int16_t>(key - Qt::Key_F1 + kCodeOfF1);
    return ToQString(utils_->ConvertLookupKeyToSearchBy(code));
}

void Desk::Debug(const QString& line) {
    utils_->ShowInDebug(line);
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
