#pragma once

#include "tooling/SystemLogModel.h"

// Told now and then how many rows are written; false stops the export.
using ExportProgress = std::function<bool(qint64 rows)>;

// "Systemlog_Export_yyyymmddhhmmss" of the present time.
QString SystemLogExportStem();

// Writes the rows of a query, newest first, as "<folder>/<stem>.csv" ("Date,Time,User,Description", UTF-8, no quoting;
// what a file of that name holds stays in front). Each throws std::runtime_error (StoreError) when the log cannot be
// read, the file not be written or the disk is full; what stood there before is there again then. A new file is called
// "<name>.part" until it is whole. Both give the file's name, which is empty when `progress` stopped them.
QString ExportSystemLogCsv(Databases& databases, const SystemLogQuery& query, const QString& folder,
                           const QString& stem, const ExportProgress& progress);
// The same as a database file "<stem>.mdb" with one table SYSTEMLOG(LogTime, LoginUser, Description). A file of that
// name is never touched: that is a failure.
QString ExportSystemLogMdb(Databases& databases, const SystemLogQuery& query, const QString& folder,
                           const QString& stem, const ExportProgress& progress);
