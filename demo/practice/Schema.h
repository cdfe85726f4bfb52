// SPDX-License-Identifier: MIT
#pragma once

namespace frontdesk {

/// The tables of a practice's file. Days and times are ISO texts, amounts are cents.
inline constexpr const char* kSchema[] = {
    "CREATE TABLE clock (value TEXT NOT NULL)",
    "CREATE TABLE color (value INTEGER NOT NULL)",
    "CREATE TABLE code_table (name TEXT PRIMARY KEY, title TEXT, lookup INTEGER, menu INTEGER,"
    " report TEXT, sorted TEXT, sorted_then TEXT, entity INTEGER, system INTEGER)",
    "CREATE TABLE code (code_table TEXT NOT NULL, code TEXT NOT NULL, description TEXT NOT NULL,"
    " deleted INTEGER NOT NULL DEFAULT 0, copay INTEGER NOT NULL DEFAULT 0,"
    " PRIMARY KEY (code_table, code)) WITHOUT ROWID",
    "CREATE TABLE reason (code TEXT PRIMARY KEY, description TEXT NOT NULL,"
    " procedure TEXT NOT NULL, color INTEGER NOT NULL)",
    "CREATE TABLE printer (id TEXT PRIMARY KEY, description TEXT NOT NULL, port TEXT NOT NULL)",
    "CREATE TABLE user_right (user TEXT NOT NULL, item TEXT NOT NULL, digit TEXT NOT NULL)",
    "CREATE TABLE setting (user TEXT PRIMARY KEY, text BLOB NOT NULL)",
    "CREATE TABLE patient (number INTEGER PRIMARY KEY, last TEXT NOT NULL, first TEXT NOT NULL,"
    " search TEXT NOT NULL, first_search TEXT NOT NULL, born TEXT NOT NULL, phone TEXT NOT NULL,"
    " address TEXT NOT NULL, insurance TEXT NOT NULL, policy TEXT NOT NULL,"
    " balance INTEGER NOT NULL, alert INTEGER NOT NULL DEFAULT 0)",
    "CREATE TABLE reminder (patient INTEGER NOT NULL REFERENCES patient, tab TEXT NOT NULL,"
    " line TEXT NOT NULL)",
    "CREATE INDEX reminder_of_patient ON reminder (patient)",
    "CREATE TABLE visit (id INTEGER PRIMARY KEY, day TEXT NOT NULL, time TEXT NOT NULL,"
    " patient INTEGER NOT NULL REFERENCES patient, provider TEXT NOT NULL, reason TEXT NOT NULL,"
    " procedures TEXT NOT NULL, state INTEGER NOT NULL)",
    "CREATE INDEX visit_of_day ON visit (day)",
    "CREATE INDEX visit_of_patient ON visit (patient)",
    "CREATE TABLE payment (id INTEGER PRIMARY KEY AUTOINCREMENT,"
    " patient INTEGER NOT NULL REFERENCES patient, posted TEXT NOT NULL, amount INTEGER NOT NULL,"
    " adjustment INTEGER NOT NULL, method TEXT NOT NULL, printer TEXT NOT NULL)",
    "CREATE INDEX payment_of_patient ON payment (patient)",
};

}  // namespace frontdesk
