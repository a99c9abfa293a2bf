#pragma once

#include "app/shell/TableModel.h"
#include "tooling/LogTimes.h"
#include "tooling/SystemLogReader.h"

#include <QTimer>

// The found rows of the audit log, shown in pages of 11. Only the page on show holds texts. Finding goes on while the
// event loop turns; what was found before stays on show until then.
class SystemLogModel : public TableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Time,
        User,
        Description
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

    // Finds the rows that hold the filter's text and shows the first page.
    void search(const SystemLogQuery& query, const QString& filter = {});
    // Narrows the found rows to those that hold the text; back to the first page.
    void setFilter(const QString& text);
    // lbSysPageControl: Refresh finds anew and stays on the page as far as there is one.
    void pageControl(int button);
    bool searching() const { return m_slices.isActive(); }

    qint64 found() const { return static_cast<qint64>(m_entries.size()); }
    bool searched() const { return m_searched; }
    qint32 m_SysPage() const { return m_page; } // from 0
    // "page/pages": the count of pages comes from the last row's index, so that one row gives 0 pages.
    QString pageText() const;
    bool canGoBack() const { return m_page >= 1; }
    bool canGoOn() const { return m_page < lastPage(); }

    // The rows as tab-separated lines with their whole time, for the clipboard.
    QString copyText(const QList<int>& rows) const;

signals:
    // What was asked for is on show; false when the log could not be read (the grid is empty then).
    void drawn(bool ok);

private:
    qint64 upperBound() const { return found() - 1; }
    qint32 lastPage() const;
    void find(bool fromStart);
    void slice();
    void draw(bool ok);

    Databases& m_databases;
    SystemLogQuery m_query;
    QString m_filter;
    bool m_searched = false;
    QTimer m_slices;
    std::unique_ptr<SystemLogReader> m_reader;
    std::vector<SystemLogEntry> m_finding;
    bool m_fromStart = true; // of the search under way
    std::vector<SystemLogEntry> m_entries;
    std::vector<SystemLogRow> m_rows; // of the page on show
    mutable LogTimes m_times;
    qint32 m_page = 0;
};
