#ifndef TILL_STORAGE_SCHEMA_H
#define TILL_STORAGE_SCHEMA_H

#include <array>

//! What a database of the till is made of, and how one is recognised.
namespace till::schema {

constexpr int applicationId = 0x54494C4C; //!< "TILL"
constexpr int version = 1;

//! Make the tables of an empty database, in this order.
constexpr std::array statements{
    "CREATE TABLE receipts ("
    " id INTEGER PRIMARY KEY,"
    " type INTEGER NOT NULL,"
    " state INTEGER NOT NULL CHECK (state BETWEEN 0 AND 3),"
    " orderNumber TEXT NOT NULL,"
    " nextPosnum INTEGER NOT NULL)",
    "CREATE INDEX unfinished ON receipts (id) WHERE state < 2",
    "CREATE TABLE positions ("
    " receipt INTEGER NOT NULL REFERENCES receipts,"
    " place INTEGER NOT NULL,"
    " posnum INTEGER NOT NULL,"
    " code TEXT NOT NULL,"
    " name TEXT NOT NULL,"
    " price INTEGER NOT NULL,"
    " taraMode INTEGER NOT NULL,"
    " taraCapacity REAL NOT NULL,"
    " pack REAL NOT NULL,"
    " unit TEXT NOT NULL,"
    " count REAL NOT NULL,"
    " base REAL NOT NULL,"
    " groupId TEXT NOT NULL,"
    " stornoed INTEGER NOT NULL,"
    " PRIMARY KEY (receipt, place)) WITHOUT ROWID",
    "CREATE TABLE softChecks ("
    " receipt INTEGER NOT NULL REFERENCES receipts,"
    " place INTEGER NOT NULL,"
    " number TEXT NOT NULL,"
    " PRIMARY KEY (receipt, place)) WITHOUT ROWID",
    "CREATE TABLE pluginData ("
    " receipt INTEGER NOT NULL REFERENCES receipts,"
    " plugin TEXT NOT NULL,"
    " key TEXT NOT NULL,"
    " value BLOB NOT NULL,"
    " types TEXT NOT NULL,"
    " digest BLOB NOT NULL,"
    " PRIMARY KEY (receipt, plugin, key))",
    "CREATE TABLE journal ("
    " id INTEGER PRIMARY KEY,"
    " receipt INTEGER NOT NULL REFERENCES receipts,"
    " depth INTEGER NOT NULL,"
    " kind TEXT NOT NULL,"
    " json BLOB NOT NULL)",
    "CREATE INDEX journalOfReceipt ON journal (receipt, id)",
};

} // namespace till::schema

#endif // TILL_STORAGE_SCHEMA_H
