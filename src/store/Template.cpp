#include "store/Template.h"

#include "platform/AppPath.h"
#include "platform/Connection.h"
#include "platform/DatabaseFile.h"
#include "store/SystemLog.h"
#include "store/tables/SVRTable.h"
#include "store/tables/Tables.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

namespace {

template <class... Columns>
TableInfo Info(const char* name, const Columns&... lists)
{
    TableInfo table{QString::fromLatin1(name), {}};
    const auto append = [&](const auto& columns) {
        for (const auto& column : columns)
            table.fields.push_back(column.info);
    };
    (append(lists), ...);
    return table;
}

const char* TypeName(FieldType type)
{
    switch (type) {
    case FieldType::Text:
        return "TEXT";
    case FieldType::Bool:
        return "BOOLEAN";
    case FieldType::Int16:
        return "SMALLINT";
    case FieldType::Int32:
        return "INTEGER";
    case FieldType::Real:
        return "DOUBLE";
    }
    return "TEXT";
}

// A database file being made; becomes the target only when it is complete.
class NewDatabase
{
public:
    explicit NewDatabase(const QString& file)
        : m_file(file)
        , m_half(file + u".new"_s)
    {
        QDir().mkpath(QFileInfo(file).absolutePath());
        OwnerOnly(QFileInfo(file).absolutePath());
        QFile::remove(m_half);
        m_database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"new database"_s);
        m_database.setDatabaseName(m_half);
        if (!m_database.open())
            throw StoreError(u"Cannot create '%1'"_s.arg(m_half), m_database.lastError());
        execute(u"BEGIN"_s);
    }
    ~NewDatabase()
    {
        m_database.close();
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(u"new database"_s);
        QFile::remove(m_half);
    }
    NewDatabase(const NewDatabase&) = delete;
    NewDatabase& operator=(const NewDatabase&) = delete;

    void execute(const QString& sql)
    {
        QSqlQuery query(m_database);
        if (!query.exec(sql))
            throw StoreError(sql.left(80), query.lastError());
    }
    void addTable(const TableInfo& table)
    {
        QStringList columns;
        for (const FieldInfo& field : table.fields)
            columns << u"\"%1\" %2 DEFAULT %3"_s.arg(QString::fromLatin1(field.name),
                                                     QString::fromLatin1(TypeName(field.type)),
                                                     QString::fromLatin1(field.defaultSql));
        execute(u"CREATE TABLE \"%1\" (%2)"_s.arg(table.name, columns.join(u", "_s)));
    }
    void finish()
    {
        execute(u"COMMIT"_s);
        m_database.close();
        OwnerOnly(m_half);
        DeleteDatabase(m_file);
        if (!QFile::rename(m_half, m_file))
            throw StoreError(u"Cannot create '%1'"_s.arg(m_file));
    }

private:
    QString m_file;
    QString m_half;
    QSqlDatabase m_database;
};

} // namespace

const std::vector<TableInfo>& AllTables()
{
    static const std::vector<TableInfo> tables{Info("BasicDefault", BasicDefaultColumns),
                                               Info("UserData", UserColumns),
                                               Info("NVRAccount", NVRAccountColumns),
                                               Info("GroupPrivilege", GroupPrivilegeColumns),
                                               Info("NVRPrivilege", NVRPrivilegeColumns),
                                               Info("SVR", SVRColumns, SVRProColumns, SVRPresetColumns),
                                               Info("ListenServer", ListenServerColumns),
                                               Info("EventHandling", EventHandlingColumns),
                                               Info("MotionSettings", ChannelSettingColumns),
                                               Info("ObjectLossSettings", ChannelSettingColumns),
                                               Info("TripwireSettings", ChannelSettingColumns),
                                               Info("MaliciousAttackSettings", ChannelSettingColumns),
                                               Info("MotionROI", MotionROIColumns),
                                               Info("ObjectLossROI", ObjectLossROIColumns),
                                               Info("TripwireLine", TripwireLineColumns),
                                               Info("EMapGroup", EMapGroupColumns),
                                               Info("EMapIcon", EMapIconColumns),
                                               Info("ScreenLayout", ScreenLayoutColumns),
                                               Info("Pattern", PatternColumns),
                                               Info("DefaultStart", DefaultStartColumns),
                                               Info("FullscreenSEQByChannel", FullscreenSEQByChannelColumns),
                                               Info("FullscreenSEQByNVR", FullscreenSEQByNVRColumns),
                                               Info("FullscreenSEQPattern", FullscreenSEQPatternColumns),
                                               Info("VideoWall", VideoWallColumns),
                                               Info("SVD", SVDColumns),
                                               Info("SVD_CH", SVD_CHColumns),
                                               Info("SVD_Pattern", SVD_PatternColumns)};
    return tables;
}

void CreateTemplate(const QString& file)
{
    NewDatabase database(file);
    for (const TableInfo& table : AllTables())
        database.addTable(table);

    database.execute(
        u"INSERT INTO BasicDefault (sBrand, sDBVer, sSystemName) VALUES ('NoBrand', '%1', 'CMS_Core')"_s.arg(
            kDatabaseVersion));
    database.execute(u"INSERT INTO ScreenLayout (Form_FullScreen, Form_VideoWall) VALUES ('1', '-1')"_s);
    database.execute(u"INSERT INTO EventHandling DEFAULT VALUES"_s);
    for (int id = 1; id <= 3; ++id)
        database.execute(u"INSERT INTO ListenServer (aID) VALUES (%1)"_s.arg(id));
    static constexpr std::array groups{"Administrator", "Power User", "User",      "Operator 1",
                                       "Operator 2",    "Operator 3", "Operator 4"};
    for (std::size_t i = 0; i < groups.size(); ++i) {
        const int all = i == 0 ? 1 : 0; // the administrators have every right, the others live view only
        database.execute(u"INSERT INTO GroupPrivilege (GroupID, Name, Setting, Export, SVDControl, Live, Live_all) "
                         "VALUES (%1, '%2', %3, %3, %3, 1, %3)"_s.arg(i + 1)
                             .arg(QString::fromLatin1(groups[i]))
                             .arg(all));
    }
    database.execute(
        u"INSERT INTO EMapGroup (iMap_Type, iMap_ID, sName, sMap_Path) VALUES (0, 0, 'MainMap', '\\MAP\\Main_Map.jpg')"_s);
    database.finish();
}

void CreateSystemLog(const QString& file)
{
    NewDatabase database(file);
    database.addTable(Info("SystemLog", SystemLogColumns));
    database.finish();
}
