#pragma once

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QByteArray>
#include <QString>

#include "desktop.h"

/// Opens a database with the bare engine.
inline sqlite3* Open(const QString& path) {
    sqlite3* db = nullptr;
    Check(sqlite3_open_v2(path.toUtf8(), &db, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK, "sqlite3_open");
    return db;
}

/// Runs a statement on the bare engine and reads every field as text; how many rows there were.
inline int Read(sqlite3* db, const QByteArray& sql) {
    sqlite3_stmt* statement = nullptr;
    Check(sqlite3_prepare_v2(db, sql, -1, &statement, nullptr) == SQLITE_OK, "prepare");
    int rows = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int i = 0; i < sqlite3_column_count(statement); ++i)
            benchmark::DoNotOptimize(sqlite3_column_text(statement, i));
        ++rows;
    }
    sqlite3_finalize(statement);
    return rows;
}
