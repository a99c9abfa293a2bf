#pragma once

#include "store/SystemLog.h"
#include "tooling/LogTimes.h"

#include <QAbstractTableModel>

// What a search asks for: seconds since 1970/1/1 UTC, both ends included; an empty user is every user.
struct SystemLogQuery
{
    qint32 from = 0;
    qint32 to = 0;
    QString user;
};

// The found rows of the audit log, shown in pages of 11. Only the page on show holds texts.
class SystemLogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Time,
        User,
        Description,
        ColumnCount
    };
    static constexpr int kPageRows = 11;
    enum PageButton
    {
        First,
        Back,
        On,
        Last,
        Refresh
    };

    explicit SystemLogModel(Databases& databases, QObject* parent = nullptr);

    // Finds the rows that hold the filter's text and shows the first page; false when the log could not be read (the
    // grid is empty then).
    bool search(const SystemLogQuery& query, const QString& filter = {});
    // Narrows the found rows to those that hold the text; back to the first page.
    bool setFilter(const QString& text);
    // lbSysPageControl: Refresh finds anew and stays on the page as far as there is one. False as search().
    bool pageControl(int button);

    qint64 found() const { return static_cast<qint64>(m_entries.size()); }
    bool searched() const { return m_searched; }
    qint32 m_SysPage() const { return m_page; } // from 0
    // "page/pages": the count of pages comes from the last row's index, so that one row gives 0 pages.
    QString pageText() const;
    bool canGoBack() const { return m_page >= 1; }
    bool canGoOn() const { return m_page < lastPage(); }

    // The rows as tab-separated lines with their whole time, for the clipboard.
    QString copyText(const QList<int>& rows) const;
    void retranslate();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    qint64 upperBound() const { return found() - 1; }
    qint32 lastPage() const;
    bool find();
    bool findFromStart();
    bool draw();

    Databases& m_databases;
    SystemLogQuery m_query;
    QString m_filter;
    bool m_searched = false;
    std::vector<SystemLogEntry> m_entries;
    std::vector<SystemLogRow> m_rows; // of the page on show
    mutable LogTimes m_times;
    qint32 m_page = 0;
};
