#pragma once

#include "store/TableDescription.h"

#include <QString>
#include <vector>

// A table's name and columns, without its record.
struct TableInfo
{
    QString name;
    std::vector<FieldInfo> fields;
};

// Every table of Database.mdb, in the order of the template.
const std::vector<TableInfo>& AllTables();

// Version of the layout that the descriptions give.
inline constexpr QLatin1String kDatabaseVersion("1.0.2.1");

// Writes the empty database of the current version with the rows a fresh station starts from. Replaces the file; throws
// StoreError.
void CreateTemplate(const QString& file);
// Writes an empty audit log; throws StoreError.
void CreateSystemLog(const QString& file);
