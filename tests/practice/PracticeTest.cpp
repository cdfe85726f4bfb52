// SPDX-License-Identifier: MIT
#include "practice/Practice.h"
#include "practice/ServerText.h"
#include "tests/TemporaryFolder.h"

#include <halvekutils/core/Utils.h>
#include <halvekutils/prefs/ReminderDefinition.h>
#include <halvekutils/qt/QtText.h>

#include <QCoreApplication>
#include <QProcess>
#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <thread>
#include <tuple>

using namespace frontdesk;
using halvek::FromServer;
using halvek::ToQString;

namespace {

constexpr char kPostWord[] = "--post";

class PracticeTest : public testing::Test {
  protected:
    QString Path(const char* name) const { return QString::fromStdString(folder_ / name); }
    std::unique_ptr<Practice> Open(const char* name) { return Practice::Open(Path(name), fault_); }
    /// A file that Front Desk made, all of it in one piece.
    std::string MadeFile() {
        Open("made.db").reset();
        return halvek::ReadFile(folder_ / "made.db");
    }

    halvek::TemporaryFolder folder_;
    QString fault_;
};

TEST(ServerText, ReplacesExactlyTheLettersThatAFormatSeparatesBy) {
    constexpr std::tuple<TextFormat, const char16_t*, const char16_t*> kRows[] = {
        {TextFormat::Reminders, u"François owes £5", u"Francois owes GBP 5"},
        {TextFormat::Reminders, u"Æsa, æsa, Weiß", u"Æsa, aesa, Weiß"},
        {TextFormat::Codes, u"Encyclopædia|Français", u"Encyclopaedia/Français"},
        {TextFormat::Rights, u"RELEVæS", u"RELEVaeS"},
        {TextFormat::Settings, u"Weiß, François", u"Weiss, François"},
        {TextFormat::Selection, u"Statements:\tæçß", u"Statements; æçß"},
        {TextFormat::Printers, u"Statements: back", u"Statements; back"},
    };
    for (const auto& [format, value, carried] : kRows) {
        EXPECT_EQ(Carried(format, QString::fromUtf16(value)), QString::fromUtf16(carried));
    }
}

TEST_F(PracticeTest, AnswersInTheTextsThatTheLibraryReads) {
    const auto practice = Open("desk.db");
    ASSERT_NE(practice, nullptr) << qPrintable(fault_);
    const auto utils = halvek::Utils::Create();
    utils->InitUtils(Path("log"), u"Front Desk", u"", false, u"");
    utils->BuildCodesCollection(FromServer(practice->Codes()));
    EXPECT_EQ(utils->GetCodesCollection()->Item(u"ins")->SortByList(), u"Name\u00E6Code");
    utils->BuildSecurityCollection(FromServer(practice->Rights(kUser)));
    const auto rights = utils->GetSecurityItemsCollection();
    EXPECT_TRUE(rights->Item(u"PAYMENTS")->AllowAdd());
    EXPECT_FALSE(rights->Item(u"WRITEOFFS")->AllowAdd());
    utils->InitServerTime(FromServer(practice->Time()));
    EXPECT_EQ(halvek::DateOnlyText(utils->ServerTime()), u"03/05/2024");

    halvek::ReminderDefinition due;
    due.PopulateReminder(u"10117", FromServer(practice->Reminders(kDuePatient)));
    EXPECT_TRUE(due.SoundAlert() && due.HasPatientSpecificData());
    EXPECT_EQ(due.Tabs(), halvek::StringArray(1, {u"Allergies", u"Balance", u"Insurance"}));

    // In Windows-1252: one byte a letter, and the list's own separators only
    const QByteArray insurances = practice->List("INS", false);
    EXPECT_TRUE(insurances.contains("\tAssurance Fran\347aise\t0:"));
    EXPECT_TRUE(insurances.contains(":OLDFD\tOld Fields Cooperative\t1:"));
}

TEST_F(PracticeTest, FindsPatientsAsPeopleTypeThem) {
    const auto practice = Open("desk.db");
    ASSERT_NE(practice, nullptr) << qPrintable(fault_);
    for (const char16_t* typed :
         {u"francois", u"Dubois, Fran", u"æsa", u"weiß", u"WEISS", u"o'n", u"10117"}) {
        EXPECT_FALSE(practice->Search(QString::fromUtf16(typed), 5).empty())
            << qPrintable(QString::fromUtf16(typed));
    }
    EXPECT_TRUE(practice->Search("%", 5).empty());
}

TEST_F(PracticeTest, KeepsWhatTheDeskDidAfterARestart) {
    auto practice = Open("desk.db");
    const QDate today = practice->Now().date();
    Visit due;
    for (const Visit& visit : practice->Visits(today)) {
        if (visit.state == VisitState::Due) due = visit;
    }
    EXPECT_EQ(due.patient, kDuePatient);
    EXPECT_TRUE(practice->CheckIn({due.id, "AETOS", "ROSSI", "OV15,ECG12", today.addDays(14)}));
    EXPECT_EQ(practice->Find(kDuePatient)->balance, 6500);
    EXPECT_TRUE(practice->Post({kDuePatient, {}, 2500, -500, "Card", "Front office laser"}));
    EXPECT_TRUE(practice->SetReasonColor("FU", 255));
    EXPECT_TRUE(practice->SaveSettings(kUser, "a\337b"));
    practice.reset();

    practice = Open("desk.db");
    EXPECT_EQ(practice->Find(kDuePatient)->balance, 3500);
    const auto payments = practice->Payments(kDuePatient);
    ASSERT_FALSE(payments.empty());
    EXPECT_EQ(payments.front().amount, 2500);
    const auto visits = practice->VisitsOf(kDuePatient);
    ASSERT_GE(visits.size(), 2);
    EXPECT_EQ(visits[0].day, today.addDays(14));
    EXPECT_EQ(visits[1].state, VisitState::Paid);
    EXPECT_EQ(visits[1].procedures, "OV15,ECG12");
    EXPECT_EQ(practice->Reasons()[1].color, 255);
    EXPECT_EQ(practice->Settings(kUser), "a\337b");
}

TEST_F(PracticeTest, RefusesDamagedAndForeignFilesAndLeavesThemAsTheyAre) {
    std::string damaged = MadeFile();
    ASSERT_GT(damaged.size(), 100000u);
    for (std::size_t i = 8192; i < damaged.size(); i += 4096) damaged.replace(i, 64, 64, '\xAA');
    // The application's mark in the header, and a journal that opening a practice's would change
    const std::string foreign = MadeFile().replace(68, 4, "ABCD").replace(18, 2, "\1\1");
    const std::string newer = MadeFile().replace(60, 4, "\0\0\0\x7", 4);
    const std::pair<const char*, std::string> kFiles[] = {
        {"is damaged", damaged},
        {"is damaged", MadeFile().substr(0, 50000)},
        {"belongs to another program", foreign},
        {"was made by another version", newer},
        {"is not the file of a practice", "Dear diary"},
        {"is not the file of a practice", std::string(4096, '\0')}};
    for (const auto& [reason, bytes] : kFiles) {
        halvek::WriteFile(folder_ / "other.db", bytes);
        EXPECT_EQ(Open("other.db"), nullptr) << reason;
        EXPECT_TRUE(fault_.startsWith(Path("other.db"))) << qPrintable(fault_);
        EXPECT_TRUE(fault_.contains(reason)) << qPrintable(fault_);
        EXPECT_TRUE(halvek::ReadFile(folder_ / "other.db") == bytes) << reason;
    }
    EXPECT_EQ(Open("."), nullptr);
    EXPECT_EQ(Open("missing/folder.db"), nullptr);
}

TEST_F(PracticeTest, StoresNothingOfAnActThatFails) {
    const auto practice = Open("desk.db");
    const auto before = practice->Payments(kDuePatient).size();
    QString reported;
    practice->OnFault([&](const QString& fault) { reported = fault; });
    EXPECT_FALSE(practice->Post({1, {}, 2500, 0, "Card", ""}));  // there is no patient 1
    EXPECT_FALSE(reported.isEmpty());
    EXPECT_TRUE(practice->Post({kDuePatient, {}, 100, 0, "Card", ""}));
    EXPECT_EQ(practice->Payments(kDuePatient).size(), before + 1);
}

/// Kills clients that post payments, each at a random moment, the first while they make the
/// practice. Every payment that was confirmed is there, balances agree, and the file opens.
TEST_F(PracticeTest, LosesNoPaymentWhenItsClientIsKilledAtRandomMoments) {
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    qint64 posted = 0;
    for (int kill = 0; kill < 50; ++kill) {
        QProcess client;
        client.start(QCoreApplication::applicationFilePath(), {kPostWord, Path("desk.db")});
        ASSERT_TRUE(client.waitForStarted());
        if (kill % 5 != 0) client.waitForReadyRead(20000);  // the others die while they start
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 60000));
        client.kill();
        ASSERT_TRUE(client.waitForFinished());
        posted += client.readAllStandardOutput().count('\n');

        const auto practice = Open("desk.db");
        ASSERT_NE(practice, nullptr) << qPrintable(fault_);
        qint64 sum = 0;
        qint64 found = 0;
        for (const Payment& payment : practice->Payments(kDuePatient)) {
            if (payment.method != "Test") continue;
            sum += payment.amount;
            ++found;
        }
        ASSERT_GE(found, posted);
        ASSERT_LE(found, posted + 1);  // stored, but killed before it could be confirmed
        ASSERT_EQ(practice->Find(kDuePatient)->balance, 4000 - sum);
        posted = found;
    }
    EXPECT_GT(posted, 50);
}

int PostForever(const QString& path) {
    QString fault;
    const auto practice = Practice::Open(path, fault);
    if (practice == nullptr) return 1;
    while (practice->Post({kDuePatient, {}, 1, 0, "Test", ""})) {
        std::puts("posted");
        std::fflush(stdout);
    }
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    if (argc == 3 && QString(argv[1]) == kPostWord) return PostForever(argv[2]);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
