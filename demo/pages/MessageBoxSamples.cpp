// SPDX-License-Identifier: MIT
#include "pages/MessageBoxSamples.h"

namespace frontdesk {

using namespace halvek;

namespace {

constexpr int kLongTextLines = 60;
constexpr int kHugeLength = 100'000;

QString LongText() {
    QString text = "These visits have no diagnosis yet:\r\n";
    for (int i = 1; i <= kLongTextLines; ++i) {
        text += QString("\r\nVisit %1 of 03/%2/2004, room %3")
                    .arg(1000 + i)
                    .arg(i % 28 + 1, 2, 10, QChar('0'))
                    .arg(i % 9 + 1);
    }
    return text;
}

QString WideText() {
    return QString("The claim was refused because the plan does not cover this service. ")
        .repeated(12);
}

QString HugeText() {
    const QString line = "Payment posted to the account; the balance is carried forward.\r\n";
    return line.repeated(kHugeLength / line.size() + 1).first(kHugeLength);
}

QString Columns() {
    const struct {
        const char *code, *description;
        double fee;
    } rows[] = {
        {"99213", "Office visit, established", 92.5},
        {"99214", "Office visit, extended", 136},
        {"36415", "Blood drawn", 9.75},
        {"81002", "Urine test, dip stick", 7},
        {"90471", "Vaccine given", 24.2},
    };
    QString text = QString("%1%2%3").arg("Code", -8).arg("Description", -28).arg("Fee", 10);
    text += "\r\n" + QString(46, '-');
    for (const auto& row : rows) {
        text += QString("\r\n%1%2%3")
                    .arg(row.code, -8)
                    .arg(row.description, -28)
                    .arg(row.fee, 10, 'f', 2);
    }
    return text;
}

}  // namespace

std::vector<BoxSample> ButtonSetSamples() {
    const BoxArguments samples[] = {
        {"The appointment was saved.", mbOkOnly, mbInformation, "Appointments"},
        {"Print three statements for this account?", mbOkCancel, mbPrint, "Statements"},
        {"The claim file could not be sent.\r\n\r\nThe line to the clearinghouse was busy.",
         mbAbortRetryIgnore, mbCritical, "Claims"},
        {"This visit has changed. Post it before you close the window?", mbYesNoCancel, mbQuestion,
         "Visits"},
        {"Delete the visit of 03/07/2004?\r\n\r\nThis cannot be undone.", mbYesNo, mbTrash,
         "Visits"},
        {"Another desk is changing this account.", mbRetryCancel, mbExclamation, "Accounts"},
        {"The referral has unsaved changes.", mbSaveDontSave, mbQuestion, "Referrals"},
        {"The patient is due for a recall in May.", mbNoButtons, mbReminder, "Recalls"},
        {"The insurance ended on 02/29/2004. Bill it all the same?", mbYesHelp,
         mbExclamationCritical, "Insurance"},
        {"Two patients have this name and birth date. Merge their charts?", mbYesNoHelp, mbQuestion,
         "Patients"},
        {"This procedure needs a modifier.", mbOkHelp, mbExclamation, "Charges"},
    };
    std::vector<BoxSample> named;
    for (const BoxArguments& sample : samples) {
        named.push_back({"Buttons: " + NameOf(kButtonsNames, sample.buttons), sample});
    }
    return named;
}

std::vector<BoxSample> SpecialSamples() {
    return {
        {"Long text", {LongText(), mbOkCancel, mbExclamation, "Visits"}},
        {"Wide text", {WideText(), mbOkHelp, mbInformation, "Claims"}},
        {"100,000 characters", {HugeText(), mbYesNo, mbQuestion, "Payments", mbSkinColor}},
        {"Columns in fixed pitch", {Columns(), mbOkOnly, mbPrint, "Fees", mbWhite, mb5}},
        {"Bold, large",
         {"Room 4 is ready.", mbOkOnly, mbReminder, "Rooms", mbSkinColor, mb14, true}},
        {"Countdown",
         {"The schedule is about to close.", mbOkCancel, mbReminder, "Schedule", mbGray, mb10,
          false, 30}},
        {"Markup as typed",
         {"<b>Lab & Pharmacy</b> &amp; [*] is text,\r\nnot <i>markup</i>.", mbOkOnly, mbNoIcon,
          "Lab & Pharmacy [*] <b>"}},
    };
}

}  // namespace frontdesk
