#pragma once

#include "look/tables/StatusRoles.h"
#include "tooling/SystemLogExport.h"
#include "tooling/SystemLogModel.h"

#include <QWidget>
#include <functional>
#include <memory>

class QComboBox;
class QDateEdit;
class QTimeEdit;
class Inactive;
class SystemLogUsers;
namespace Ui {
class Form_Tooling;
}

// The Tooling page: searches the audit log by time and user, shows it in pages, exports it as text or as a database.
class Form_Tooling : public QWidget
{
    Q_OBJECT

public:
    // `exported` is told when an export has ended.
    Form_Tooling(Databases& databases, std::function<void()> exported, QWidget* parent = nullptr);
    ~Form_Tooling() override;

    // The users are read anew for the lists.
    void open();
    void changeLanguage();

private:
    void setPickers();
    void lbSysSearch_Click();
    void lbSysPageControl_Click(int button);
    void Cmd_SystemExport_Click();
    void exportTo(const QString& folder);
    void exported(SystemLogExport::Outcome outcome);
    void openFolder();
    void showExportState(Status status, const QString& words, const QString& details);
    // The span of four pickers in seconds, or false after the box about a start that is not below the end.
    bool readSpan(const QString& pickers, SystemLogQuery& query);
    void drawPage(bool ok);
    void copyRows();
    void fillUsers(QComboBox* box, const QStringList& users);
    bool asDatabase() const;

    Databases& m_databases;
    std::function<void()> m_exported;
    std::unique_ptr<Ui::Form_Tooling> m_ui;
    SystemLogModel* m_model;
    SystemLogUsers* m_users;
    QTimer* m_filterDelay;
    std::unique_ptr<Inactive> m_searching;
    std::unique_ptr<Inactive> m_exporting;
    std::unique_ptr<SystemLogExport> m_export;
    QString m_folder; // of the last export
    bool m_failed = false;
};
