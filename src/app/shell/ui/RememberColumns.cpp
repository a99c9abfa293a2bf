#include "app/shell/ui/RememberColumns.h"

#include "app/shell/ui/DeskTable.h"
#include "platform/UserSettings.h"

#include <QEvent>
#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace {

class ColumnKeeper : public QObject
{
public:
    explicit ColumnKeeper(QTableView* table)
        : QObject(table)
        , m_head(table->horizontalHeader())
        , m_key(u"columns/"_s + table->objectName())
    {
        const QVariantList widths = UserSetting(m_key).toList();
        for (int column = 0; column < m_head->count() && widths.size() == m_head->count(); ++column) {
            if (m_head->sectionResizeMode(column) == QHeaderView::Interactive && widths[column].toInt() > 0)
                m_head->resizeSection(column, widths[column].toInt());
        }
        connect(m_head, &QHeaderView::sectionResized, this, [this] { m_dragged = m_pressed; });
        m_head->viewport()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonPress)
            m_pressed = true;
        if (event->type() == QEvent::MouseButtonRelease) {
            m_pressed = false;
            if (std::exchange(m_dragged, false))
                save();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void save() const
    {
        const QVariantList before = UserSetting(m_key).toList();
        QVariantList widths;
        for (int column = 0; column < m_head->count(); ++column) {
            const bool leftOut = m_head->isSectionHidden(column);
            widths << (leftOut ? before.value(column, 0) : m_head->sectionSize(column));
        }
        SetUserSetting(m_key, widths);
    }

    QHeaderView* m_head;
    QString m_key;
    bool m_pressed = false;
    bool m_dragged = false;
};

} // namespace

void KeepColumns(QTableView* table)
{
    if (!table->objectName().isEmpty())
        new ColumnKeeper(table);
}

void RememberColumns(QWidget* window)
{
    const QList<QTableView*> tables = window->findChildren<QTableView*>();
    for (QTableView* table : tables) {
        if (!qobject_cast<DeskTable*>(table))
            KeepColumns(table);
    }
}
