#pragma once

#include "look/style/Icons.h"

#include <QSortFilterProxyModel>

// Sorts a list by its sort role, filters it over all columns, and turns the icon names its model gives into icons.
class IconProxy final : public QSortFilterProxyModel
{
public:
    IconProxy(QAbstractItemModel* model, int sortRole, int iconRole, QObject* parent)
        : QSortFilterProxyModel(parent)
        , m_iconRole(iconRole)
    {
        setSourceModel(model);
        setFilterKeyColumn(-1);
        setFilterCaseSensitivity(Qt::CaseInsensitive);
        setSortRole(sortRole);
        setSortLocaleAware(true);
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DecorationRole)
            return QSortFilterProxyModel::data(index, role);
        const QByteArray name = index.data(m_iconRole).toString().toLatin1();
        return name.isEmpty() ? QVariant() : Icon(QLatin1StringView(name));
    }

private:
    int m_iconRole;
};
