// SPDX-License-Identifier: MIT
#include "practice/Practice.h"
#include "practice/ServerText.h"

#include <halvekutils/core/Utils.h>
#include <halvekutils/prefs/ReminderDefinition.h>
#include <halvekutils/qt/QtText.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <thread>

using namespace frontdesk;
using halvek::FromServer;
using halvek::ToQString;

namespace {

constexpr char kPostWord[] = "--post";

class PracticeTest : public testing::Test {
  protected:
    QString Path(const QString& name) const { return folder_.filePath(name); }
    std::unique_ptr<Practice> Open(const QString& name) {
        return Practice::Open(name == ":memory:" ? name : Path(name), fault_);
    }
    void Write(const QString& name, const QByteArray& bytes) const {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray Read(const QString& name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// A file that Front Desk made, all of it in one piece.
    QByteArray MadeFile() {
        Open("made.db").reset();
        return Read("made.db");
    }

    QTemporaryDir folder_;
    QString fault_;
};

struct CarriedRow {
    TextFormat format;
    const char16_t* value;
    const char16_t* carried;
};

TEST(ServerText, ReplacesExactlyTheLettersThatAFormatSeparatesBy) {
    constexpr CarriedRow kRows[] = {
        {TextFormat::Reminders, u"François owes £5", u"Francois owes GBP 5"},
        {TextFormat::Reminders, u"Æsa, æsa, Weiß", u"Æsa, aesa, Weiß"},
        {TextFormat::Codes, u"Encyclopædia|Français", u"Encyclopaedia/Français"},
        {TextFormat::Rights, u"RELEVæS", u"RELEVaeS"},
        {TextFormat::Settings, u"Weiß, François", u"Weiss, François"},
        {TextFormat::Selection, u"Statements:\tæçß", u"Statements; æçß"},
        {TextFormat::Printers, u"Statements: back", u"Statements; back"},
    };
    for (const CarriedRow& row : kRows) {
        EXPECT_EQ(Carried(row.format, QString::fromUtf16(row.value)),
                  QString::fromUtf16(row.carried));
    }
}

TEST_F(PracticeTest, AnswersInTheTextsThatTheLibraryReads) {
    const auto practice = Open(":memory:");
    ASSERT_NE(practice, nullptr) << qPrintable(fault_);
    const auto utils = halvek::Utils::Create();
    utils->InitUtils(Path("log"), u"Front Desk", u"", false, u"");
    utils->BuildCodesCollection(FromServer(practice->Codes()));
    EXPECT_EQ(utils->GetCodesCollection()->Item(u"ins")->SortByList(), u"Name\u00E6Code");
    utils->BuildSecurityCollection(FromServer(practice->Rights(kUser)));
    const auto rights = utils->GetSecurityItemsCollection();
    EXPECT_TRUE(rights->Item(u"PAYMENTS")->AllowAdd());
    EXPECT_FALSE(rights->Item(u"WRITEOFFS")->AllowAdd());
    utils->SpecialMode(u"printerlistold");
    utils->ClearPrintersCollection();
    utils->BuildPrintersCollection(FromServer(practice->Printers()));
    EXPECT_EQ(utils->GetPrintersCollection()->Item(4)->PrinterDescription(),
              u"Statements; back office");
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

TEST_F(PracticeTest, HoldsTheWholeSample) {
    const auto practice = Open(":memory:");
    ASSERT_NE(practice, nullptr) << qPrintable(fault_);
    EXPECT_EQ(practice->Visits(practice->Now().date()).size(), 40);
    EXPECT_EQ(practice->Visits({2024, 3, 18}).size(), 40);
    qsizetype codes = 0;
    for (const char* table : {"INS", "PRV", "PRC", "PAY"}) {
        codes += practice->List(table, true).count(':') - 1;
    }
    EXPECT_EQ(codes, 5000);
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
    QByteArray damaged = MadeFile();
    ASSERT_GT(damaged.size(), 100000);
    for (qsizetype i = 8192; i < damaged.size(); i += 4096)
        damaged.replace(i, 64, QByteArray(64, '\xAA'));
    QByteArray foreign = MadeFile();
    foreign.replace(68, 4, "ABCD");  // the application's mark in the header
    QByteArray newer = MadeFile();
    newer.replace(60, 4, QByteArray("\0\0\0\x7", 4));
    const std::pair<const char*, QByteArray> kFiles[] = {
        {"is damaged", damaged},
        {"is damaged", MadeFile().first(50000)},
        {"belongs to another program", foreign},
        {"was made by another version", newer},
        {"is not the file of a practice", "Dear diary"},
        {"is not the file of a practice", QByteArray(4096, '\0')}};
    for (const auto& [reason, bytes] : kFiles) {
        Write("other.db", bytes);
        EXPECT_EQ(Open("other.db"), nullptr) << reason;
        EXPECT_TRUE(fault_.startsWith(Path("other.db"))) << qPrintable(fault_);
        EXPECT_TRUE(fault_.contains(reason)) << qPrintable(fault_);
        EXPECT_EQ(Read("other.db"), bytes) << reason;
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
        const auto payments = practice->Payments(kDuePatient);
        qint64 sum = 0;
        qint64 found = 0;
        for (const Payment& payment : payments) {
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
