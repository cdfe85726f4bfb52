// SPDX-License-Identifier: MIT
#pragma once

#include "practice/Records.h"

#include <iterator>

namespace frontdesk {

// What the practice of the sample data is made of. Texts are UTF-8.

inline constexpr const char* kClock = "2024-03-05T08:22:10";  // a Tuesday

struct CodeTableRow {
    const char* name;
    const char* title;
    int lookup;
    int menu;
    const char* report;
    const char* sorted;
    const char* sortedThen;
    int entity;
    int system;
};

inline constexpr CodeTableRow kCodeTables[] = {
    {"INS", "Insurance Companies", 1, 1, "Insurance Company List", "Name", "Code", 0, 0},
    {"PRV", "Providers", 1, 1, "Provider Roster", "Last Name", "Code", 1, 0},
    {"PRC", "Procedures", 1, 1, "Fee Schedule", "Code", "Description", 1, 0},
    {"PAY", "Payment Types", 0, 1, "Payment Type List", "Description", "Code", 0, 0},
};

struct CodeRow {
    const char* table;
    const char* code;
    const char* description;
    int copay = 0;  ///< in cents
    int deleted = 0;
};

inline constexpr CodeRow kCodes[] = {
    {"INS", "AETOS", "Aetos Health Plan", 2500},
    {"INS", "BLUEC", "Blue Canyon Mutual", 3000},
    {"INS", "CEDAR", "Cedar Valley HMO", 1500},
    {"INS", "FRANC", "Assurance Fran\u00E7aise", 2000},
    {"INS", "HARBR", "Harbor Life & Health", 2500},
    {"INS", "MEDA", "State Medical Aid", 0},
    {"INS", "MEDB", "Federal Medical, Part B", 2000},
    {"INS", "NORTH", "Northern Teachers' Fund", 1000},
    {"INS", "OLDFD", "Old Fields Cooperative", 0, 1},
    {"INS", "SELF", "Self-pay", 6000},
    {"INS", "UNION", "Union Railway Plan", 2500},
    {"INS", "VETER", "Veterans' Cover", 0},
    {"PRV", "NGUYEN", "Nguyen, Linh MD"},
    {"PRV", "PATEL", "Patel, Asha MD"},
    {"PRV", "ROSSI", "Rossi, Chiara NP"},
    {"PRV", "SMITH", "Smith, Daniel MD"},
    {"PRV", "DUBOIS", "Dubois, Fran\u00E7ois MD (on leave)"},
    {"PRV", "WEISS", "Wei\u00DF, J\u00F6rg MD (retired)", 0, 1},
    {"PRC", "ECG12", "Electrocardiogram, twelve leads"},
    {"PRC", "LAB01", "Blood drawn, one sample"},
    {"PRC", "LAB02", "Urine test, dip stick"},
    {"PRC", "OV15", "Office visit, 15 minutes"},
    {"PRC", "OV30", "Office visit, 30 minutes"},
    {"PRC", "NP45", "New patient, 45 minutes"},
    {"PRC", "PE30", "Physical examination"},
    {"PRC", "VAC01", "Vaccine given, first"},
    {"PRC", "VAC02", "Vaccine given, each further"},
    {"PAY", "CASH", "Cash"},
    {"PAY", "CHECK", "Check"},
    {"PAY", "CARD", "Card"},
};

inline constexpr int kCodeCount = 5000;

// Procedures with a part of the body each fill the table.
inline constexpr const char* kServices[] = {"Biopsy",
                                            "Brace fitted",
                                            "Cast applied",
                                            "Cast removed",
                                            "Compression wrap",
                                            "Cryotherapy",
                                            "Drainage",
                                            "Dressing",
                                            "Electrotherapy",
                                            "Examination, brief",
                                            "Examination",
                                            "Foreign body",
                                            "Heat therapy",
                                            "Infusion",
                                            "Injection",
                                            "Joint fluid",
                                            "Laceration",
                                            "Light therapy",
                                            "Manipulation",
                                            "Massage",
                                            "MRI",
                                            "MRI, contrast",
                                            "Nerve block",
                                            "Nerve test",
                                            "Photograph",
                                            "Puncture",
                                            "Range of motion",
                                            "Reflex test",
                                            "Repair, simple",
                                            "Repair, layered",
                                            "Scan, CT",
                                            "Skin test",
                                            "Splint",
                                            "Strapping",
                                            "Strength test",
                                            "Suture removed",
                                            "Swab",
                                            "Therapy, first",
                                            "Therapy, next",
                                            "Traction",
                                            "Trigger point",
                                            "Ultrasound",
                                            "Wart removed",
                                            "Wound check",
                                            "Wound closed",
                                            "X-ray, one view",
                                            "X-ray, two views",
                                            "X-ray, three views"};
inline constexpr const char* kSites[] = {
    "ankle",    "arm, lower", "arm, upper", "back, lower", "back, upper", "calf",   "cheek",
    "chest",    "chin",       "ear",        "elbow",       "eyelid",      "finger", "foot",
    "forehead", "hand",       "heel",       "hip",         "jaw",         "knee",   "lip",
    "neck",     "nose",       "palm",       "pelvis",      "rib",         "scalp",  "shin",
    "shoulder", "sole",       "thigh",      "throat",      "thumb",       "toe",    "wrist"};
inline constexpr const char* kSides[] = {"", ", left", ", right"};

struct ReasonRow {
    const char* code;
    const char* description;
    const char* procedure;
    halvek::Color color;
    int share;  ///< of a hundred visits
};

inline constexpr ReasonRow kReasons[] = {
    {"NP", "New patient", "NP45", halvek::Rgb(46, 125, 190), 14},
    {"FU", "Follow-up", "OV15", halvek::Rgb(63, 153, 92), 38},
    {"VA", "Vaccination", "VAC01", halvek::Rgb(142, 99, 190), 14},
    {"PH", "Physical", "PE30", halvek::Rgb(24, 148, 155), 14},
    {"UR", "Urgent", "OV30", halvek::Rgb(208, 92, 60), 8},
    {"LA", "Laboratory", "LAB01", halvek::Rgb(196, 150, 36), 12},
};

// The practice's palette; the library does not offer the last two.
inline constexpr halvek::Color kPalette[] = {
    halvek::Rgb(46, 125, 190),  halvek::Rgb(63, 153, 92),   halvek::Rgb(142, 99, 190),
    halvek::Rgb(24, 148, 155),  halvek::Rgb(208, 92, 60),   halvek::Rgb(196, 150, 36),
    halvek::Rgb(196, 76, 118),  halvek::Rgb(94, 112, 201),  halvek::Rgb(124, 140, 50),
    halvek::Rgb(150, 108, 78),  halvek::Rgb(96, 112, 128),  halvek::Rgb(178, 58, 58),
    halvek::Rgb(31, 84, 132),   halvek::Rgb(38, 104, 62),   halvek::Rgb(96, 62, 134),
    halvek::Rgb(16, 98, 104),   halvek::Rgb(147, 60, 36),   halvek::Rgb(132, 98, 18),
    halvek::Rgb(134, 46, 78),   halvek::Rgb(58, 72, 140),   halvek::Rgb(80, 92, 28),
    halvek::Rgb(100, 70, 48),   halvek::Rgb(58, 68, 80),    halvek::Rgb(112, 32, 32),
    halvek::Rgb(196, 221, 240), halvek::Rgb(204, 230, 212), halvek::Rgb(226, 214, 240),
    halvek::Rgb(200, 230, 232), halvek::Rgb(246, 216, 206), halvek::Rgb(246, 232, 196),
    halvek::Rgb(244, 212, 224), halvek::Rgb(255, 248, 214), halvek::Rgb(255, 255, 255),
    halvek::Rgb(0, 0, 0),       halvek::Rgb(128, 128, 128),
};

struct PrinterRow {
    const char* id;
    const char* description;
    const char* port;
};

inline constexpr PrinterRow kPrinters[] = {
    {"S", "Spool queue", "LPT1"},    {"2", "Front office laser", "LPT2"},
    {"7", "Label printer", "COM2"},  {"8", "Statements: back office", "LPT3"},
    {"9", "Export to disk", "FILE"},
};

struct RightRow {
    const char* item;
    const char* digit;  ///< 8 to read, 4 to add, 2 to modify, 1 to delete
};

inline constexpr const char* kUser = "dsmith";
inline constexpr halvek::Color kRequiredField = halvek::Rgb(218, 234, 250);
inline constexpr RightRow kRights[] = {
    {"PATIENTS", "E"},  {"SCHEDULE", "F"},    {"PAYMENTS", "C"},
    {"WRITEOFFS", "8"}, {"PREFERENCES", "A"}, {"ERRORLOG", "8"},
};

struct PatientRow {
    int number;
    const char* last;
    const char* first;
    const char* born;
    const char* insurance;
    int balance;  ///< in cents
};

inline constexpr int kFirstNumber = 10001;
inline constexpr int kPatientCount = 2000;

/// The patient who is due when the client opens.
inline constexpr int kDuePatient = 10117;

// These come to the desk on the first day, in this order.
inline constexpr PatientRow kKnownPatients[] = {
    {10042, "Abbott", "Ann", "1958-11-02", "MEDB", 0},
    {kDuePatient, "Garc\u00EDa", "Luc\u00EDa", "1986-07-19", "AETOS", 4000},
    {10318, "O'Neill", "Brian", "1971-01-30", "HARBR", 6250},
    {10204, "Dubois", "Fran\u00E7ois", "1949-05-08", "FRANC", 0},
    {10455, "J\u00F3nsd\u00F3ttir", "\u00C6sa", "1994-12-24", "CEDAR", 1500},
    {10520, "Wei\u00DF", "J\u00F6rg", "1963-03-17", "UNION", 0},
    {10611, "D'Angelo", "Sof\u00EDa", "2015-09-01", "NORTH", 0},
    {10702, "Nu\u00F1ez", "Mar\u00EDa Jos\u00E9", "1979-04-11", "MEDA", 0},
};

struct ReminderRow {
    int patient;
    bool alert;
    const char* tab;
    const char* line;
};

inline constexpr ReminderRow kReminders[] = {
    {kDuePatient, true, "Allergies", "-Penicillin"},
    {kDuePatient, true, "Allergies", "P-Latex, gloves only"},
    {kDuePatient, true, "Balance", "-$40.00 open since January"},
    {kDuePatient, true, "Balance", "Pays $40.00 a month"},
    {kDuePatient, true, "Insurance", "New card in February"},
    {kDuePatient, true, "Insurance", "Referral needed for specialists"},
    {10318, true, "Balance", "-Check returned in December"},
    {10318, true, "Balance", "Cash or card only"},
    {10204, false, "Appointments", "P-Fran\u00E7ois prefers afternoons"},
    {10204, false, "Language", "French, interpreter for forms"},
    {10455, false, "Names", "\u00C6sa is called \u201C\u00E6sa\u201D on old forms"},
    {10520, false, "Names", "Wei\u00DF is Weiss on the insurance card"},
};

struct HistoryRow {
    const char* day;
    const char* time;
    const char* procedures;
    int amount;  ///< in cents
    const char* method;
};

/// Earlier visits of the patient who is due
inline constexpr HistoryRow kHistory[] = {
    {"2023-11-07", "09:40", "NP45,LAB01", 2500, "Card"},
    {"2023-12-05", "10:20", "OV30", 4000, "Card"},
    {"2024-01-09", "09:00", "OV15,ECG12", 4000, "Check"},
    {"2024-02-06", "08:40", "OV15", 4000, "Cash"},
};

inline constexpr const char* kLastNames[] = {
    "Adams",          "Alvarez",       "Baker",   "B\u00E9langer", "Brown",   "Carter",
    "Casta\u00F1eda", "Chen",          "Clark",   "Cohen",         "Cooper",  "Cruz",
    "Davis",          "Diaz",          "Edwards", "Evans",         "Fischer", "Flores",
    "Foster",         "Gonz\u00E1lez", "Gray",    "Green",         "Hall",    "Harris",
    "Hern\u00E1ndez", "Hill",          "Howard",  "Hughes",        "Ibrahim", "Jackson",
    "Johnson",        "Jones",         "Kelly",   "Kim",           "King",    "Lee",
    "Lewis",          "L\u00F3pez",    "Lund",    "Martin",        "McKay",   "Miller",
    "Mitchell",       "Moore",         "Morgan",  "M\u00FCller",   "Murphy",  "Nelson",
    "O'Brien",        "O'Hara",        "Okafor",  "Ortiz",         "Parker",  "Peterson",
    "Pham",           "Phillips",      "Price",   "Quinn",         "Reed",    "Rivera",
    "Roberts",        "Rogers",        "Ruiz",    "S\u00E1nchez",  "Scott",   "Sharma",
    "Silva",          "Singh",         "Stewart", "Str\u00F8m",    "Taylor",  "Thomas",
    "Torres",         "Turner",        "Vargas",  "Walker",        "Ward",    "Watson",
    "White",          "Wilson",        "Wright",  "Yilmaz",        "Young",   "Zhang"};
inline constexpr const char* kFirstNames[] = {
    "Adam",       "Agnes",  "Alice",  "Amir",       "Andr\u00E9", "Anna",   "Ben",
    "Bj\u00F6rn", "Carla",  "Carlos", "Chlo\u00E9", "Clara",      "Daniel", "David",
    "Diana",      "Edith",  "Elena",  "Emma",       "Eric",       "Eva",    "Felix",
    "Grace",      "Hannah", "Hugo",   "Ines",       "Isaac",      "Jane",   "Jos\u00E9",
    "Julia",      "Karl",   "Kate",   "Laura",      "Leo",        "Linda",  "Louis",
    "Maria",      "Mark",   "Mei",    "Nina",       "Noah",       "Olga",   "Omar",
    "Oscar",      "Paula",  "Peter",  "Rachel",     "Ren\u00E9e", "Rosa",   "Samuel",
    "Sarah",      "Simon",  "Sonia",  "Theo",       "Tom\u00E1s", "Vera",   "Victor",
    "Walter",     "Yasmin", "Zoe"};
inline constexpr const char* kStreets[] = {"Oak Street",  "Mill Lane",     "Harbor Road",
                                           "Park Avenue", "Church Street", "Lake Drive",
                                           "Hill Road",   "Station Square"};

// Three weeks of working days, the first before the practice's today
inline constexpr const char* kFirstDay = "2024-02-27";
inline constexpr int kDays = 15;
inline constexpr int kVisitsPerProvider = 10;
inline constexpr const char* kProviders[] = {"NGUYEN", "PATEL", "ROSSI", "SMITH"};
// The starts of visits, 20 minutes each: hours in which the practice is open
inline constexpr int kOpenHours[] = {8, 9, 10, 11, 13, 14, 15, 16};

}  // namespace frontdesk
